// The recovery copies on the Qt side: this editor's copy follows the document's modified
// state under its lock, a folder that can't be written is told once, and the start-up box
// offers the copies of editors that are gone and does what the user chose.
#include <gtest/gtest.h>

#include "Attente.h"
#include "editor/FenCadre2.h"
#include "files/Ecriture.h"
#include "files/Lignes.h"
#include "gui/session/DialogueRecuperation.h"
#include "gui/session/Recuperation.h"
#include "model/Document.h"
#include "session/Modification.h"
#include "support/Doubles.h"

#include <QDialogButtonBox>
#include <QLockFile>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

QString Q(const fs::path& p) { return QString::fromStdString(p.string()); }

class RecuperationTest : public ::testing::Test {
protected:
  void SetUp() override {
    fs::remove_all(racine);
    fs::create_directories(racine);
    ReinitialiseDocument();
    SetDialogues(&dialogues);
    cadre = std::make_unique<TFenCadre2>();
    cadre->SetupWindow();
  }
  void TearDown() override {
    cadre.reset();
    ReinitialiseDocument();
    SetDialogues(nullptr);
    fs::remove_all(racine);
  }

  // Whether a running editor holds the copy's lock, asked as the start-up does.
  static bool Tenue(const TCopieRecuperation& c) {
    QLockFile verrou(Q(c.Verrou));
    verrou.setStaleLockTime(0);
    return !verrou.tryLock(0);
  }
  // A copy left by an editor that is gone: its lock names a process that has ended.
  TCopieRecuperation Abandonnee(const std::string& nom, const std::string& texte, const TFicheRecuperation& f) {
    const TCopieRecuperation c = CopieNommee(dossier, nom);
    EXPECT_TRUE(EcritCopie(c, texte, f));
    QProcess p;
    p.start(QStringLiteral("true"), {});
    EXPECT_TRUE(p.waitForStarted(60000));
    const qint64 pid = p.processId();
    EXPECT_TRUE(p.waitForFinished(60000));
    std::ofstream(c.Verrou) << pid << "\ntrajectoires_app_tests\n" << QSysInfo::machineHostName().toStdString() << "\n";
    return c;
  }
  static QRadioButton* Choix(QWidget* d, const char* nom) {
    auto* b = d->findChild<QRadioButton*>(QString::fromLatin1(nom));
    EXPECT_NE(b, nullptr) << nom;
    return b;
  }

  const fs::path racine = fs::temp_directory_path() / ("trajectoires-recuperation-" + std::to_string(getpid()));
  const fs::path dossier = racine / "etat" / "recuperation";
  TDialoguesScriptes dialogues;
  std::unique_ptr<TFenCadre2> cadre;
};

TEST_F(RecuperationTest, TheCopyIsWrittenWhileModifiedUnderItsLockAndGoesOnceSavedOrClosed) {
  auto r = std::make_unique<QRecuperation>(dossier);
  const TCopieRecuperation copie = r->Copie();
  EXPECT_TRUE(Tenue(copie));
  EXPECT_FALSE(fs::exists(copie.Routine));

  std::string("/routines/essai.rou").copy(FichierRoutine, 19);
  FichierRoutine[19] = '\0';
  MarqueModifie();
  ASSERT_TRUE(AttendQue([&] { return fs::exists(copie.Fiche); })) << "no copy after the first change";
  EXPECT_EQ(LitFichier(copie.Routine.string()), TexteRoutine());
  const std::optional<TFicheRecuperation> fiche = LitFiche(LitFichier(copie.Fiche.string()).value_or(""));
  ASSERT_TRUE(fiche);
  EXPECT_EQ(fiche->Original, "/routines/essai.rou");
  // A running editor's copy is not offered, however old its lock.
  EXPECT_TRUE(CopiesARecuperer(dossier, [](const TCopieRecuperation& c) { return !Tenue(c); }).empty());

  MarqueIntact();  // saved
  EXPECT_FALSE(fs::exists(copie.Routine));
  EXPECT_FALSE(fs::exists(copie.Fiche));
  EXPECT_TRUE(Tenue(copie));

  MarqueModifie();
  ASSERT_TRUE(AttendQue([&] { return fs::exists(copie.Fiche); }));
  r.reset();  // closed
  EXPECT_FALSE(fs::exists(copie.Routine));
  EXPECT_FALSE(fs::exists(copie.Fiche));
  EXPECT_FALSE(fs::exists(copie.Verrou));
  EXPECT_TRUE(dialogues.Statuts.empty());
}

