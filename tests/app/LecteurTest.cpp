// The player window of the real application: its bars, its picture, its transport and its
// shape, on the virtual X server.
#include <gtest/gtest.h>

#include "Attente.h"
#include "app/App.h"
#include "demo/D3DDemo.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"
#include "gui/editeur/QFeuille.h"
#include "model/Document.h"
#include "platform/Donnees.h"
#include "platform/Horloge.h"
#include "support/Doubles.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "gui/editeur/QFenCadre2.h"
#include "Boites.h"
#include "gui/video/QBoiteVideo.h"
#include "gui/video/QExportVideo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QSpinBox>
#include <fstream>
#include <unistd.h>

#include <QAction>
#include <QImage>
#include <QLabel>
#include <QOpenGLFramebufferObject>
#include <QMenuBar>
#include <QSet>
#include <QSettings>
#include <QTest>
#include <QToolBar>

#include <memory>

namespace {

class LecteurTest : public ::testing::Test {
protected:
  void SetUp() override {
    ReinitialiseDocument();
    // The scene runs on the test's clock, which moves only when a test moves it.
    SetHorloge(&horloge);
    Demarre();
  }
  // The application started, up to the first scene drawn.
  void Demarre() {
    app = std::make_unique<TApp>();
    app->Demarre();
    lecteur = app->Lecteur();
    // The first paint makes the one-kite scene, and the idle loop draws it.
    ASSERT_TRUE(AttendQue([&] { return Globals.blDemoOK == 1 && Texte(TZoneLecteur::T) == "T = 0"; }))
        << "the player never drew its first scene";
  }
  void TearDown() override {
    app.reset();
    SetHorloge(nullptr);
    ReinitialiseDocument();
  }
  std::string Texte(TZoneLecteur zone) { return lecteur->Zone(zone)->text().toStdString(); }
  int Temps() { return std::stoi(Texte(TZoneLecteur::T).substr(4)); }

  THorlogeTest horloge;
  std::unique_ptr<TApp> app;
  QFenCadre* lecteur = nullptr;
};

int Ecart(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

TEST_F(LecteurTest, StartsPausedOnOneKiteOverTheCloudsWithItsBarsFilled) {
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Lecture avant");
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 1");
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 80");
  EXPECT_EQ(Texte(TZoneLecteur::Debut), "0");
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.pD3DDemo->nbCV, 1);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);
  EXPECT_TRUE(lecteur->Action(CM_TEAM1)->isChecked());

  // The menu's three pop-ups, and nineteen buttons, each with its picture.
  const auto menus = lecteur->menuBar()->actions();
  ASSERT_EQ(menus.size(), 3);
  EXPECT_EQ(menus[0]->text(), QStringLiteral("&Reglage Lecture"));
  EXPECT_EQ(menus[1]->text(), QStringLiteral("&Scène"));
  EXPECT_EQ(menus[2]->text(), QStringLiteral("&Options"));
  int boutons = 0;
  for (QAction* a : lecteur->findChild<QToolBar*>()->actions())
    if (!a->icon().isNull()) {
      ++boutons;
      EXPECT_FALSE(a->icon().pixmap(20, 20).isNull()) << a->text().toStdString();
    }
  EXPECT_EQ(boutons, 19);

  // The picture: the clouds stretched over the view, and one kite standing on the ground
  // line at the middle, where its model file puts it.
  const QImage image = lecteur->Vue()->grabFramebuffer().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(image.size(), lecteur->Vue()->size() * lecteur->Vue()->devicePixelRatio());
  QImage nuages(QString::fromStdString(CheminDonnee("Nuages.bmp")));
  ASSERT_FALSE(nuages.isNull());
  nuages = nuages.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
  QSet<QRgb> couleurs;
  QRect kite;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      couleurs.insert(image.pixel(x, y));
      if (Ecart(image.pixel(x, y), nuages.pixel(x, y)) > 60) kite |= QRect(x, y, 1, 1);
    }
  EXPECT_GT(couleurs.size(), 200);
  ASSERT_FALSE(kite.isEmpty());
  EXPECT_NEAR(kite.center().x(), image.width() / 2, image.width() / 20);
  EXPECT_GT(kite.top(), image.height() * 3 / 4);
  EXPECT_LT(kite.width(), image.width() / 6);
}

// The time shown follows the scene's clock to the hundredth, however late the frames come.
TEST_F(LecteurTest, PlayAdvancesTheTimeAndPauseHoldsIt) {
  lecteur->Action(CM_LECTURE)->trigger();
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Lecture avant");
  horloge.Ms += 300;
  ASSERT_TRUE(AttendQue([&] { return Temps() == 30; })) << Texte(TZoneLecteur::T);

  lecteur->Action(CM_PAUSE)->trigger();
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Pause Lecture");
  horloge.Ms += 5000;
  // A turn of the camera draws a frame of the paused scene at the clock's new time.
  const long long images = lecteur->Cadence().Images();
  lecteur->Action(CM_ROTATION_GAUCHE)->trigger();
  ASSERT_TRUE(AttendQue([&] {
    return lecteur->Cadence().Images() > images && !lecteur->Cadre().Client().ImageAttendue();
  }));
  EXPECT_EQ(Temps(), 30);

  lecteur->Action(CM_PLUS_RAPIDE)->trigger();
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 1.2");
}

