// Text on the Qt surface: the face that stands for Arial, the size from the font's height in
// the current mode, the anchor and its alignment, the background, and upright text in the
// logical mode whose y goes up. Glyphs are smoothed: positions are checked within a pixel or
// two, the background box exactly.
#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "Pixels.h"
#include "platform/qt/DCQt.h"

namespace {

const QRgb Jaune = qRgb(255, 255, 0);

class TexteTest : public ::testing::Test {
protected:
  QImage image = ImageBlanche(300, 200);

  // Draws texte at p with the font and alignment given, on a yellow opaque background or a
  // transparent one; dc is in device mode unless logique is set, then 4 pixels a unit with
  // y going up from the logical origin at the image's bottom left.
  void Ecrit(const TPoint& p, const std::string& texte, TFont police, unsigned alignement, bool opaque,
             bool logique = false) {
    QPainter painter(&image);
    TDCQt dc(&painter);
    if (logique) {
      dc.SetMapMode(TMapMode::Anisotrope);
      dc.SetWindowExt(TSize{75, -50});
      dc.SetViewportExt(TSize{300, 200});
      dc.SetWindowOrg(TPoint(0, 50));
    }
    dc.SelectObject(police);
    dc.SetTextAlign(alignement);
    dc.SetBkColor(TColor::LtYellow);
    dc.SetBkMode(opaque ? TBkMode::Opaque : TBkMode::Transparent);
    dc.TextOut(p, texte);
  }
  // The box of the yellow background and the ink on it.
  QRect BoiteFond() const {
    QRect boite;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixel(x, y) != qRgb(255, 255, 255)) boite |= QRect(x, y, 1, 1);
    return boite;
  }
};

TEST_F(TexteTest, ArialIsDrawnInAMetricCompatibleFace) {
  EXPECT_EQ(FacePolice("Arial"), "Liberation Sans");
  EXPECT_EQ(FacePolice("MS Sans Serif"), "Liberation Sans");
  EXPECT_EQ(FacePolice("Courier New"), "Courier New");
  QFont f(FacePolice("Arial"));
  EXPECT_EQ(QFontInfo(f).family(), "Liberation Sans") << "fonts-liberation manque (scripts/install-deps)";
  // Arial's digits are 556 thousandths of an em wide: ten of them at an em of 1000 pixels.
  f.setPixelSize(1000);
  EXPECT_NEAR(QFontMetricsF(f).horizontalAdvance("0123456789"), 5560, 2);
}

TEST_F(TexteTest, PositiveHeightIsTheCellAndNegativeTheEm) {
  Ecrit(TPoint(10, 10), "Mg", TFont{"Arial", 20, 400, 1}, TA_LEFT | TA_TOP, true);
  const QRect cellule = BoiteFond();
  EXPECT_EQ(cellule.topLeft(), QPoint(10, 10));
  EXPECT_NEAR(cellule.height(), 20, 1);
  EXPECT_EQ(image.pixel(10, 10), Jaune);
  EXPECT_TRUE(BoiteEncre(image, cellule).isValid());

  image = ImageBlanche(300, 200);
  Ecrit(TPoint(10, 10), "Mg", TFont{"Arial", -20, 400, 1}, TA_LEFT | TA_TOP, true);
  // The cell of Arial is 1.117 em high.
  EXPECT_NEAR(BoiteFond().height(), 22, 1);
}

TEST_F(TexteTest, TransparentTextLeavesTheBackgroundAlone) {
  Ecrit(TPoint(10, 10), "Mg", TFont{"Arial", 20, 400, 1}, TA_LEFT | TA_TOP, false);
  EXPECT_EQ(Compte(image, image.rect(), Jaune), 0);
  const QRect encre = BoiteEncre(image, image.rect());
  ASSERT_TRUE(encre.isValid());
  EXPECT_TRUE(QRect(10, 10, 40, 20).contains(encre));
}

