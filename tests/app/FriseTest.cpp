// The timeline's dock in the editor: under the sheet, shown and hidden from the Options menu
// with its height kept.
#include <gtest/gtest.h>

#include "Attente.h"
#include "app/App.h"
#include "frise/Battements.h"
#include "gui/editeur/QFenCadre2.h"
#include "gui/frise/DockFrise.h"
#include "gui/frise/QFrise.h"
#include "model/Document.h"
#include "platform/Horloge.h"
#include "support/Doubles.h"

#include <QAction>
#include <QDockWidget>
#include <QSettings>

#include <memory>

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
  montre->trigger();
  ASSERT_TRUE(AttendQue([&] { return frise->isVisible() && frise->height() > 0; }));
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

}  // namespace
