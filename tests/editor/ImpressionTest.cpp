// Printing the sheets on a recording device: the printer's defaults, pages, sheet sizes,
// header, dialog and failures. The cases of tests/data/impression/ are NAME.args ("ROUTINE
// SHEETS_A_PAGE [paysage] [pilote K | chaque_pilote]") and NAME.attendu, the journal of every page with the place each
// sheet takes on it; TRAJ_REGENERE=1 rewrites the expected files.
#include <gtest/gtest.h>

#include "support/Attendu.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/DCJournal.h"
#include "support/DocumentTest.h"

namespace {

namespace fs = std::filesystem;

const fs::path Dossier = fs::path(TRAJ_TEST_DATA) / "impression";

// The journal shows logical coordinates as passed: each new mapping is noted too, since it
// is where a sheet stands on the page.
class TPageJournal : public TDCJournal {
public:
  void SetWindowOrg(const TPoint& o) override {
    TDCJournal::SetWindowOrg(o);
    const std::string l = "mapping " + std::to_string(o.x) + " " + std::to_string(o.y) + " on " +
                          std::to_string(ExtVue.cx) + "x" + std::to_string(ExtVue.cy);
    if (l != derniere_) Lignes.push_back(derniere_ = l);
  }

private:
  std::string derniere_;
};

// Pages of A4 at 300 dots an inch unless told otherwise; a job that may be refused or fail.
class TPeripheriqueJournal : public TPeripheriqueImpression, public TTravailImpression {
public:
  std::unique_ptr<TTravailImpression> Commence(const TDonneesImprimante& d, const std::string& titre) override {
    Donnees = d;
    Titre = titre;
    if (Refuse) return nullptr;
    Pages.assign(1, TPageJournal());
    struct TRenvoi : TTravailImpression {  // the job is the device itself
      explicit TRenvoi(TTravailImpression& t) : t_(t) {}
      TDC& GetDC() override { return t_.GetDC(); }
      TSize GetPageSize() const override { return t_.GetPageSize(); }
      bool NouvellePage() override { return t_.NouvellePage(); }
      bool Termine() override { return t_.Termine(); }
      TTravailImpression& t_;
    };
    return std::make_unique<TRenvoi>(*this);
  }
  TDC& GetDC() override { return Pages.back(); }
  TSize GetPageSize() const override { return Taille; }
  bool NouvellePage() override {
    Pages.emplace_back();
    return true;
  }
  bool Termine() override { return !EchoueALaFin; }

  std::string Texte() const {
    std::string t;
    for (std::size_t i = 0; i < Pages.size(); ++i) t += "--- page " + std::to_string(i + 1) + "\n" + Pages[i].Texte();
    return t;
  }

  TSize Taille{2480, 3508};
  bool Refuse = false, EchoueALaFin = false;
  TDonneesImprimante Donnees;
  std::string Titre;
  std::deque<TPageJournal> Pages;
};

// The print dialog changes the copies, and may be cancelled.
class TDialoguesImpression : public TDialoguesScriptes {
public:
  bool Impression(TDonneesImprimante& d) override {
    d.Copies = 3;
    return Accepte;
  }
  bool Accepte = true;
};

class ImpressionTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    SetDialogues(&dialoguesImpression);
    SetPeripheriqueImpression(&peripherique);
    setenv("SOURCE_DATE_EPOCH", "1700000000", 1);  // 14 November 2023
  }
  void TearDown() override {
    unsetenv("SOURCE_DATE_EPOCH");
    SetPeripheriqueImpression(nullptr);
    cadre.reset();
    DocumentTest::TearDown();
  }
  // The routine in a new frame, named by its path as the open command names it.
  void Ouvre(const std::string& routine) {
    cadre = std::make_unique<TFenCadre2>();
    cadre->SetupWindow();
    const std::string chemin = (Dossier / routine).string();
    ASSERT_TRUE(LitRoutine(*cadre, chemin));
    FichierRoutine[chemin.copy(FichierRoutine, TAILLE_FICHIER_ROUTINE - 1)] = '\0';
  }
  bool Imprime(int parPage, bool dialogue = false) {
    TFenDessin::Imp.SetNbParPage(parPage);
    return TFenDessin::Printer->Print(TFenDessin::Imp, dialogue);
  }

  TDialoguesImpression dialoguesImpression;
  TPeripheriqueJournal peripherique;
  std::unique_ptr<TFenCadre2> cadre;
};

