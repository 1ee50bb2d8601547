// The timeline's dock in the editor: under the sheet, shown and hidden from the Options menu
// with its height kept.
#include <gtest/gtest.h>

#include "Attente.h"
#include "app/App.h"
#include "frise/Battements.h"
#include "gui/editeur/QBande.h"
#include "gui/editeur/QFenCadre2.h"
#include "gui/frise/DockFrise.h"
#include "gui/frise/QFrise.h"
#include "model/Document.h"
#include "platform/Horloge.h"
#include "support/Doubles.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

#include "demo/D3DDemo.h"
#include "demo/player/Commandes.h"
#include "gui/lecteur/QFenCadre.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "frise/Tempo.h"
#include "model/Elt.h"
#include "platform/Son.h"
#include "session/Modification.h"

namespace {

class FriseTest : public ::testing::Test {
protected:
  void SetUp() override {
    ReinitialiseDocument();
    SetHorloge(&horloge);
    QSettings().remove(QStringLiteral("frise"));
    Demarre();
  }
  void TearDown() override {
    app.reset();
    SetSon(nullptr);
    Alignement = TAlignement();
    SetHorloge(nullptr);
    ReinitialiseDocument();
  }
  // A new application, as a new run of the program makes it.
  void Demarre() {
    if (app) {
      app.reset();
      ReinitialiseDocument();
    }
    app = std::make_unique<TApp>();
    app->Demarre();
    ASSERT_TRUE(AttendQue([&] { return Globals.blDemoOK == 1 && app->Editeur()->isVisible(); }));
    frise = app->Editeur()->Frise();
    ASSERT_NE(frise, nullptr);
  }
  QDockWidget* Dock() const { return app->Editeur()->findChild<QDockWidget*>(QStringLiteral("dockFrise")); }
  QAction* Commande(unsigned id) const {
    return app->Editeur()->findChild<QAction*>(QStringLiteral("commande%1").arg(id));
  }
  // The routine of three sheets and three kites, its music opening as if a sound card played
  // it; the dock shown and fitted to it.
  void OuvreTroisFeuilles() {
    ASSERT_TRUE(dossier.isValid());
    const QDir donnees(QStringLiteral(TRAJ_TEST_DATA));
    for (const char* f : {"commandes/frise_trois_feuilles.rou", "commandes/vague.fig"})
      ASSERT_TRUE(QFile::copy(donnees.filePath(QString::fromLatin1(f)), dossier.filePath(QFileInfo(f).fileName())));
    ASSERT_TRUE(QFile::copy(donnees.filePath(QStringLiteral("keys/court.wav")), dossier.filePath(QStringLiteral("vent.wav"))));
    SetSon(&son);
    app->Ouvre(dossier.filePath(QStringLiteral("frise_trois_feuilles.rou")).toStdString());
    ASSERT_EQ(Reperes.size(), 2u);
    // Its flight in the player, as the editor's "Démo" makes it.
    app->Editeur()->Cadre().pFenDesActive->Demo();
    ASSERT_TRUE(AttendQue([&] { return Globals.blDemoOK == 1; }));
    Commande(CM_FRISE)->trigger();
    ASSERT_TRUE(AttendQue([&] { return frise->isVisible() && frise->width() > 300 && frise->height() > 150; }));
    frise->Ajuste();
    ASSERT_EQ(frise->Frise().Pistes.size(), 3u);
  }
  // The pixel of a time on the ruler, or in kite k's lane.
  QPoint Regle(double t) const { return {static_cast<int>(std::lround(frise->Vue().X(t))), 5}; }
  QPoint Piste(int k, double t) const {
    const TDisposition d = Dispose(frise->width(), frise->height(), 3);
    return {static_cast<int>(std::lround(frise->Vue().X(t))), d.Piste(k).top + d.HauteurPiste / 2};
  }
  // Straight to the widget: with no window manager, the pointer's warps come back late.
  void Souris(QEvent::Type type, const QPoint& p) {
    const Qt::MouseButtons tenus = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton bouton = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent e(type, p, frise->mapToGlobal(p), bouton, type == QEvent::MouseMove && !glisse ? Qt::NoButton : tenus,
                  Qt::NoModifier);
    QApplication::sendEvent(frise, &e);
  }
  void Glisse(const QPoint& de, const QPoint& a) {
    glisse = true;
    Souris(QEvent::MouseButtonPress, de);
    Souris(QEvent::MouseMove, (de + a) / 2);
    Souris(QEvent::MouseMove, a);
    Souris(QEvent::MouseButtonRelease, a);
    glisse = false;
  }
  void Clic(const QPoint& p) {
    Souris(QEvent::MouseButtonPress, p);
    Souris(QEvent::MouseButtonRelease, p);
  }
  // The player's time, and the pixel's worth of time on the dock.
  static double Lecteur() { return Globals.pD3DDemo->tCourant; }
  double Pixel() const { return 1 / frise->Vue().PixelsParCentieme; }

