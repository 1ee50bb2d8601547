#pragma once
// The application started for a test, its editor's sheet on the screen, and the gestures of
// the mouse on that sheet, in the routine's own units.
#include <gtest/gtest.h>

#include "Attente.h"
#include "app/App.h"
#include "editor/FenDessin.h"
#include "gui/editeur/QFeuille.h"
#include "model/Document.h"

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <QWindow>

#include <memory>

class FenetreEditeurTest : public ::testing::Test {
protected:
  void SetUp() override {
    ReinitialiseDocument();
    // The panels under the sheet as a first start leaves them, whatever a test before chose.
    for (const char* groupe : {"frise", "alertes"}) QSettings().remove(QString::fromLatin1(groupe));
    app = std::make_unique<TApp>();
    app->Demarre();
    ASSERT_TRUE(AttendQue([&] { return app->Editeur()->Feuille()->isVisible() && app->Editeur()->Feuille()->width() > 0; }));
    feuille = app->Editeur()->Feuille();
  }
  void TearDown() override {
    app.reset();
    ReinitialiseDocument();
  }

  // The pixel of a logical point on the sheet shown.
  QPoint Ecran(float x, float y) const {
    const TPoint p = feuille->Feuille()->LPtoDP(TPointf(x, y));
    return QPoint(p.x, p.y);
  }
  void Presse(const QPoint& p, Qt::KeyboardModifiers touches = Qt::NoModifier) {
    QTest::mousePress(feuille, Qt::LeftButton, touches, p);
    QTest::mouseRelease(feuille, Qt::LeftButton, touches, p);
  }
  // Through the window, as the window system delivers a move: the widget's overload warps
  // the X pointer, whose move comes back late, after the next click.
  void Deplace(const QPoint& p) {
    QTest::mouseMove(feuille->window()->windowHandle(), feuille->mapTo(feuille->window(), p));
    QApplication::processEvents();
  }

  std::unique_ptr<TApp> app;
  QFeuille* feuille = nullptr;
};
