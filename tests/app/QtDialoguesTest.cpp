#include <gtest/gtest.h>

#include "Attente.h"
#include "Boites.h"
#include "editor/boites/BDColler.h"
#include "editor/boites/BDFeuille.h"
#include "editor/boites/BDInsererFic.h"
#include "gui/qt/QtDialogues.h"
#include "gui/editeur/QBoiteColler.h"
#include "gui/editeur/QBoiteFeuille.h"
#include "gui/editeur/QBoiteInsererFic.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

namespace {

struct BoiteVue {
  QString Titre, Texte;
  QMessageBox::Icon Icone = QMessageBox::NoIcon;
  QMessageBox::StandardButtons Boutons;
  QMessageBox::StandardButton ParDefaut = QMessageBox::NoButton;
};

// Shows a box through TQtDialogues and presses `bouton` in it.
TReponse Repond(TQtDialogues& dialogues, TBoutons boutons, QMessageBox::StandardButton bouton,
                BoiteVue* vue = nullptr, TIcone icone = TIcone::Aucune) {
  QuandOuvert<QMessageBox>([=](QMessageBox* boite) {
    if (vue)
      *vue = {boite->windowTitle(), boite->text(), boite->icon(), boite->standardButtons(),
              boite->standardButton(boite->defaultButton())};
    boite->button(bouton)->click();
  });
  return dialogues.MessageBox("Enregistrer la routine ?", "Fichier", boutons, icone);
}

TEST(QtDialogues, EachButtonOfEachBoxGivesItsAnswer) {
  TQtDialogues dialogues;
  EXPECT_EQ(Repond(dialogues, TBoutons::OK, QMessageBox::Ok), TReponse::OK);
  EXPECT_EQ(Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Ok), TReponse::OK);
  EXPECT_EQ(Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Cancel), TReponse::Annuler);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNon, QMessageBox::Yes), TReponse::Oui);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNon, QMessageBox::No), TReponse::Non);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::Yes), TReponse::Oui);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::No), TReponse::Non);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::Cancel), TReponse::Annuler);
  EXPECT_EQ(Repond(dialogues, TBoutons::EnregistrerAbandonnerAnnuler, QMessageBox::Save), TReponse::Oui);
  EXPECT_EQ(Repond(dialogues, TBoutons::EnregistrerAbandonnerAnnuler, QMessageBox::Discard), TReponse::Non);
  EXPECT_EQ(Repond(dialogues, TBoutons::EnregistrerAbandonnerAnnuler, QMessageBox::Cancel), TReponse::Annuler);
}

// A file dialog starts, in a new run, in the folder last used for files of its kind; the
// dialog of another kind, never used, starts in the current folder.
TEST(QtDialogues, AFileDialogOpensInTheFolderLastUsedForItsKindAcrossRuns) {
  QTemporaryDir dossier;
  ASSERT_TRUE(dossier.isValid());
  ASSERT_TRUE(QDir(dossier.path()).mkpath(QStringLiteral("routines")));
  QFile(dossier.filePath(QStringLiteral("routines/r.rou"))).open(QIODevice::WriteOnly);
  const QString routines = QDir(dossier.filePath(QStringLiteral("routines"))).canonicalPath();
  QSettings().remove(QStringLiteral("dossiers"));

  TQtDialogues dialogues;
  TDialogueFichier routine{"Ouvrir Fichier Routine", "fichiers routine ROU | *.rou", "rou", {}};
  QuandOuvert<QFileDialog>([&](QFileDialog* d) {
    d->setDirectory(routines);
    d->selectFile(QStringLiteral("r.rou"));
    static_cast<QDialog*>(d)->accept();  // the dialog's own accept, as its button calls it
  });
  ASSERT_EQ(dialogues.FichierAOuvrir(routine), (routines + QStringLiteral("/r.rou")).toStdString());

  // The next run: new dialogs, which know nothing of the last file chosen.
  QString ouvertDans, musiqueDans;
  QuandOuvert<QFileDialog>([&](QFileDialog* d) {
    ouvertDans = d->directory().canonicalPath();
    d->reject();
  });
  TDialogueFichier routineNeuve{"Ouvrir Fichier Routine", "fichiers routine ROU | *.rou", "rou", {}};
  EXPECT_FALSE(dialogues.FichierAOuvrir(routineNeuve));
  EXPECT_EQ(ouvertDans, routines);
  QuandOuvert<QFileDialog>([&](QFileDialog* d) {
    musiqueDans = d->directory().canonicalPath();
    d->reject();
  });
  TDialogueFichier musique{"Ouvrir Fichier Musique", "fichiers musique WAV | *.wav", "wav", {}};
  EXPECT_FALSE(dialogues.FichierAOuvrir(musique));
  EXPECT_EQ(musiqueDans, QDir::current().canonicalPath());
}