TEST_F(ImpressionTest, FirstSheetSetsA4AndTheEditorsMarginsOnAPrinterOfTwoCopies) {
  EXPECT_EQ(TImprimante().GetDonnees().Marges, (TMarges{1000, 1000, 1000, 1000}));
  EXPECT_EQ(TFenDessin::Printer, nullptr);
  TFenCadre2 c;
  ASSERT_NE(TFenDessin::Printer, nullptr);
  TDonneesImprimante& d = TFenDessin::Printer->GetDonnees();
  EXPECT_EQ(d.Copies, 2);
  EXPECT_EQ(d.Marges, (TMarges{500, 2000, 500, 1000}));
  EXPECT_EQ(d.Papier, (TSize{21000, 29700}));
  EXPECT_EQ(TFenDessin::Imp.pFenCadre, &c);
  EXPECT_EQ(TFenDessin::Imp.pPrinter, TFenDessin::Printer.get());
  EXPECT_EQ(TFenDessin::Imp.NbParPage, 8);
  // Later sheets leave what the page setup changed.
  d.Marges.Gauche = 0;
  c.AddFeuille();
  EXPECT_EQ(d.Marges.Gauche, 0);
}

TEST_F(ImpressionTest, PagesCountEverySheetButTheSpareOne) {
  struct Cas {
    int Feuilles, ParPage, Pages;
  };
  for (const Cas c : {Cas{2, 1, 1}, Cas{2, 2, 1}, Cas{2, 4, 1}, Cas{2, 8, 1}, Cas{5, 4, 1}, Cas{6, 4, 2},
                      Cas{6, 1, 5}, Cas{6, 2, 3}, Cas{6, 8, 1}, Cas{9, 8, 1}, Cas{10, 8, 2}, Cas{18, 8, 3}}) {
    TFenCadre2 f;
    while (f.nbFeuilles < c.Feuilles) f.AddFeuille();
    TImpression imp;
    imp.SetpFenCadrepPrinter(&f, nullptr);
    imp.SetNbParPage(c.ParPage);
    EXPECT_TRUE(imp.HasPage(c.Pages) && !imp.HasPage(c.Pages + 1) && imp.nbPages == c.Pages)
        << c.Feuilles << " feuilles, " << c.ParPage << " par page";
  }
  TImpression imp;
  imp.SetNbParPage(3);  // not a layout
  EXPECT_EQ(imp.NbParPage, 8);
}

// Worked out by hand from the page, the paper's width and the margins of 5, 20, 5 and 10 mm:
// A4 upright is too narrow for the height any layout offers, A4 across too low for two or
// eight sheets.
TEST_F(ImpressionTest, SheetKeepsTwoToOneWithinTheNarrowerLimit) {
  struct Cas {
    bool Paysage;
    int ParPage, Lf, Hf;
  };
  for (const Cas c : {Cas{false, 1, 2360, 1180}, Cas{false, 2, 2360, 1180}, Cas{false, 4, 1180, 590},
                      Cas{false, 8, 1180, 590}, Cas{true, 1, 3388, 1694}, Cas{true, 2, 1698, 849},
                      Cas{true, 4, 1694, 847}, Cas{true, 8, 848, 424}}) {
    Ouvre("une_feuille.rou");
    TFenDessin::Printer->GetDonnees().Paysage = c.Paysage;
    peripherique.Taille = c.Paysage ? TSize{3508, 2480} : TSize{2480, 3508};
    ASSERT_TRUE(Imprime(c.ParPage));
    const TImpression& imp = TFenDessin::Imp;
    EXPECT_EQ((std::vector<int>{imp.Lf, imp.Hf, imp.Mx, imp.My}), (std::vector<int>{c.Lf, c.Hf, 59, 236}))
        << (c.Paysage ? "paysage, " : "portrait, ") << c.ParPage << " par page";
    EXPECT_FALSE(imp.blImpression);
  }
}

TEST_F(ImpressionTest, HeaderNamesTheRoutineWithoutItsFolder) {
  std::tm date{};
  date.tm_mday = 3;
  date.tm_year = 98;
  EXPECT_EQ(TImpression::Entete(date, "C:\\CV\\Ballet.rou", 2, 5), "- 3/1/1998 - Ballet.rou - 2/5");
  EXPECT_EQ(TImpression::Entete(date, "/home/pilote/ballet.rou", 1, 1), "- 3/1/1998 - ballet.rou - 1/1");
  EXPECT_EQ(TImpression::Entete(date, "ballet.rou", 1, 1), "- 3/1/1998 - ballet.rou - 1/1");
  // Unnamed, and without a frame: the header alone.
  TFenDessin fen(nullptr, nullptr, 1);
  ASSERT_TRUE(Imprime(8));
  EXPECT_EQ(peripherique.Texte(), "--- page 1\nD text 10 10 0 Arial/50/400 #000000 opaque:#ffffff \"- 14/11/2023 -  - 1/1\"\n");
}

