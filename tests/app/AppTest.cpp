#include <gtest/gtest.h>

#include "Attente.h"
#include "demo/Demonstration.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"
#include "support/Doubles.h"
#include "app/App.h"
#include "editor/FenDessin.h"
#include "gui/editeur/QFeuille.h"
#include "gui/qt/Placement.h"
#include "model/Document.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

void PrintTo(const QRect& r, std::ostream* os) {
  *os << "(" << r.x() << ", " << r.y() << ") " << r.width() << "x" << r.height();
}

namespace {

class AppTest : public ::testing::Test {
protected:
  void SetUp() override {
    ReinitialiseDocument();
    // Each test starts as at a first run: no frame remembered.
    QSettings().remove(QStringLiteral("fenetres"));
    app = std::make_unique<TApp>();
    app->Demarre();
    ASSERT_TRUE(AttendQue([&] { return Exposee(app->Editeur()) && Exposee(app->Lecteur()); }))
        << "the windows never appeared on the X server";
  }
  void TearDown() override {
    SetDialogues(nullptr);
    app.reset();
    ReinitialiseDocument();
  }

  static bool Exposee(QWidget* w) { return w && w->windowHandle() && w->windowHandle()->isExposed(); }

  // The script replaces the application's own dialogs, which would wait for a real click.
  // An unexpected box is answered Cancel, so that it can never end the program.
  void Scripte() {
    dialogues.ParDefaut = TReponse::Annuler;
    SetDialogues(&dialogues);
  }

  std::unique_ptr<TApp> app;
  TDialoguesScriptes dialogues;
};

TEST_F(AppTest, TheEditorThenThePlayerAreShownWithTheirCaptionsAndFrames) {
  std::vector<QWidget*> visibles;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->isVisible()) visibles.push_back(w);
  ASSERT_EQ(visibles.size(), 2u);

  QFenCadre2* editeur = app->Editeur();
  QFenCadre* lecteur = app->Lecteur();
  // "[*]" is where Qt shows that the document holds unsaved changes; it has none yet.
  EXPECT_EQ(editeur->windowTitle(), QStringLiteral("Dessin Trajectoires[*]"));
  EXPECT_FALSE(editeur->isWindowModified());
  EXPECT_EQ(lecteur->windowTitle(), QStringLiteral("CV"));
  // The desktop finds the menu entry, and both windows show the program's own icon.
  EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("org.trajectoires.Trajectoires"));
  for (QWidget* w : {static_cast<QWidget*>(editeur), static_cast<QWidget*>(lecteur)})
    EXPECT_FALSE(w->windowIcon().pixmap(32, 32).isNull());

  // The rectangles are the frames', decorations included. Under xvfb-run there is no window
  // manager and so no decoration; under one, the frame is only known a moment after showing.
  AttendQue([&] { return editeur->frameGeometry() == QRect(20, 20, 600, 600); });
  EXPECT_EQ(editeur->frameGeometry(), QRect(20, 20, 600, 600));
  // The player is made 400 x 290 to the right of the editor, on the 1280 x 1024 screen, then
  // its height follows its width so that the 3D view stays twice as wide as high.
  AttendQue([&] { return lecteur->Vue()->height() * 2 == lecteur->Vue()->width(); });
  EXPECT_EQ(lecteur->frameGeometry().topLeft(), QPoint(620 + ECART_FENETRES, 20));
  EXPECT_FALSE(lecteur->frameGeometry().intersects(editeur->frameGeometry()));
  EXPECT_EQ(lecteur->frameGeometry().width(), 400);
  EXPECT_EQ(lecteur->Vue()->width(), 400);
  EXPECT_EQ(lecteur->Vue()->height(), 200);

  EXPECT_TRUE(editeur->statusBar()->isVisible());
  EXPECT_EQ(editeur->Cadre().nbFeuilles, 2) << "the view must set up the spare sheet";

  // The active sheet, the frame's width and half as high, draws its wind window.
  QFeuille* feuille = editeur->Feuille();
  AttendQue([&] { return feuille->height() == feuille->width() / 2; });
  EXPECT_EQ(feuille->width(), editeur->centralWidget()->width());
  const QImage image = feuille->grab().toImage();  // a paint, which also sets the scales
  const TPoint coin = feuille->Feuille()->LPtoDP(TPointf(-100, 0));
  EXPECT_EQ(image.pixelColor(coin.x + 20, coin.y), QColor(Qt::black)) << "the ground line";
  EXPECT_EQ(image.pixelColor(coin.x + 20, coin.y - 3), QColor(Qt::white)) << "the wind window";
}