TEST_F(TexteTest, BoldHasMoreInkThanNormal) {
  auto encre = [&](int graisse) {
    image = ImageBlanche(300, 200);
    Ecrit(TPoint(10, 10), "Trajectoires", TFont{"Arial", 30, graisse, 1}, TA_LEFT | TA_TOP, false);
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) n += Encre(image.pixel(x, y));
    return n;
  };
  EXPECT_GT(encre(700), encre(400) * 5 / 4);
}

// Anchors and alignment flags, checked on digits: no descender, and their ink reaches from
// the baseline to near the top of the cell.
struct Ancrage {
  const char* Nom;
  unsigned Alignement;
  int XMin, XMax;      // where the ink's left or right edge must fall, by the flags
  bool Droite;         // the bound is on the right edge of the ink, else on its centre or left
  int YEncreMin, YEncreMax;  // where the ink's top (top alignment) or bottom must fall
  bool Haut;
};

class AncrageTest : public TexteTest, public ::testing::WithParamInterface<Ancrage> {};

TEST_P(AncrageTest, InkLiesWhereTheFlagsPutIt) {
  const Ancrage& a = GetParam();
  // Anchor (150, 100), cell 20 high: ascent 16.2, descent 3.8 pixels.
  Ecrit(TPoint(150, 100), "50", TFont{"Arial", 20, 400, 1}, a.Alignement, false);
  const QRect encre = BoiteEncre(image, image.rect());
  ASSERT_TRUE(encre.isValid());
  const int x = a.Droite ? encre.right() : (a.Alignement & TA_CENTER) == TA_CENTER ? encre.center().x() : encre.left();
  EXPECT_GE(x, a.XMin);
  EXPECT_LE(x, a.XMax);
  const int y = a.Haut ? encre.top() : encre.bottom();
  EXPECT_GE(y, a.YEncreMin);
  EXPECT_LE(y, a.YEncreMax);
}

INSTANTIATE_TEST_SUITE_P(
    Drapeaux, AncrageTest,
    ::testing::Values(Ancrage{"GaucheHaut", TA_LEFT | TA_TOP, 150, 152, false, 101, 104, true},
                      Ancrage{"CentreHaut", TA_CENTER | TA_TOP, 149, 151, false, 101, 104, true},
                      Ancrage{"DroiteBas", TA_RIGHT | TA_BOTTOM, 147, 149, true, 95, 96, false},
                      Ancrage{"DroiteHaut", TA_RIGHT | TA_TOP, 147, 149, true, 101, 104, true},
                      Ancrage{"GaucheLigneDeBase", TA_LEFT | TA_BASELINE, 150, 152, false, 99, 99, false}),
    [](const auto& info) { return std::string(info.param.Nom); });

TEST_F(TexteTest, LogicalModeGivesUprightTextSizedInLogicalUnits) {
  // Height 5 units at 4 pixels a unit: a cell of 20 pixels, its top at the anchor (10, 40),
  // which is the pixel (40, 40).
  Ecrit(TPoint(10, 40), "L", TFont{"Arial", 5, 400, 1}, TA_LEFT | TA_TOP, true, true);
  const QRect cellule = BoiteFond();
  EXPECT_EQ(cellule.topLeft(), QPoint(40, 40));
  EXPECT_NEAR(cellule.height(), 20, 1);
  // An L: its upright on the left, its foot along the bottom. Mirrored either way, the foot
  // would be on top or reach to the left.
  const QRect encre = BoiteEncre(image, cellule);
  ASSERT_GT(encre.width(), 4);
  const QRect haut(encre.left(), encre.top(), encre.width(), 2);
  const QRect pied(encre.left(), encre.bottom() - 1, encre.width(), 2);
  EXPECT_LE(BoiteEncre(image, haut).right(), encre.left() + encre.width() / 2);
  EXPECT_EQ(BoiteEncre(image, pied).right(), encre.right());
}

}  // namespace
