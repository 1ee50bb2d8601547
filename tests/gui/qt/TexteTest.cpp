// Text on the Qt surface: the face that stands for Arial, the size from the font's height in
// the current mode, the anchor and its alignment, the background, and upright text in the
// logical mode whose y goes up. Glyphs are smoothed: ink is placed within a pixel or two, the
// background box exactly.
#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include "Pixels.h"
#include "gui/qt/DCQt.h"

namespace {

const QRgb Jaune = qRgb(255, 255, 0);

// Draws texte on a white image, on a yellow opaque background or a transparent one; in device
// mode, or with logique set at 4 pixels a unit, y going up from the image's bottom left.
QImage Ecrit(const TPoint& p, const std::string& texte, int hauteur, unsigned alignement, bool opaque,
             bool logique = false) {
  QImage image = ImageBlanche(300, 200);
  QPainter painter(&image);
  TDCQt dc(&painter);
  if (logique) {
    dc.SetMapMode(TMapMode::Anisotrope);
    dc.SetWindowExt(TSize{75, -50});
    dc.SetViewportExt(TSize{300, 200});
    dc.SetWindowOrg(TPoint(0, 50));
  }
  dc.SelectObject(TFont{"Arial", hauteur, 400, 1});
  dc.SetTextAlign(alignement);
  dc.SetBkColor(TColor::LtYellow);
  dc.SetBkMode(opaque ? TBkMode::Opaque : TBkMode::Transparent);
  dc.TextOut(p, texte);
  return image;
}

// The box of all that is not white: the background and the ink on it.
QRect BoiteFond(const QImage& image) {
  QRect boite;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != qRgb(255, 255, 255)) boite |= QRect(x, y, 1, 1);
  return boite;
}

TEST(Texte, ArialIsDrawnInAMetricCompatibleFace) {
  EXPECT_EQ(FacePolice("Arial"), "Liberation Sans");
  EXPECT_EQ(FacePolice("MS Sans Serif"), "Liberation Sans");
  EXPECT_EQ(FacePolice("Courier New"), "Courier New");
  QFont f(FacePolice("Arial"));
  EXPECT_EQ(QFontInfo(f).family(), "Liberation Sans") << "fonts-liberation manque (scripts/install-deps)";
  // Arial's digits are 556 thousandths of an em wide: ten of them at an em of 1000 pixels.
  f.setPixelSize(1000);
  EXPECT_NEAR(QFontMetricsF(f).horizontalAdvance("0123456789"), 5560, 2);
}

TEST(Texte, PositiveHeightIsTheCellNegativeTheEmAndTransparentLeavesTheBackground) {
  QImage image = Ecrit(TPoint(10, 10), "Mg", 20, TA_LEFT | TA_TOP, true);
  const QRect cellule = BoiteFond(image);
  EXPECT_EQ(cellule.topLeft(), QPoint(10, 10));
  EXPECT_NEAR(cellule.height(), 20, 1);
  EXPECT_EQ(image.pixel(10, 10), Jaune);
  EXPECT_TRUE(BoiteEncre(image, cellule).isValid());
  // The cell of Arial is 1.117 em high.
  EXPECT_NEAR(BoiteFond(Ecrit(TPoint(10, 10), "Mg", -20, TA_LEFT | TA_TOP, true)).height(), 22, 1);

  image = Ecrit(TPoint(10, 10), "Mg", 20, TA_LEFT | TA_TOP, false);
  EXPECT_EQ(Compte(image, image.rect(), Jaune), 0);
  EXPECT_TRUE(cellule.contains(BoiteEncre(image, image.rect())));
}

// Digits drawn at (150, 100) in a cell 20 high (ascent 16.2, descent 3.8): where the flags put
// the ink's left, centre or right edge, and its top or bottom.
struct Ancrage {
  const char* Nom;
  unsigned Alignement;
  int Bord;  // -1: left edge, 0: centre, 1: right edge
  int XMin, XMax;
  bool Haut;  // bounds on the ink's top, or else its bottom
  int YMin, YMax;
};

class AncrageTest : public ::testing::TestWithParam<Ancrage> {};

TEST_P(AncrageTest, InkLiesWhereTheFlagsPutIt) {
  const Ancrage& a = GetParam();
  const QImage image = Ecrit(TPoint(150, 100), "50", 20, a.Alignement, false);
  const QRect encre = BoiteEncre(image, image.rect());
  ASSERT_TRUE(encre.isValid());
  const int x = a.Bord < 0 ? encre.left() : a.Bord > 0 ? encre.right() : encre.center().x();
  const int y = a.Haut ? encre.top() : encre.bottom();
  EXPECT_TRUE(x >= a.XMin && x <= a.XMax) << x;
  EXPECT_TRUE(y >= a.YMin && y <= a.YMax) << y;
}

INSTANTIATE_TEST_SUITE_P(Drapeaux, AncrageTest,
                         ::testing::Values(Ancrage{"GaucheHaut", TA_LEFT | TA_TOP, -1, 150, 152, true, 101, 104},
                                           Ancrage{"CentreHaut", TA_CENTER | TA_TOP, 0, 149, 151, true, 101, 104},
                                           Ancrage{"DroiteBas", TA_RIGHT | TA_BOTTOM, 1, 147, 149, false, 95, 96},
                                           Ancrage{"DroiteHaut", TA_RIGHT | TA_TOP, 1, 147, 149, true, 101, 104},
                                           Ancrage{"LigneDeBase", TA_LEFT | TA_BASELINE, -1, 150, 152, false, 99, 99}),
                         [](const auto& info) { return std::string(info.param.Nom); });

TEST(Texte, LogicalModeGivesUprightTextSizedInLogicalUnits) {
  // Height 5 units at 4 pixels a unit: a cell of 20 pixels, its top at (10, 40), the pixel (40, 40).
  const QImage image = Ecrit(TPoint(10, 40), "L", 5, TA_LEFT | TA_TOP, true, true);
  const QRect cellule = BoiteFond(image);
  EXPECT_EQ(cellule.topLeft(), QPoint(40, 40));
  EXPECT_NEAR(cellule.height(), 20, 1);
  // An L: its upright on the left, its foot along the bottom; mirrored either way, the foot
  // would be on top or reach to the left.
  const QRect encre = BoiteEncre(image, cellule);
  ASSERT_GT(encre.width(), 4);
  EXPECT_LE(BoiteEncre(image, QRect(encre.left(), encre.top(), encre.width(), 2)).right(),
            encre.left() + encre.width() / 2);
  EXPECT_EQ(BoiteEncre(image, QRect(encre.left(), encre.bottom() - 1, encre.width(), 2)).right(), encre.right());
}

}  // namespace