TEST_F(ImpressionTest, DateIsTodaysUnlessSourceDateEpochGivesOne) {
  const std::tm fixe = TImpression::DateImpression();
  EXPECT_EQ((std::vector<int>{fixe.tm_mday, fixe.tm_mon, fixe.tm_year}), (std::vector<int>{14, 10, 123}));
  auto aujourdhui = [] {
    const std::time_t t = std::time(nullptr);
    std::tm d{};
    localtime_r(&t, &d);
    return d.tm_yday;
  };
  for (const char* valeur : std::initializer_list<const char*>{"", "demain", "-5", "12x", nullptr}) {
    valeur ? setenv("SOURCE_DATE_EPOCH", valeur, 1) : unsetenv("SOURCE_DATE_EPOCH");
    // Read on either side of the call, in case midnight falls in between.
    const int avant = aujourdhui(), jour = TImpression::DateImpression().tm_yday, apres = aujourdhui();
    EXPECT_TRUE(jour == avant || jour == apres) << "« " << (valeur ? valeur : "(absente)") << " »";
  }
}

TEST_F(ImpressionTest, DialogComesFirstAndFailuresAreToldInABox) {
  Ouvre("une_feuille.rou");
  dialoguesImpression.Accepte = false;
  EXPECT_FALSE(Imprime(8, true));
  EXPECT_TRUE(peripherique.Titre.empty());  // no job started
  dialoguesImpression.Accepte = true;
  EXPECT_TRUE(Imprime(8, true));
  EXPECT_EQ(peripherique.Donnees.Copies, 3);  // as the dialog left it
  EXPECT_EQ(peripherique.Titre, "Impression de trajectoire CV");
  EXPECT_TRUE(dialoguesImpression.Boites.empty());

  peripherique.Refuse = true;
  EXPECT_FALSE(Imprime(8));
  peripherique.Refuse = false;
  peripherique.EchoueALaFin = true;
  TFenDessin::Printer->GetDonnees().Fichier = "/nulle-part/x.pdf";
  EXPECT_FALSE(Imprime(8));
  SetPeripheriqueImpression(nullptr);  // no printer at all
  EXPECT_FALSE(Imprime(8));
  ASSERT_EQ(dialoguesImpression.Boites.size(), 3u);
  EXPECT_EQ(dialoguesImpression.Boites[0].Texte, "Impossible d'imprimer.");
  EXPECT_EQ(dialoguesImpression.Boites[1].Texte, "Impossible d'imprimer dans « /nulle-part/x.pdf ».");
  EXPECT_EQ(dialoguesImpression.Boites[1].Titre, "Impression de trajectoire CV");
}

// The menu's print says on the status line how many pages went, and nothing when cancelled.
TEST_F(ImpressionTest, ThePrintCommandConfirmsThePagesSentOnTheStatusLine) {
  Ouvre("une_feuille.rou");
  while (cadre->nbFeuilles < 6) cadre->AddFeuille();
  cadre->pFenDesActive->Trt_Menu(257);  // two sheets a page: five sheets, three pages
  cadre->pFenDesActive->Trt_Menu(259);
  dialoguesImpression.Accepte = false;
  cadre->pFenDesActive->Trt_Menu(256);
  EXPECT_EQ(dialoguesImpression.Statuts,
            (std::vector<std::string>{"Impression envoyée : 3 pages", "Impression envoyée : 1 page"}));
}

std::vector<std::string> Cas() {
  std::vector<std::string> noms;
  for (const auto& f : fs::directory_iterator(Dossier))
    if (f.path().extension() == ".args") noms.push_back(f.path().stem().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

class ImpressionCas : public ImpressionTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(ImpressionCas, EveryPageAsExpected) {
  std::ifstream args(Dossier / (GetParam() + ".args"));
  std::string routine;
  int parPage = 0;
  args >> routine >> parPage;
  ASSERT_GT(parPage, 0) << GetParam() << ".args : ROUTINE FEUILLES_PAR_PAGE [paysage] [pilote K | chaque_pilote]";
  Ouvre(routine);
  bool paysage = false;
  for (std::string mot; args >> mot;) {
    if (mot == "paysage") paysage = true;
    if (mot == "chaque_pilote") TFenDessin::Imp.ChaquePilote = true;
    if (mot == "pilote") {
      ASSERT_TRUE(args >> TFenDessin::Imp.Pilote) << GetParam();
    }
  }
  if (paysage) {
    TFenDessin::Printer->GetDonnees().Paysage = true;
    peripherique.Taille = TSize{3508, 2480};
  }
  ASSERT_TRUE(Imprime(parPage));
  CompareAvecAttendu(peripherique.Texte(), Dossier / (GetParam() + ".attendu"),
                     fs::temp_directory_path() / ("trajectoires-impression-" + std::to_string(getpid())));
}

INSTANTIATE_TEST_SUITE_P(Impression, ImpressionCas, ::testing::ValuesIn(Cas()),
                         [](const auto& info) { return info.param; });

}  // namespace