TEST(QtDialogues, TheBoxShowsCaptionTextIconAndOnlyTheAskedButtons) {
  TQtDialogues dialogues;
  BoiteVue vue;
  Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Cancel, &vue, TIcone::Question);
  EXPECT_EQ(vue.Titre, QStringLiteral("Fichier"));
  EXPECT_EQ(vue.Texte, QStringLiteral("Enregistrer la routine ?"));
  EXPECT_EQ(vue.Icone, QMessageBox::Question);
  EXPECT_EQ(vue.Boutons, QMessageBox::Ok | QMessageBox::Cancel);
  EXPECT_EQ(vue.ParDefaut, QMessageBox::Ok);
}

TEST(QtDialogues, InputGivesTheTypedTextOrNothingOnCancel) {
  TQtDialogues dialogues;
  QString initiale;
  QuandOuvert<QInputDialog>([&](QInputDialog* d) {
    initiale = d->textValue();
    d->setTextValue(QStringLiteral("Vitesse élevée"));
    static_cast<QDialog*>(d)->accept();  // the dialog's own accept, as its button calls it
  });
  EXPECT_EQ(dialogues.Saisie("Figure", "Nom :", "Boucle"), std::optional<std::string>("Vitesse élevée"));
  EXPECT_EQ(initiale, QStringLiteral("Boucle"));

  QuandOuvert<QInputDialog>([](QInputDialog* d) { d->reject(); });
  EXPECT_EQ(dialogues.Saisie("Figure", "Nom :", "Boucle"), std::nullopt);
}

TEST(FiltreQt, TwoColumnFiltersBecomeQtFilters) {
  EXPECT_EQ(FiltreQt("Routines (*.rou)|*.rou|Tous les fichiers (*.*)|*.*|"),
            QStringLiteral("Routines (*.rou);;Tous les fichiers (*)"));
  EXPECT_EQ(FiltreQt("Musique|*.wav;*.mp3"), QStringLiteral("Musique (*.wav *.mp3)"));
  EXPECT_EQ(FiltreQt("Modèles 3D (*.x *.3ds)"), QStringLiteral("Modèles 3D (*.x *.3ds)"));
  EXPECT_EQ(FiltreQt("Vide|"), QString());
}


TEST(BoitesEditeur, PasteTakesTheClickedModeAndTypedShiftOnOKAndNothingOnCancel) {
  TQtDialogues dialogues;
  ParamTBDColler p;
  p.Decalage = 40;
  TBD_Coller bd(&p);
  bd.SetupWindow();
  bool parallelesMontre = false;
  QString decalageMontre;
  Pilote<QBoiteColler>([&](QBoiteColler* b) {
    parallelesMontre = Controle<QRadioButton>(b, 552)->isChecked();
    decalageMontre = Controle<QLineEdit>(b, 556)->text();
    Clique(Controle<QRadioButton>(b, 554));
    Tape(Controle<QLineEdit>(b, 556), "-25");
    Bouton(b, QDialogButtonBox::Ok);
  });
  EXPECT_TRUE(dialogues.Execute(bd));
  EXPECT_TRUE(parallelesMontre);
  EXPECT_EQ(decalageMontre, QStringLiteral("40"));
  EXPECT_EQ(p.Mode, 554);
  EXPECT_EQ(p.Decalage, -25);

  bd.SetupWindow();
  Pilote<QBoiteColler>([&](QBoiteColler* b) {
    Clique(Controle<QRadioButton>(b, 551));
    Tape(Controle<QLineEdit>(b, 556), "7");
    Bouton(b, QDialogButtonBox::Cancel);
  });
  EXPECT_FALSE(dialogues.Execute(bd));
  EXPECT_EQ(p.Mode, 554);
  EXPECT_EQ(p.Decalage, -25);
}