TEST_F(RecuperationTest, AFolderThatCantBeWrittenIsToldOnceOnTheStatusLine) {
  std::ofstream(racine / "etat") << "un fichier, pas un dossier";
  QRecuperation r(dossier);
  MarqueModifie();
  ASSERT_TRUE(AttendQue([&] { return !dialogues.Statuts.empty(); }));
  ASSERT_EQ(dialogues.Statuts.size(), 1u);
  EXPECT_NE(dialogues.Statuts[0].find("Copie de récupération impossible"), std::string::npos) << dialogues.Statuts[0];
  EXPECT_NE(dialogues.Statuts[0].find(dossier.string()), std::string::npos) << dialogues.Statuts[0];
  EXPECT_TRUE(dialogues.Boites.empty());
  // Editing goes on.
  MarqueIntact();
  EXPECT_FALSE(DocumentModifie());
}

TEST_F(RecuperationTest, TheBoxOffersTheCopiesOfEditorsGoneAndDoesWhatWasChosen) {
  fs::create_directories(dossier);
  const std::string ancien = "TEAM   2 \nPOINT   \t0\t0\t1\t1\t0\t\t-10  20\t\t0.4\t\t\n";
  const std::string recent = "TEAM   3 \nPOINT   \t0\t0\t1\t1\t0\t\t30  40\t\t0.4\t\t\n";
  const TCopieRecuperation a = Abandonnee("ancienne", ancien, {"", 1710400000});
  const TCopieRecuperation b = Abandonnee("recente", recent, {(racine / "vol.rou").string(), 1710407100});
  // A copy whose editor still runs: its lock is held.
  const TCopieRecuperation vivante = CopieNommee(dossier, "vivante");
  ASSERT_TRUE(EcritCopie(vivante, "TEAM 1\n", {"", 1710409000}));
  QLockFile verrou(Q(vivante.Verrou));
  ASSERT_TRUE(verrou.tryLock(0));

  QRecuperation r(dossier);
  const std::string avant = TexteRoutine();
  // Recovering the older instead, then closing the box: everything is kept for later.
  bool vue = false;
  QuandOuvert<QDialogueRecuperation>([&](QDialogueRecuperation* d) {
    vue = true;
    EXPECT_EQ(d->windowTitle(), QStringLiteral("Récupérer le travail non enregistré"));
    EXPECT_EQ(d->findChildren<QRadioButton*>().size(), 6);
    EXPECT_TRUE(Choix(d, "recuperer-0")->isChecked());
    EXPECT_TRUE(Choix(d, "plustard-1")->isChecked());
    QTest::mouseClick(Choix(d, "recuperer-1"), Qt::LeftButton, {}, QPoint(6, Choix(d, "recuperer-1")->height() / 2));
    EXPECT_TRUE(Choix(d, "recuperer-1")->isChecked());
    EXPECT_TRUE(Choix(d, "plustard-0")->isChecked());
    d->reject();
  });
  EXPECT_FALSE(r.Propose(*cadre, nullptr));
  EXPECT_TRUE(vue);
  for (const TCopieRecuperation& c : {a, b, vivante}) EXPECT_TRUE(fs::exists(c.Fiche)) << c.Fiche;
  EXPECT_EQ(TexteRoutine(), avant);
  EXPECT_FALSE(DocumentModifie());

  // The newest recovered, the other deleted.
  vue = false;
  QuandOuvert<QDialogueRecuperation>([&](QDialogueRecuperation* d) {
    vue = true;
    if (const char* capture = std::getenv("TRAJ_CAPTURE_RECUPERATION")) d->grab().save(QString::fromLocal8Bit(capture));
    QTest::mouseClick(Choix(d, "supprimer-1"), Qt::LeftButton, {}, QPoint(6, Choix(d, "supprimer-1")->height() / 2));
    QAbstractButton* valider = d->findChild<QDialogButtonBox*>()->buttons().value(0);
    ASSERT_NE(valider, nullptr);
    EXPECT_EQ(valider->text(), QStringLiteral("Valider"));
    QTest::mouseClick(valider, Qt::LeftButton);
  });
  EXPECT_TRUE(r.Propose(*cadre, nullptr));
  EXPECT_TRUE(vue);
  EXPECT_EQ(TexteRoutine(), recent);
  EXPECT_EQ(std::string(FichierRoutine), (racine / "vol.rou").string());
  EXPECT_TRUE(DocumentModifie());
  // The work is in this editor's copy before the old one goes.
  EXPECT_EQ(LitFichier(r.Copie().Routine.string()), recent);
  for (const TCopieRecuperation& c : {a, b}) {
    EXPECT_FALSE(fs::exists(c.Routine)) << c.Routine;
    EXPECT_FALSE(fs::exists(c.Fiche)) << c.Fiche;
    EXPECT_FALSE(fs::exists(c.Verrou)) << c.Verrou;
  }
  EXPECT_TRUE(fs::exists(vivante.Fiche));
  EXPECT_TRUE(Tenue(vivante));
}

}  // namespace