// The keys typed in the view as a video player's: space plays and pauses by turns, the
// arrows step and size the step, Home goes back to the start. Sent to the widget itself: with
// no window manager no window is ever active, so none has the keyboard's focus.
TEST_F(LecteurTest, KeysOfTheViewDrivePlaybackAndNotThoseOfTheEditor) {
  QVue3D* vue = lecteur->Vue();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  QTest::keyClick(vue, Qt::Key_Space);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_AVANT);
  QTest::keyClick(vue, Qt::Key_Space);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Pause Lecture");
  QTest::keyClick(vue, Qt::Key_Right);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Pas à Pas Avant");
  QTest::keyClick(vue, Qt::Key_Up);  // after a step, the step grows
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 160");
  QTest::keyClick(vue, Qt::Key_Left);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Pas à Pas Arrière");
  QTest::keyClick(vue, Qt::Key_Down);
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 80");
  QTest::keyClick(vue, Qt::Key_Home);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Retour au début");
  QTest::keyClick(vue, Qt::Key_Space);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Lecture avant");
  // A space held down repeats: it would play and pause by turns.
  QTest::keyPress(vue, Qt::Key_Space);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);
  QKeyEvent repetee(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  QCoreApplication::sendEvent(vue, &repetee);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);

  // The same keys in the editor's sheet leave the player alone.
  QWidget* feuille = app->Editeur()->Feuille();
  for (Qt::Key k : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Up, Qt::Key_Home}) QTest::keyClick(feuille, k);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 80");
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Pause Lecture");
}

TEST_F(LecteurTest, FrameGrowsTallerWhenDraggedWider) {
  const int hauteur = lecteur->height();
  lecteur->resize(600, lecteur->height());
  ASSERT_TRUE(AttendQue([&] { return lecteur->Vue()->width() == 600 && lecteur->Vue()->height() == 300; }))
      << lecteur->Vue()->width() << "x" << lecteur->Vue()->height();
  EXPECT_EQ(lecteur->height(), hauteur + 100);
  // The scene goes on, drawn at the new size.
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  const QSize attendue = QSize(600, 300) * lecteur->devicePixelRatio();
  EXPECT_TRUE(AttendQue([&] {
    const auto* image = lecteur->Vue()->Rendu().ImageCourante();
    return image && image->size() == attendue;
  }));
}

TEST_F(LecteurTest, MinimisedPlayerStopsDrawingAndRestoredDrawsAgain) {
  lecteur->showMinimized();
  ASSERT_TRUE(AttendQue([&] { return Globals.blActif == 0; }));
  EXPECT_EQ(Globals.blDemoOK, 1);  // the scene stays
  lecteur->Action(CM_LECTURE)->trigger();
  EXPECT_FALSE(lecteur->Cadre().Client().ImageAttendue()) << "playing, minimised";
  const long long images = lecteur->Cadence().Images();
  lecteur->showNormal();
  ASSERT_TRUE(AttendQue([&] { return Globals.blActif == 1; }));
  EXPECT_TRUE(AttendQue([&] { return lecteur->Cadence().Images() > images; }));
}

TEST_F(LecteurTest, ChoosingATeamRebuildsTheSceneWithItsModels) {
  lecteur->Action(CM_TEAM3)->trigger();
  EXPECT_TRUE(lecteur->Action(CM_TEAM3)->isChecked());
  EXPECT_FALSE(lecteur->Action(CM_TEAM1)->isChecked());
  EXPECT_EQ(Team, 3);
}

}  // namespace

