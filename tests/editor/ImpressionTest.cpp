// Printing the sheets: the printer's defaults, the number of pages, the size of a sheet on
// the page, the header, and what each page holds, drawn on a recording device. The cases of
// tests/data/impression/ are NAME.args ("ROUTINE SHEETS_A_PAGE [paysage]") and NAME.attendu,
// the journal of every page; TRAJ_REGENERE=1 rewrites the expected files.
#include <gtest/gtest.h>

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
#include "platform/Printer.h"
#include "support/DocumentTest.h"

namespace {

namespace fs = std::filesystem;

const fs::path Dossier = fs::path(TRAJ_TEST_DATA) / "impression";

// A page's journal, with each new mapping that a sheet sets: the journal itself shows
// logical coordinates as passed, and the mapping is where a sheet stands on the page.
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

class TTravailJournal : public TTravailImpression {
public:
  TTravailJournal(std::deque<TPageJournal>& pages, TSize taille, bool echoue)
      : pages_(pages), taille_(taille), echoue_(echoue) {}
  TDC& GetDC() override { return pages_.back(); }
  TSize GetPageSize() const override { return taille_; }
  bool NouvellePage() override {
    pages_.emplace_back();
    return true;
  }
  bool Termine() override { return !echoue_; }

private:
  std::deque<TPageJournal>& pages_;
  TSize taille_;
  bool echoue_;
};

// Pages of A4 at 300 dots an inch, unless told otherwise.
class TPeripheriqueJournal : public TPeripheriqueImpression {
public:
  std::unique_ptr<TTravailImpression> Commence(const TDonneesImprimante& d, const std::string& titre) override {
    ++Demandes;
    Donnees = d;
    Titre = titre;
    if (Refuse) return nullptr;
    Pages.assign(1, TPageJournal());
    return std::make_unique<TTravailJournal>(Pages, Taille, EchoueALaFin);
  }
  std::string Texte() const {
    std::string t;
    for (std::size_t i = 0; i < Pages.size(); ++i) t += "--- page " + std::to_string(i + 1) + "\n" + Pages[i].Texte();
    return t;
  }

  TSize Taille{2480, 3508};
  bool Refuse = false;
  bool EchoueALaFin = false;
  int Demandes = 0;
  TDonneesImprimante Donnees;
  std::string Titre;
  std::deque<TPageJournal> Pages;
};

// Dialogs whose print dialog can be cancelled.
class TDialoguesImpression : public TDialoguesScriptes {
public:
  bool Impression(TDonneesImprimante& d) override {
    ++Dialogues;
    d.Copies = 3;
    return Accepte;
  }
  bool Accepte = true;
  int Dialogues = 0;
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
  // A frame holding the routine, named by its path as the open command names it.
  void Ouvre(const std::string& routine) {
    cadre = std::make_unique<TFenCadre2>();
    cadre->SetupWindow();
    const std::string chemin = (Dossier / routine).string();
    ASSERT_TRUE(LitRoutine(*cadre, chemin));
    chemin.copy(FichierRoutine, TAILLE_FICHIER_ROUTINE - 1);
    FichierRoutine[std::min<std::size_t>(chemin.size(), TAILLE_FICHIER_ROUTINE - 1)] = '\0';
  }
  bool Imprime(int parPage) {
    TFenDessin::Imp.SetNbParPage(parPage);
    return TFenDessin::Printer->Print(TFenDessin::Imp, false);
  }
  // The sheets printed on each page, read from their labels.
  std::vector<std::vector<std::string>> FeuillesParPage() const {
    std::vector<std::vector<std::string>> pages;
    for (const TPageJournal& p : peripherique.Pages) {
      pages.emplace_back();
      for (const std::string& l : p.Lignes)
        if (const auto n = l.find("\"- "); n != std::string::npos && l.rfind("L text", 0) == 0)
          pages.back().push_back(l.substr(n + 1, l.size() - n - 2));
    }
    return pages;
  }