TEST_F(AppTest, ClosingTheEditorAsksOnceAndCancelKeepsEverythingOpen) {
  Scripte();
  dialogues.Reponses = {TReponse::Annuler};
  EXPECT_FALSE(app->Editeur()->close());

  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "Fermeture Définitive ?");
  EXPECT_EQ(dialogues.Boites[0].Titre, "CV");
  EXPECT_EQ(dialogues.Boites[0].Boutons, TBoutons::OKAnnuler);
  EXPECT_EQ(dialogues.Boites[0].Icone, TIcone::Question);
  EXPECT_TRUE(app->Editeur()->isVisible());
  EXPECT_TRUE(app->Lecteur()->isVisible());
  EXPECT_EQ(dialogues.Bips, 0);
}

TEST_F(AppTest, ClosingTheEditorWithOkEndsTheEventLoopWithoutAskingThePlayer) {
  Scripte();
  dialogues.Reponses = {TReponse::OK};
  std::optional<bool> fermee;
  QTimer::singleShot(0, app->Editeur(), [&] { fermee = app->Editeur()->close(); });
  // Should the loop not end, the guard ends it with a code the test refuses.
  QTimer::singleShot(60000, qApp, [] { QCoreApplication::exit(99); });
  const int code = QApplication::exec();

  EXPECT_EQ(code, 0);
  ASSERT_TRUE(fermee.has_value());
  EXPECT_TRUE(*fermee);
  EXPECT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_FALSE(app->Editeur()->isVisible());
  // Quitting must not go through the player's close, which refuses with a beep.
  EXPECT_EQ(dialogues.Bips, 0);
  EXPECT_TRUE(app->Lecteur()->isVisible());
}

TEST_F(AppTest, TheWindowsFramesAreRememberedWhenTheApplicationEndsAndTakenAtTheNextStart) {
  Scripte();
  dialogues.Reponses = {TReponse::OK};
  const QRect lecteur(700, 650, 400, 230), editeur(40, 60, 500, 520);
  app->Lecteur()->setGeometry(lecteur);
  app->Editeur()->setGeometry(editeur);
  // The player's height then follows, to keep its view twice as wide as high.
  QVue3D* vue = app->Lecteur()->Vue();
  ASSERT_TRUE(AttendQue([&] {
    return app->Lecteur()->frameGeometry().topLeft() == lecteur.topLeft() && vue->height() * 2 == vue->width() &&
           app->Editeur()->frameGeometry() == editeur;
  }));
  const QRect cadreLecteur = app->Lecteur()->frameGeometry();
  ASSERT_EQ(cadreLecteur.width(), 400);
  // The editor closes first: the loop ends once it is hidden.
  QTimer::singleShot(0, app->Editeur(), [&] { app->Editeur()->close(); });
  QTimer::singleShot(60000, qApp, [] { QCoreApplication::exit(99); });
  ASSERT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(QSettings().value(QString::fromLatin1(CLE_EDITEUR)).toRect(), editeur);
  EXPECT_EQ(QSettings().value(QString::fromLatin1(CLE_LECTEUR)).toRect(), cadreLecteur);

  SetDialogues(nullptr);
  app.reset();
  ReinitialiseDocument();
  app = std::make_unique<TApp>();
  app->Demarre();
  EXPECT_TRUE(AttendQue([&] {
    return app->Editeur()->frameGeometry() == editeur && app->Lecteur()->frameGeometry() == cadreLecteur;
  })) << "editor at " << ::testing::PrintToString(app->Editeur()->frameGeometry()) << ", player at "
      << ::testing::PrintToString(app->Lecteur()->frameGeometry());
}