namespace {
// The 3D picture's switches: ticked in the menu, given to the scene, and found again by the
// next run; settings that make no sense give the defaults.
TEST_F(LecteurTest, SceneSwitchesReachTheSceneAndAreRememberedByTheNextRun) {
  QSettings().remove(QStringLiteral("scene"));
  for (unsigned id : {CM_TRAINES, CM_SOL, CM_FENETRE, CM_CAMERA_JUGE}) lecteur->Action(id)->trigger();
  const TOptionsScene attendu{TRAINES_DEFAUT, false, true, true, TCamera::Juge, true};
  auto verifie = [&](const char* quand) {
    for (unsigned id : {CM_TRAINES, CM_SOL, CM_FENETRE, CM_CAMERA_JUGE})
      EXPECT_TRUE(lecteur->Action(id)->isChecked()) << quand << " " << id;
    for (unsigned id : {CM_LIGNES, CM_CAMERA_PUBLIC, CM_CAMERA_PILOTES})
      EXPECT_FALSE(lecteur->Action(id)->isChecked()) << quand << " " << id;
    ASSERT_NE(Globals.pD3DDemo, nullptr);
    EXPECT_TRUE(Globals.pD3DDemo->Options == attendu) << quand;
  };
  verifie("au choix");

  app.reset();
  ReinitialiseDocument();
  Demarre();
  verifie("au lancement suivant");

  // The camera is one of three, never two at once.
  lecteur->Action(CM_CAMERA_PILOTES)->trigger();
  EXPECT_FALSE(lecteur->Action(CM_CAMERA_JUGE)->isChecked());
  EXPECT_TRUE(Globals.pD3DDemo->Options.Camera == TCamera::Pilotes);

  app.reset();
  {
    QSettings s;
    s.setValue(QStringLiteral("scene/traines"), QStringLiteral("peut-être"));
    s.setValue(QStringLiteral("scene/dureeTraines"), -7);
    s.setValue(QStringLiteral("scene/camera"), 12);
    s.setValue(QStringLiteral("scene/sol"), QStringList{QStringLiteral("x"), QStringLiteral("y")});
    s.setValue(QStringLiteral("scene/fenetre"), 2);
    s.setValue(QStringLiteral("scene/lignes"), QStringLiteral("oui"));
  }
  ReinitialiseDocument();
  Demarre();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_TRUE(Globals.pD3DDemo->Options == TOptionsScene{.Securite = true});
  EXPECT_EQ(app->Lecteur()->Cadre().Client().GetDureeTraines(), TRAINES_DEFAUT);
  EXPECT_TRUE(lecteur->Action(CM_CAMERA_PUBLIC)->isChecked());
  QSettings().remove(QStringLiteral("scene"));
}

// "Exporter une vidéo...": the box starts from the "Temps Début" and runs to the end; what it
// is given is made in the background while the player goes on.
TEST_F(LecteurTest, ExporterUneVideoDepuisLeTempsDebut) {
  // The 2-second routine of the films' tests, without its music, as the editor opens it.
  const QString routine = QDir::temp().filePath(QStringLiteral("trajectoires-lecteur-%1.rou").arg(getpid()));
  {
    std::ifstream source(TRAJ_TEST_DATA "/video/deux_secondes.rou");
    std::string ligne, texte;
    while (std::getline(source, ligne))
      if (ligne.rfind("MUSIQUE", 0) != 0) texte += ligne + "\n";
    std::ofstream(routine.toStdString()) << texte;
  }
  ASSERT_TRUE(LitRoutine(app->Editeur()->Cadre(), routine.toStdString()));
  QFile::remove(routine);
  TFenDessin::Demo();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  QAction* action = lecteur->Action(CM_EXPORTER_VIDEO);
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), QString::fromUtf8("&Exporter une vidéo..."));
  lecteur->Cadre().Client().tDebut = 20;
  const int fin = static_cast<int>(Globals.pD3DDemo->tFin);
  const QString film = QDir::temp().filePath(QStringLiteral("trajectoires-lecteur-%1.mp4").arg(getpid()));
  QFile::remove(film);
  lecteur->Export()->SetCompagnon(QStringLiteral(TRAJ_CLI));
  TParametresFilm vu;
  Pilote<QBoiteVideo>([&](QBoiteVideo* b) {
    vu = b->Parametres();
    b->findChild<QSpinBox*>(QStringLiteral("largeur"))->setValue(64);
    b->findChild<QSpinBox*>(QStringLiteral("hauteur"))->setValue(36);
    b->findChild<QSpinBox*>(QStringLiteral("a"))->setValue(40);
    b->findChild<QLineEdit*>(QStringLiteral("fichier"))->setText(film);
    Bouton(b, QDialogButtonBox::Ok);
  });
  action->trigger();
  EXPECT_EQ(vu.De, 20);
  EXPECT_EQ(vu.A, fin);
  EXPECT_EQ(vu.Largeur, 1280);
  EXPECT_EQ(vu.Fps, 30);
  EXPECT_EQ(vu.Equipe, 1);
  ASSERT_TRUE(lecteur->Export()->EnCours());
  // A second export waits for the first: a box says so.
  QString dit;
  QuandOuvert<QMessageBox>([&](QMessageBox* m) {
    dit = m->text();
    m->accept();
  });
  action->trigger();
  EXPECT_EQ(dit, QString::fromUtf8("Un film est déjà en cours d'export."));
  ASSERT_TRUE(AttendQue([&] { return !lecteur->Export()->EnCours(); }));
  EXPECT_TRUE(QFileInfo(film).size() > 0);
  QFile::remove(film);
}
}  // namespace
