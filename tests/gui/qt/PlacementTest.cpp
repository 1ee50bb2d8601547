// Where the two windows stand at start: the player beside the editor on any screen, a
// remembered frame taken again only while it can still be reached on a present screen, and
// the settings read and written through the window's placement.
#include <gtest/gtest.h>

#include "gui/qt/Cadre.h"
#include "gui/qt/Placement.h"

#include <QSettings>
#include <QWidget>

#include <ostream>

void PrintTo(const QRect& r, std::ostream* os) {
  *os << "(" << r.x() << ", " << r.y() << ") " << r.width() << "x" << r.height();
}

namespace {

constexpr QSize LECTEUR(400, 290);

TEST(PlacementTest, ThePlayerStandsBesideTheEditorWithoutCoveringIt) {
  struct Cas {
    const char* nom;
    QRect ecran, editeur, attendu;
  };
  const Cas cas[] = {
      {"large : à droite", {0, 0, 1280, 1024}, CADRE_EDITEUR, {628, 20, 400, 290}},
      {"un peu étroit : à droite, plus près", {0, 0, 1024, 768}, CADRE_EDITEUR, {624, 20, 400, 290}},
      {"étroit et haut : dessous", {0, 0, 700, 1200}, CADRE_EDITEUR, {20, 628, 400, 290}},
      {"éditeur à droite : à sa gauche", {0, 0, 1280, 1024}, {700, 20, 560, 1000}, {292, 20, 400, 290}},
      {"éditeur en bas : au-dessus", {0, 0, 700, 1024}, {20, 400, 660, 600}, {20, 102, 400, 290}},
      {"écran décalé : sur lui", {1280, 0, 1920, 1080}, {1300, 20, 600, 600}, {1908, 20, 400, 290}},
      // No room on any side: the place that covers least of the editor.
      {"trop petit : le moins de recouvrement", {0, 0, 800, 600}, CADRE_EDITEUR, {400, 20, 400, 290}},
      {"plus petit que la fenêtre : tout l'écran", {0, 0, 300, 200}, CADRE_EDITEUR, {0, 0, 300, 200}},
  };
  for (const Cas& c : cas) {
    const QRect r = CadreAcote(c.ecran, c.editeur, LECTEUR);
    EXPECT_EQ(r, c.attendu) << c.nom;
    EXPECT_TRUE(c.ecran.contains(r)) << c.nom;
  }
}

TEST(PlacementTest, ARememberedFrameIsTakenOnlyWhileItsTitleCanBeReached) {
  const QRect defaut(20, 20, 600, 600);
  const QList<QRect> un = {{0, 0, 1280, 1024}};
  const QList<QRect> deux = {{0, 0, 1280, 1024}, {1280, 0, 1920, 1080}};
  struct Cas {
    const char* nom;
    QRect memorise;
    const QList<QRect>& ecrans;
    bool garde;
  };
  const Cas cas[] = {
      {"sur l'écran", {100, 100, 500, 400}, un, true},
      {"aucun", QRect(), un, false},
      {"taille négative", {10, 10, -5, 300}, un, false},
      {"minuscule", {10, 10, 50, 50}, un, false},
      {"démesuré", {0, 0, 100000, 400}, un, false},
      {"loin de tout écran", {3000, 3000, 400, 300}, un, false},
      {"titre au-dessus de l'écran", {100, -100, 400, 300}, un, false},
      {"à moitié sorti à gauche, titre encore à prendre", {-300, 100, 400, 300}, un, true},
      {"sorti à gauche, titre trop court", {-350, 100, 400, 300}, un, false},
      {"titre au ras du bas", {100, 1004, 400, 300}, un, true},
      {"sous le bas", {100, 1010, 400, 300}, un, false},
      {"sur le second écran branché", {1500, 100, 400, 300}, deux, true},
      {"sur le second écran débranché", {1500, 100, 400, 300}, un, false},
      {"aucun écran", {100, 100, 500, 400}, QList<QRect>(), false},
  };
  for (const Cas& c : cas) EXPECT_EQ(CadreRetenu(c.memorise, defaut, c.ecrans), c.garde ? c.memorise : defaut) << c.nom;
}

// The offscreen platform has one screen of 800 x 600.
class PlacementReglagesTest : public ::testing::Test {
protected:
  void SetUp() override { QSettings().remove(QStringLiteral("essai")); }
  void TearDown() override { QSettings().remove(QStringLiteral("essai")); }
  static QRect Place(const QVariant& memorise) {
    QSettings().setValue(QStringLiteral("essai/fenetre"), memorise);
    QWidget fenetre;
    new TPlacementCadre(&fenetre, QRect(30, 40, 300, 200), QStringLiteral("essai/fenetre"));
    return fenetre.geometry();
  }
};

TEST_F(PlacementReglagesTest, NonsenseOrAFrameOffTheScreensGivesTheDefault) {
  const QRect defaut(30, 40, 300, 200);
  EXPECT_EQ(Place(QRect(100, 50, 400, 300)), QRect(100, 50, 400, 300));
  EXPECT_EQ(Place(QStringLiteral("n'importe quoi")), defaut);
  EXPECT_EQ(Place(QByteArray("\x01\xd9\xd0\xcb\x00\x03", 6)), defaut);
  EXPECT_EQ(Place(QPoint(100, 50)), defaut);
  EXPECT_EQ(Place(QRect(900, 700, 400, 300)), defaut);
  EXPECT_EQ(Place(QRect(100, 50, 0, 0)), defaut);
  QSettings().remove(QStringLiteral("essai/fenetre"));
  EXPECT_EQ(TPlacementCadre::Memorise(QStringLiteral("essai/fenetre")), QRect());
}

TEST_F(PlacementReglagesTest, TheFrameIsRememberedOnlyOnceTheWindowWasShown) {
  QWidget fenetre;
  auto* placement = new TPlacementCadre(&fenetre, QRect(30, 40, 300, 200), QStringLiteral("essai/fenetre"));
  placement->Retiens();
  EXPECT_EQ(TPlacementCadre::Memorise(QStringLiteral("essai/fenetre")), QRect());
  fenetre.show();
  fenetre.setGeometry(60, 70, 320, 240);
  // The frame, decorations included, as the placement takes it back.
  const QRect cadre = fenetre.frameGeometry();
  ASSERT_TRUE(cadre.contains(QRect(60, 70, 320, 240)));
  placement->Retiens();
  EXPECT_EQ(TPlacementCadre::Memorise(QStringLiteral("essai/fenetre")), cadre);
  // Hidden, as the editor is when the application ends: its last frame is the one kept.
  fenetre.hide();
  QSettings().remove(QStringLiteral("essai"));
  placement->Retiens();
  EXPECT_EQ(TPlacementCadre::Memorise(QStringLiteral("essai/fenetre")), cadre);
}

}  // namespace