  TDialoguesImpression dialoguesImpression;
  TPeripheriqueJournal peripherique;
  std::unique_ptr<TFenCadre2> cadre;
};

TEST_F(ImpressionTest, FirstSheetSetsA4AndTheEditorsMarginsOnAPrinterOfTwoCopies) {
  EXPECT_EQ(TImprimante().GetDonnees().Copies, 2);
  EXPECT_EQ(TImprimante().GetDonnees().Marges, (TMarges{1000, 1000, 1000, 1000}));
  EXPECT_EQ(TFenDessin::Printer, nullptr);

  TFenCadre2 c;
  ASSERT_NE(TFenDessin::Printer, nullptr);
  const TDonneesImprimante& d = TFenDessin::Printer->GetDonnees();
  EXPECT_EQ(d.Copies, 2);
  EXPECT_EQ(d.Marges, (TMarges{500, 2000, 500, 1000}));
  EXPECT_EQ(d.Papier, (TSize{21000, 29700}));
  EXPECT_FALSE(d.Paysage);
  EXPECT_EQ(TFenDessin::Imp.pFenCadre, &c);
  EXPECT_EQ(TFenDessin::Imp.pPrinter, TFenDessin::Printer.get());
  EXPECT_EQ(TFenDessin::Imp.NbParPage, 8);
  EXPECT_EQ(TFenDessin::Imp.GetTitle(), "Impression de trajectoire CV");

  // Later sheets leave what the page setup changed.
  TFenDessin::Printer->GetDonnees().Marges.Gauche = 0;
  c.AddFeuille();
  EXPECT_EQ(TFenDessin::Printer->GetDonnees().Marges.Gauche, 0);
}

TEST_F(ImpressionTest, PagesCountEverySheetButTheSpareOne) {
  struct Cas {
    int Feuilles, ParPage, Pages;
  };
  for (const Cas c : {Cas{2, 1, 1}, Cas{2, 8, 1}, Cas{5, 4, 1}, Cas{6, 4, 2}, Cas{6, 1, 5}, Cas{6, 2, 3},
                      Cas{6, 8, 1}, Cas{9, 8, 1}, Cas{10, 8, 2}, Cas{18, 8, 3}}) {
    TFenCadre2 f;
    while (f.nbFeuilles < c.Feuilles) f.AddFeuille();
    TImpression imp;
    imp.SetpFenCadrepPrinter(&f, nullptr);
    imp.SetNbParPage(c.ParPage);
    EXPECT_TRUE(imp.HasPage(c.Pages)) << c.Feuilles << " feuilles, " << c.ParPage << " par page";
    EXPECT_FALSE(imp.HasPage(c.Pages + 1)) << c.Feuilles << " feuilles, " << c.ParPage << " par page";
    EXPECT_EQ(imp.nbPages, c.Pages);
  }
  TImpression imp;
  imp.SetNbParPage(3);  // not a layout
  EXPECT_EQ(imp.NbParPage, 8);
}

TEST_F(ImpressionTest, FiveSheetsTakeFiveThreeTwoAndOnePagesInTheFourLayouts) {
  Ouvre("cinq_feuilles.rou");
  ASSERT_EQ(cadre->nbFeuilles, 6);
  using P = std::vector<std::vector<std::string>>;
  const std::string f1 = "- 1 - 0 -", f2 = "- 2 - 0 -", f3 = "- 3 - 0 -", f4 = "- 4 - 0 -", f5 = "- 5 - 0 -";
  ASSERT_TRUE(Imprime(1));
  EXPECT_EQ(FeuillesParPage(), (P{{f1}, {f2}, {f3}, {f4}, {f5}}));
  ASSERT_TRUE(Imprime(2));
  EXPECT_EQ(FeuillesParPage(), (P{{f1, f2}, {f3, f4}, {f5}}));
  ASSERT_TRUE(Imprime(4));
  EXPECT_EQ(FeuillesParPage(), (P{{f1, f2, f3, f4}, {f5}}));
  ASSERT_TRUE(Imprime(8));
  EXPECT_EQ(FeuillesParPage(), (P{{f1, f2, f3, f4, f5}}));
  EXPECT_EQ(peripherique.Pages[0].Lignes[0], "D text 10 10 0 Arial/50/400 #000000 opaque:#ffffff \"- 14/11/2023 - cinq_feuilles.rou - 1/1\"");
  EXPECT_FALSE(TFenDessin::Imp.blImpression);
}

// Sizes worked out by hand from the page in device units, the paper's width and the margins
// of 5, 20, 5 and 10 mm: A4 upright is always too narrow for the height a layout offers, A4
// across is too low for two or eight sheets.
TEST_F(ImpressionTest, SheetKeepsTwoToOneWithinTheNarrowerLimit) {
  struct Cas {
    bool Paysage;
    int ParPage, Lf, Hf, Mx, My;
  };
  for (const Cas c : {Cas{false, 1, 2360, 1180, 59, 236}, Cas{false, 2, 2360, 1180, 59, 236},
                      Cas{false, 4, 1180, 590, 59, 236}, Cas{false, 8, 1180, 590, 59, 236},
                      Cas{true, 1, 3388, 1694, 59, 236}, Cas{true, 2, 1698, 849, 59, 236},
                      Cas{true, 4, 1694, 847, 59, 236}, Cas{true, 8, 848, 424, 59, 236}}) {
    Ouvre("une_feuille.rou");
    TFenDessin::Printer->GetDonnees().Paysage = c.Paysage;
    peripherique.Taille = c.Paysage ? TSize{3508, 2480} : TSize{2480, 3508};
    ASSERT_TRUE(Imprime(c.ParPage));
    const TImpression& imp = TFenDessin::Imp;
    EXPECT_EQ((std::vector<int>{imp.Lf, imp.Hf, imp.Mx, imp.My}), (std::vector<int>{c.Lf, c.Hf, c.Mx, c.My}))
        << (c.Paysage ? "paysage, " : "portrait, ") << c.ParPage << " par page";
    EXPECT_EQ(peripherique.Pages.size(), 1u);
  }
}

TEST_F(ImpressionTest, HeaderNamesTheRoutineWithoutItsFolder) {
  std::tm date{};
  date.tm_mday = 3;
  date.tm_mon = 0;
  date.tm_year = 98;
  EXPECT_EQ(TImpression::Entete(date, "C:\\CV\\Ballet.rou", 2, 5), "- 3/1/1998 - Ballet.rou - 2/5");
  EXPECT_EQ(TImpression::Entete(date, "/home/pilote/ballet.rou", 1, 1), "- 3/1/1998 - ballet.rou - 1/1");
  EXPECT_EQ(TImpression::Entete(date, "ballet.rou", 1, 1), "- 3/1/1998 - ballet.rou - 1/1");
  EXPECT_EQ(TImpression::Entete(date, "", 1, 1), "- 3/1/1998 -  - 1/1");
}

TEST_F(ImpressionTest, DateIsTodaysUnlessSourceDateEpochGivesOne) {
  const std::tm fixe = TImpression::DateImpression();
  EXPECT_EQ((std::vector<int>{fixe.tm_mday, fixe.tm_mon, fixe.tm_year}), (std::vector<int>{14, 10, 123}));
  setenv("SOURCE_DATE_EPOCH", "0", 1);
  EXPECT_EQ(TImpression::DateImpression().tm_year, 70);

  // Read on either side of the call, in case midnight falls in between.
  auto aujourdhui = [] {
    const std::time_t t = std::time(nullptr);
    std::tm d{};
    localtime_r(&t, &d);
    return d.tm_yday;
  };
  for (const char* valeur : std::initializer_list<const char*>{"", "demain", "-5", "12x", nullptr}) {
    if (valeur)
      setenv("SOURCE_DATE_EPOCH", valeur, 1);
    else
      unsetenv("SOURCE_DATE_EPOCH");
    const int avant = aujourdhui();
    const int jour = TImpression::DateImpression().tm_yday;
    const int apres = aujourdhui();
    EXPECT_TRUE(jour == avant || jour == apres) << "« " << (valeur ? valeur : "(absente)") << " »";
  }
}

TEST_F(ImpressionTest, WithoutAFrameThePageHasItsHeaderAndNoSheet) {
  TFenDessin fen(nullptr, nullptr, 1);
  ASSERT_EQ(TFenDessin::Imp.pFenCadre, nullptr);
  ASSERT_TRUE(Imprime(8));
  ASSERT_EQ(peripherique.Pages.size(), 1u);
  EXPECT_EQ(peripherique.Pages[0].Lignes,
            (std::vector<std::string>{"D text 10 10 0 Arial/50/400 #000000 opaque:#ffffff \"- 14/11/2023 -  - 1/1\""}));
}

TEST_F(ImpressionTest, DialogComesFirstAndCancellingPrintsNothing) {
  Ouvre("une_feuille.rou");
  dialoguesImpression.Accepte = false;
  EXPECT_FALSE(TFenDessin::Printer->Print(TFenDessin::Imp, true));
  EXPECT_EQ(dialoguesImpression.Dialogues, 1);
  EXPECT_EQ(peripherique.Demandes, 0);
  EXPECT_TRUE(dialoguesImpression.Boites.empty());

  dialoguesImpression.Accepte = true;
  EXPECT_TRUE(TFenDessin::Printer->Print(TFenDessin::Imp, true));
  EXPECT_EQ(peripherique.Demandes, 1);
  EXPECT_EQ(peripherique.Donnees.Copies, 3);  // as the dialog left it
  EXPECT_EQ(peripherique.Titre, "Impression de trajectoire CV");
}

TEST_F(ImpressionTest, FailedJobIsToldInABox) {
  Ouvre("une_feuille.rou");
  peripherique.Refuse = true;
  EXPECT_FALSE(Imprime(8));
  peripherique.Refuse = false;
  peripherique.EchoueALaFin = true;
  TFenDessin::Printer->GetDonnees().Fichier = "/nulle-part/x.pdf";
  EXPECT_FALSE(Imprime(8));
  ASSERT_EQ(dialoguesImpression.Boites.size(), 2u);
  EXPECT_EQ(dialoguesImpression.Boites[0].Texte, "Impossible d'imprimer.");
  EXPECT_EQ(dialoguesImpression.Boites[1].Texte, "Impossible d'imprimer dans « /nulle-part/x.pdf ».");
  EXPECT_EQ(dialoguesImpression.Boites[1].Titre, "Impression de trajectoire CV");
  // Without a device at all, nothing is printed either.
  SetPeripheriqueImpression(nullptr);
  EXPECT_FALSE(Imprime(8));
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
  std::string routine, sens;
  int parPage = 0;
  args >> routine >> parPage >> sens;
  ASSERT_GT(parPage, 0) << GetParam() << ".args : ROUTINE FEUILLES_PAR_PAGE [paysage]";
  Ouvre(routine);
  if (sens == "paysage") {
    TFenDessin::Printer->GetDonnees().Paysage = true;
    peripherique.Taille = TSize{3508, 2480};
  }
  ASSERT_TRUE(Imprime(parPage));

  const fs::path attendu = Dossier / (GetParam() + ".attendu");
  const std::string obtenu = peripherique.Texte();
  if (const char* r = std::getenv("TRAJ_REGENERE"); r && std::string(r) == "1")
    std::ofstream(attendu, std::ios::binary) << obtenu;
  std::ifstream f(attendu, std::ios::binary);
  std::ostringstream texte;
  texte << f.rdbuf();
  EXPECT_EQ(texte.str(), obtenu);
}

INSTANTIATE_TEST_SUITE_P(Impression, ImpressionCas, ::testing::ValuesIn(Cas()),
                         [](const auto& info) { return info.param; });

}  // namespace