TEST_F(AppTest, ClosingThePlayerBeepsOnceAndLeavesItOpen) {
  Scripte();
  EXPECT_FALSE(app->Lecteur()->close());
  EXPECT_EQ(dialogues.Bips, 1);
  EXPECT_TRUE(dialogues.Boites.empty());
  EXPECT_TRUE(app->Lecteur()->isVisible());
  EXPECT_TRUE(app->Editeur()->isVisible());
}

TEST_F(AppTest, StatusMessagesOfTheSheetsReachTheEditorsStatusBar) {
  app->Editeur()->Cadre().GetFeuille(0)->MessageErreur(std::string("Élément hors de la feuille"));
  EXPECT_EQ(app->Editeur()->statusBar()->currentMessage(), QStringLiteral("!!!! Élément hors de la feuille"));
  EXPECT_TRUE(app->Lecteur()->statusBar()->currentMessage().isEmpty());
}

TEST_F(AppTest, PausedPlayerDrawsOnlyWhenSomethingChanges) {
  // The first paint of the player makes its paused one-kite scene, and a frame shows it.
  QFenCadre* lecteur = app->Lecteur();
  QLabel* t = lecteur->Zone(TZoneLecteur::T);
  ASSERT_TRUE(AttendQue([&] { return Globals.blDemoOK == 1 && t->text() == QStringLiteral("T = 0"); }))
      << t->text().toStdString();
  // Once the start's resizes are over, nothing moves: the player wants no frame, and a resize
  // going back and forth would show as frames still coming. The half second without one is
  // what calm means here; however slow the machine, only drawing on and on can miss it.
  TFenApp& client = lecteur->Cadre().Client();
  long long vues = -1;
  QElapsedTimer depuis;
  const bool calme = AttendQue([&] {
    if (lecteur->Cadence().Images() != vues || client.ImageAttendue()) {
      vues = lecteur->Cadence().Images();
      depuis.start();
    }
    return depuis.elapsed() >= 500;
  });
  ASSERT_TRUE(calme) << "paused with nothing changing, the player kept drawing";
  lecteur->Action(CM_ROTATION_GAUCHE)->trigger();
  EXPECT_TRUE(AttendQue([&] { return lecteur->Cadence().Images() > vues; })) << "a command drew no frame";
}

TEST(AffichageDisponible, NeedsANonEmptyDisplayVariableOrAChosenPlatform) {
  const char* noms[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  std::vector<std::optional<std::string>> sauvees;
  for (const char* nom : noms) {
    const char* v = std::getenv(nom);
    sauvees.push_back(v ? std::optional<std::string>(v) : std::nullopt);
    unsetenv(nom);
  }
  char programme[] = "trajectoires", option[] = "-platform", offscreen[] = "offscreen";
  char* seul[] = {programme, nullptr};
  char* avecOption[] = {programme, option, offscreen, nullptr};

  EXPECT_FALSE(AffichageDisponible(1, seul));
  EXPECT_TRUE(AffichageDisponible(3, avecOption));
  for (const char* nom : noms) {
    setenv(nom, "", 1);
    EXPECT_FALSE(AffichageDisponible(1, seul)) << "empty " << nom;
    setenv(nom, "x", 1);
    EXPECT_TRUE(AffichageDisponible(1, seul)) << nom;
    unsetenv(nom);
  }

  for (std::size_t i = 0; i < sauvees.size(); ++i)
    if (sauvees[i]) setenv(noms[i], sauvees[i]->c_str(), 1);
}

}  // namespace
