// Recovery copies: when they are due, what their cards say, which copies a folder offers,
// and a copy opened in the name of its original, figures beside it included.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "files/Ecriture.h"
#include "session/Modification.h"
#include "session/Recuperation.h"
#include "support/Attendu.h"
#include "support/Fichiers.h"

namespace {

namespace fs = std::filesystem;
using C = TCalendrierRecuperation;

// What the schedule is given, in order, and when it then says the next copy is due.
struct TPas {
  enum { Modifie, Intact, Reussie, Echouee } Evenement;
  std::int64_t Instant;
  std::optional<std::int64_t> Prochaine;
  bool Dire = false;  // for a copy tried: whether its failure is told
};

void Deroule(const std::vector<TPas>& pas) {
  C calendrier;
  for (std::size_t i = 0; i < pas.size(); ++i) {
    const TPas& p = pas[i];
    bool dire = false;
    switch (p.Evenement) {
      case TPas::Modifie: calendrier.Change(true, p.Instant); break;
      case TPas::Intact: calendrier.Change(false, p.Instant); break;
      case TPas::Reussie: dire = calendrier.Tentee(true, p.Instant); break;
      case TPas::Echouee: dire = calendrier.Tentee(false, p.Instant); break;
    }
    EXPECT_EQ(calendrier.Prochaine(), p.Prochaine) << "step " << i;
    EXPECT_EQ(dire, p.Dire) << "step " << i;
  }
}

TEST(CalendrierRecuperation, FirstChangeSoonThenEveryPeriodWhileModifiedAndNothingOnceSaved) {
  Deroule({
      {TPas::Modifie, 1000, 1000 + C::PREMIERE},
      // Further changes do not put the first copy off.
      {TPas::Modifie, 2500, 1000 + C::PREMIERE},
      {TPas::Reussie, 3000, 3000 + C::PERIODE},
      {TPas::Reussie, 3000 + C::PERIODE, 3000 + 2 * C::PERIODE},
      {TPas::Intact, 130000, std::nullopt},
      // Saved then changed again: a first change once more.
      {TPas::Modifie, 200000, 200000 + C::PREMIERE},
      {TPas::Intact, 200001, std::nullopt},
      // A copy tried when nothing is due (a late timer) schedules none.
      {TPas::Reussie, 200002, std::nullopt},
  });
  C c;
  c.Change(true, 10);
  EXPECT_FALSE(c.Due(10 + C::PREMIERE - 1));
  EXPECT_TRUE(c.Due(10 + C::PREMIERE));
  EXPECT_LE(C::PREMIERE, 5000);
  EXPECT_EQ(C::PERIODE, 120000);
  c.Change(false, 20);
  EXPECT_FALSE(c.Due(1000000));
}

TEST(CalendrierRecuperation, AFailureIsToldOnceUntilACopyIsWrittenAgain) {
  Deroule({
      {TPas::Modifie, 0, C::PREMIERE},
      {TPas::Echouee, C::PREMIERE, C::PREMIERE + C::PERIODE, true},
      {TPas::Echouee, C::PREMIERE + C::PERIODE, C::PREMIERE + 2 * C::PERIODE, false},
      // Saved and changed again: the folder is no better for it.
      {TPas::Intact, 300000, std::nullopt},
      {TPas::Modifie, 300000, 300000 + C::PREMIERE},
      {TPas::Echouee, 302000, 302000 + C::PERIODE, false},
      {TPas::Reussie, 422000, 422000 + C::PERIODE, false},
      {TPas::Echouee, 542000, 542000 + C::PERIODE, true},
  });
}

// Every card of data/recuperation, read: what it gives, or that it is refused.
TEST(FicheRecuperation, CardsOfTheDataFolderReadOrAreRefused) {
  const fs::path dossier = fs::path(TRAJ_TEST_DATA) / "recuperation";
  std::map<std::string, std::string> resultats;
  for (const fs::directory_entry& e : fs::directory_iterator(dossier))
    if (e.path().extension() == ".info") {
      const std::optional<TFicheRecuperation> f = LitFiche(LitTout(e.path()));
      resultats[e.path().filename().string()] =
          f ? "ORIGINAL [" + f->Original + "] INSTANT " + std::to_string(f->Instant) + " NOM [" + NomRoutine(*f) + "]"
            : "refusée";
    }
  std::string obtenu;
  for (const auto& [nom, r] : resultats) obtenu += nom + " : " + r + "\n";
  CompareAvecAttendu(obtenu, dossier / "fiches.attendu",
                     fs::temp_directory_path() / ("fiches-" + std::to_string(getpid())));
}

TEST(FicheRecuperation, WhatIsWrittenReadsBack) {
  for (const TFicheRecuperation& f : {TFicheRecuperation{"/tmp/a b/c.rou", 1710407100},
                                     TFicheRecuperation{"", 0}, TFicheRecuperation{"rel.rou", INT64_MAX}}) {
    const std::optional<TFicheRecuperation> lu = LitFiche(TexteFiche(f));
    ASSERT_TRUE(lu) << TexteFiche(f);
    EXPECT_EQ(lu->Original, f.Original);
    EXPECT_EQ(lu->Instant, f.Instant);
  }
  // A card cut before its INSTANT line has a value is no card.
  const std::string texte = TexteFiche({"/x.rou", 123});
  for (std::size_t n = 0; n < texte.rfind(' '); ++n) EXPECT_FALSE(LitFiche(texte.substr(0, n))) << n;
}

class CopiesTest : public FichiersTest {
protected:
  fs::path Sous(const std::string& nom) {
    fs::create_directories(dossier / nom);
    return dossier / nom;
  }
};

TEST_F(CopiesTest, OnlyWholeCopiesThatNoRunningEditorHoldsAreOfferedNewestFirst) {
  const fs::path r = Sous("recuperation");
  ASSERT_TRUE(EcritCopie(CopieNommee(r, "ancienne"), "TEAM 1\n", {"/a/ancienne.rou", 100}));
  ASSERT_TRUE(EcritCopie(CopieNommee(r, "recente"), "TEAM 2\n", {"", 200}));
  ASSERT_TRUE(EcritCopie(CopieNommee(r, "tenue"), "TEAM 3\n", {"/a/tenue.rou", 300}));
  // A card alone, a routine alone, a card of nonsense, a card too large to be one, a folder.
  ASSERT_TRUE(EcritFichier((r / "orpheline.info").string(), TexteFiche({"/a/o.rou", 400})));
  ASSERT_TRUE(EcritFichier((r / "seule.rou").string(), "TEAM 1\n"));
  ASSERT_TRUE(EcritFichier((r / "absurde.info").string(), "\x01\x02 pas une fiche"));
  ASSERT_TRUE(EcritFichier((r / "absurde.rou").string(), "TEAM 1\n"));
  ASSERT_TRUE(EcritFichier((r / "enorme.info").string(), TexteFiche({"/a/e.rou", 500}) + std::string(1 << 20, '\n')));
  ASSERT_TRUE(EcritFichier((r / "enorme.rou").string(), "TEAM 1\n"));
  fs::create_directories(r / "dossier.info");
  ASSERT_TRUE(EcritFichier((r / "dossier.rou").string(), "TEAM 1\n"));

  std::set<std::string> demandes;
  const std::vector<TCandidat> c = CopiesARecuperer(r, [&](const TCopieRecuperation& copie) {
    demandes.insert(copie.Verrou.filename().string());
    return copie.Verrou.filename() != "tenue.lock";
  });
  ASSERT_EQ(c.size(), 2u);
  EXPECT_EQ(c[0].Copie.Routine, r / "recente.rou");
  EXPECT_EQ(NomRoutine(c[0].Fiche), "Sans titre");
  EXPECT_EQ(c[1].Copie.Routine, r / "ancienne.rou");
  EXPECT_EQ(c[1].Fiche.Original, "/a/ancienne.rou");
  EXPECT_EQ(NomRoutine(c[1].Fiche), "ancienne.rou");
  // Only whole copies are asked about: on the Qt side, asking takes the lock.
  EXPECT_EQ(demandes, (std::set<std::string>{"ancienne.lock", "recente.lock", "tenue.lock"}));

  EXPECT_TRUE(CopiesARecuperer(dossier / "nulle-part", [](const TCopieRecuperation&) { return true; }).empty());
}

TEST_F(CopiesTest, ACopyNeverReplacesTheRoutineItselfAndGoesWithItsCardButNotTheLock) {
  const fs::path r = Sous("recuperation");
  const TCopieRecuperation copie = CopieNommee(r, NomCopie(1234, 5678));
  EXPECT_EQ(copie.Routine.filename(), "copie-1234-5678.rou");
  // A routine saved into the recovery folder under the copy's own name.
  Ecrit(copie.Routine.string(), "TEAM 5\n");
  EXPECT_FALSE(EcritCopie(copie, "TEAM 1\n", {copie.Routine.string(), 1}));
  EXPECT_EQ(LitTout(copie.Routine), "TEAM 5\n");
  EXPECT_FALSE(fs::exists(copie.Fiche));

  ASSERT_TRUE(EcritCopie(copie, "TEAM 2\n", {"/a/b\nc.rou", 7}));
  EXPECT_EQ(LitTout(copie.Routine), "TEAM 2\n");
  // A path with a line end can't stand on a line: the copy is kept unnamed.
  EXPECT_EQ(LitFiche(LitTout(copie.Fiche))->Original, "");
  Ecrit(copie.Verrou.string(), "1234\n");
  SupprimeCopie(copie);
  EXPECT_FALSE(fs::exists(copie.Routine));
  EXPECT_FALSE(fs::exists(copie.Fiche));
  EXPECT_TRUE(fs::exists(copie.Verrou));
  // A folder that can't be made.
  Ecrit("fichier", "");
  EXPECT_FALSE(EcritCopie(CopieNommee(dossier / "fichier" / "r", "x"), "TEAM 1\n", {"", 1}));
}

// A routine with a figure, saved in its own folder, changed, then copied elsewhere: the copy
// opens as that routine, still to be saved, its figure found beside the original.
TEST_F(CopiesTest, ARecoveredCopyOpensModifiedInTheNameOfItsOriginalWithTheFiguresBesideIt) {
  const fs::path original = Sous("routines") / "vague.rou";
  Ecrit((dossier / "routines" / "a.fig").string(), Donnee("resave/vague.fig"));
  Ecrit(original.string(),
        "TEAM 2\n"
        "POINT   \t0\t0\t1\t1\t0\t\t0  0\t\t0.4\t\t\n"
        "FIGURE  \t0\t1\t5\t1\t300\t\t50  50\t\t0.4\t\t267.1\ta.fig\t552\t\n");
  cadre = std::make_unique<TFenCadre2>();
  cadre->SetupWindow();
  const fs::path ici = fs::current_path();
  fs::current_path(dossier / "routines");
  cadre->pFenDesActive->Ouvrir(original.string());
  fs::current_path(ici);
  const std::string texte = TexteRoutine();
  ASSERT_NE(texte.find("a.fig"), std::string::npos) << texte;

  const TCopieRecuperation copie = CopieNommee(Sous("recuperation"), "c");
  ASSERT_TRUE(EcritCopie(copie, texte, {original.string(), 1}));
  Ecrit("autre.rou", "TEAM 1\n");
  cadre->pFenDesActive->Ouvrir("autre.rou");
  ASSERT_NE(TexteRoutine(), texte);
  dialogues.Statuts.clear();
  dialogues.Boites.clear();

  ASSERT_TRUE(RecupereCopie(*cadre, {copie, {original.string(), 1}}));
  EXPECT_EQ(TexteRoutine(), texte);
  EXPECT_EQ(std::string(FichierRoutine), original.string());
  EXPECT_EQ(cadre->GetTitre(), "Dessin Trajectoires : " + original.string());
  EXPECT_TRUE(DocumentModifie());
  EXPECT_TRUE(dialogues.Statuts.empty()) << dialogues.Statuts.front();
  EXPECT_TRUE(dialogues.Boites.empty()) << dialogues.Boites.front().Texte;

  // A copy gone meanwhile is not opened, and the document stays as it was.
  const TCopieRecuperation absente = CopieNommee(dossier / "recuperation", "absente");
  EXPECT_FALSE(RecupereCopie(*cadre, {absente, {"/a/autre.rou", 1}}));
  EXPECT_EQ(TexteRoutine(), texte);
  EXPECT_EQ(std::string(FichierRoutine), original.string());

  // Unnamed, it stays unnamed: the next save asks for a name. Its figures are looked up in
  // the current folder only, as they were when it was made.
  MarqueIntact();
  Ecrit("a.fig", Donnee("resave/vague.fig"));
  ASSERT_TRUE(RecupereCopie(*cadre, {copie, {"", 1}}));
  EXPECT_EQ(TexteRoutine(), texte);
  EXPECT_EQ(std::string(FichierRoutine), "");
  EXPECT_EQ(cadre->GetTitre(), "Dessin Trajectoires");
  EXPECT_TRUE(DocumentModifie());
}

}  // namespace