TEST(BoitesEditeur, EnteringAnEditOfTheRangeChoosesTheRangeWhichOKKeeps) {
  TQtDialogues dialogues;
  ParamTBDFeuille p;
  p.Tout = true;
  p.Feuilles = false;
  TBD_Feuille bd(&p);
  bd.SetupWindow();
  bool toutAOuverture = false, feuillesApresEntree = false, toutApresEntree = true;
  Pilote<QBoiteFeuille>([&](QBoiteFeuille* b) {
    // No window manager activates the box, and an inactive one gets no focus events.
    b->activateWindow();
    ASSERT_TRUE(AttendQue([&] { return b->isActiveWindow(); }));
    QRadioButton* tout = Controle<QRadioButton>(b, 573);
    QRadioButton* feuilles = Controle<QRadioButton>(b, 574);
    QLineEdit* premiere = Controle<QLineEdit>(b, 570);
    toutAOuverture = tout->isChecked();
    QTest::mouseClick(premiere, Qt::LeftButton);
    feuillesApresEntree = feuilles->isChecked();
    toutApresEntree = tout->isChecked();
    Tape(premiere, "3");
    Tape(Controle<QLineEdit>(b, 571), "5");
    Bouton(b, QDialogButtonBox::Ok);
  });
  EXPECT_TRUE(dialogues.Execute(bd));
  EXPECT_TRUE(toutAOuverture);
  EXPECT_TRUE(feuillesApresEntree);
  EXPECT_FALSE(toutApresEntree);
  EXPECT_FALSE(p.Tout);
  EXPECT_TRUE(p.Feuilles);
  EXPECT_EQ(p.Premiere, 3);
  EXPECT_EQ(p.Derniere, 5);
}

TEST(BoitesEditeur, InsertionShowsOnlyTheDocumentsKitesAndStaysOpenOnARefusedOK) {
  TQtDialogues dialogues;
  SetDialogues(&dialogues);  // the box's refusals speak through it
  struct Remet {
    ~Remet() { SetDialogues(nullptr); }
  } remet;
  ParamTBDInsererFic p;
  p.NbCVFichier = 3;
  TBD_InsererFic bd(&p, 2);
  bd.SetupWindow();
  bool cv2Montre = false, cv3Montre = true, libelle3Montre = true, ouverteApresRefus = false;
  int xApresRefus = -1;
  QString message;
  Pilote<QBoiteInsererFic>([&](QBoiteInsererFic* b) {
    cv2Montre = Controle<QLineEdit>(b, 592)->isVisible();
    cv3Montre = Controle<QLineEdit>(b, 593)->isVisible();
    libelle3Montre = Controle<QLabel>(b, 603)->isVisible();
    Clique(Controle<QRadioButton>(b, 585));
    Tape(Controle<QLineEdit>(b, 582), "150");
    Tape(Controle<QLineEdit>(b, 591), "2");
    Tape(Controle<QLineEdit>(b, 592), "1");
    Tape(Controle<QLineEdit>(b, 584), "-100");
    Tape(Controle<QLineEdit>(b, 583), "101");
    QuandOuvert<QMessageBox>([&](QMessageBox* m) {
      message = m->text();
      m->button(QMessageBox::Ok)->click();
    });
    Bouton(b, QDialogButtonBox::Ok);
    ouverteApresRefus = b->isVisible();
    xApresRefus = p.DecalageX;
    Tape(Controle<QLineEdit>(b, 583), "100");
    Bouton(b, QDialogButtonBox::Ok);
  });
  EXPECT_TRUE(dialogues.Execute(bd));
  EXPECT_TRUE(cv2Montre);
  EXPECT_FALSE(cv3Montre);
  EXPECT_FALSE(libelle3Montre);
  EXPECT_EQ(message, QStringLiteral("Décalage en x hors limites !!!"));
  EXPECT_TRUE(ouverteApresRefus);
  EXPECT_EQ(xApresRefus, 0);
  EXPECT_EQ(p.DecalageX, 100);
  EXPECT_EQ(p.DecalageY, -100);
  EXPECT_FALSE(p.Conserver);
  EXPECT_TRUE(p.Decaler);
  EXPECT_EQ(p.Temps, 150);
  EXPECT_EQ(p.Correspondance[0], 2);
  EXPECT_EQ(p.Correspondance[1], 1);
}

}  // namespace