  // Every music opens, plays and stops.
  class TSonJoue : public TSon {
  public:
    int Ouvrir(const std::string&, const std::string&) override { return 0; }
    int Jouer(const std::string&, int) override { return 0; }
    int Arreter(const std::string&) override { return 0; }
    int Fermer(const std::string&) override { return 0; }
  } son;
  QTemporaryDir dossier;
  bool glisse = false;
  THorlogeTest horloge;
  std::unique_ptr<TApp> app;
  QFrise* frise = nullptr;
};

TEST_F(FriseTest, ADockUnderTheSheetShownFromTheOptionsMenuItsHeightKept) {
  QDockWidget* dock = Dock();
  ASSERT_NE(dock, nullptr);
  QAction* montre = Commande(CM_FRISE);
  QAction* aligne = Commande(CM_ALIGNER_SUR_TEMPS);
  ASSERT_NE(montre, nullptr);
  ASSERT_NE(aligne, nullptr);
  // Hidden at a first start, as the sheet always was; shown from the menu.
  EXPECT_FALSE(dock->isVisible());
  EXPECT_FALSE(montre->isChecked());
  QFenCadre2* editeur = app->Editeur();
  ASSERT_TRUE(AttendQue([&] { return editeur->Bande()->isVisible(); }));
  const int hauteurBande = editeur->Bande()->height(), hauteurFenetre = editeur->height();
  montre->trigger();
  ASSERT_TRUE(AttendQue([&] { return frise->isVisible() && frise->height() > 0; }));
  // The window grows by the dock: the sheet's bars keep their room (a layout's whole pixels may
  // give them one or two more).
  ASSERT_TRUE(AttendQue([&] { return editeur->height() > hauteurFenetre && editeur->Bande()->height() >= hauteurBande; }));
  EXPECT_EQ(app->Editeur()->dockWidgetArea(dock), Qt::BottomDockWidgetArea);
  EXPECT_TRUE(montre->isChecked());
  aligne->trigger();
  EXPECT_TRUE(Alignement.Actif);
  aligne->trigger();
  EXPECT_FALSE(Alignement.Actif);

  app->Editeur()->resizeDocks({dock}, {260}, Qt::Vertical);
  ASSERT_TRUE(AttendQue([&] { return QSettings().value(QStringLiteral("frise/hauteur")).toInt() == dock->height(); }));
  const int hauteur = dock->height();
  montre->trigger();
  EXPECT_FALSE(dock->isVisible());
  EXPECT_FALSE(QSettings().value(QStringLiteral("frise/visible")).toBool());

  // A new window takes both back; then shown again, at the height it had.
  Demarre();
  EXPECT_FALSE(Dock()->isVisible());
  Commande(CM_FRISE)->trigger();
  ASSERT_TRUE(AttendQue([&] { return Dock()->isVisible() && Dock()->height() > 0; }));
  EXPECT_NEAR(Dock()->height(), hauteur, 2);
}

TEST_F(FriseTest, SettingsHoldingNonsenseGiveTheDefaults) {
  QSettings().setValue(QStringLiteral("frise/hauteur"), QStringLiteral("beaucoup"));
  QSettings().setValue(QStringLiteral("frise/visible"), QStringLiteral("peut-être"));
  Demarre();
  EXPECT_FALSE(Dock()->isVisible());
  Commande(CM_FRISE)->trigger();
  ASSERT_TRUE(AttendQue([&] { return Dock()->isVisible() && Dock()->height() > 0; }));
  EXPECT_GE(Dock()->height(), 60);
}

TEST_F(FriseTest, ABlockClickedIsSelectedOnItsSheetAndTheRulerMovesThePlayer) {
  OuvreTroisFeuilles();
  ASSERT_EQ(app->Editeur()->Cadre().pFenDesActive->Num, 1);
  // Kite 0's pose, 950 to 1184, on sheet 3.
  Clic(Piste(0, 1100));
  EXPECT_EQ(app->Editeur()->Cadre().pFenDesActive->Num, 3);
  EXPECT_EQ(TFenDessin::pEltCourant, frise->Frise().Pistes[0].Blocs[9].Elt);

  ASSERT_EQ(Globals.blDemoOK, 1);
  Clic(Regle(600));
  EXPECT_NEAR(Lecteur(), 600, Pixel());
  Glisse(Regle(100), Regle(300));
  EXPECT_NEAR(Lecteur(), 300, Pixel());
  // Ctrl+wheel zooms around the pointer, which keeps its time; a double click on the ruler fits
  // the whole routine again.
  const TVueTemps ajustee = frise->Vue();
  const QPoint point = Regle(1000);
  QWheelEvent roue(point, frise->mapToGlobal(point), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::ControlModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(frise, &roue);
  EXPECT_DOUBLE_EQ(frise->Vue().PixelsParCentieme, 2 * ajustee.PixelsParCentieme);
  EXPECT_NEAR(frise->Vue().T(point.x()), ajustee.T(point.x()), 1e-6);
  QMouseEvent double_(QEvent::MouseButtonDblClick, point, frise->mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
  QApplication::sendEvent(frise, &double_);
  EXPECT_DOUBLE_EQ(frise->Vue().PixelsParCentieme, ajustee.PixelsParCentieme);
}

TEST_F(FriseTest, MAddsAMarkAtThePlayheadAndTInRhythmWhileTheMusicPlaysSetsTheTempo) {
  OuvreTroisFeuilles();
  Clic(Regle(300));
  const double tete = Lecteur();
  MarqueIntact();
  QTest::keyClick(frise, Qt::Key_M);
  ASSERT_EQ(Reperes.size(), 3u);
  EXPECT_FLOAT_EQ(Reperes[2].T, static_cast<float>(std::round(tete)));
  EXPECT_EQ(Reperes[2].Nom, "Repère 3");
  EXPECT_TRUE(DocumentModifie());
  // A mark's flag dragged along the ruler; snapped to the beats when asked.
  Alignement.Actif = true;
  Glisse(Regle(400), Regle(697));
  EXPECT_FLOAT_EQ(Reperes[0].T, 700.0f);
  Alignement.Actif = false;

  // Paused, T only says what it wants.
  const TTempo avant = Tempo;
  QTest::keyClick(frise, Qt::Key_T);
  EXPECT_EQ(Tempo, avant);
  // Played from the playhead, four taps half a second apart give 120 beats per minute.
  app->Lecteur()->Action(CM_LECTURE)->trigger();
  ASSERT_TRUE(TD3DDemo::MusiqueEnCours);
  for (int i = 1; i <= 4; ++i) {
    horloge.Ms += 500;
    ASSERT_TRUE(AttendQue([&] { return Lecteur() >= tete + 50 * i - 0.5; })) << Lecteur();
    QTest::keyClick(frise, Qt::Key_T);
  }
  EXPECT_NEAR(Tempo.Bpm, 120, 0.01);
  // The grid goes back from the first tap to its earliest beat after 0.
  EXPECT_NEAR(Tempo.T0, std::fmod(tete + 50, 50), 1);
}

TEST_F(FriseTest, ABlocksEndDraggedIsItsTimeTypedSnappedAndUndoneAtOnce) {
  OuvreTroisFeuilles();
  Clic(Piste(1, 1500));  // kite 1's last segment, 950 to 2000, free in time, on sheet 3
  const TElt* segment = frise->Frise().Pistes[1].Blocs[3].Elt;
  ASSERT_EQ(TFenDessin::pEltCourant, segment);
  // The pointer tells the end that a drag takes.
  glisse = false;
  Souris(QEvent::MouseMove, Piste(1, 2000));
  EXPECT_EQ(frise->cursor().shape(), Qt::SizeHorCursor);
  Souris(QEvent::MouseMove, Piste(1, 1500));
  EXPECT_NE(frise->cursor().shape(), Qt::SizeHorCursor);

  MarqueIntact();
  Glisse(Piste(1, 2000), Piste(1, 1800));
  EXPECT_NEAR(segment->t2.GetParam(), 1800, Pixel());
  EXPECT_TRUE(DocumentModifie());
  EXPECT_NEAR(frise->Frise().Pistes[1].Blocs[3].Fin, segment->t2.GetParam(), 0.01);
  // With "Aligner sur les temps", within 5 pixels of the beat at 1950.
  Alignement.Actif = true;
  Glisse(Piste(1, segment->t2.GetParam()), Piste(1, 1950 - 2 * Pixel()));
  EXPECT_FLOAT_EQ(segment->t2.GetParam(), 1950.0f);
  // One undo takes back the last drag whole.
  app->Editeur()->Action(333)->trigger();
  EXPECT_NEAR(static_cast<TElt*>(TabLElt[1].GetPt(3))->t2.GetParam(), 1800, Pixel());

  // An end a synchronisation sets stays: the press selects, the drag changes nothing.
  frise->DocumentChange();
  const TElt* synchronise = frise->Frise().Pistes[1].Blocs[1].Elt;  // 0 to 300, on sheet 1
  Glisse(Piste(1, 300 - Pixel()), Piste(1, 250));
  EXPECT_EQ(TFenDessin::pEltCourant, synchronise);
  EXPECT_FLOAT_EQ(synchronise->t2.GetParam(), 300.0f);
}

}  // namespace
