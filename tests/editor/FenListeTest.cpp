// The strip's scroller under the mouse wheel: units a notch, fine wheels that add up, the
// way back, the ends of the range, and sideways scrolling only while its bar shows.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/elements/Segment.h"
#include "support/DocumentTest.h"

namespace {

struct TCran {
  int dx, dy;
  bool shift;
};

struct TCasMolette {
  const char* nom;
  int largeur;  // of the strip: below 751 the horizontal bar shows
  std::vector<TCran> crans;
  int x, y;     // where the strip stands after them
};

class FenListeTest : public DocumentTest {
protected:
  TFenDessin fen{nullptr, nullptr, 1};
};

TEST_F(FenListeTest, WheelScrollsTheStripByThreeUnitsANotchWithinItsRange) {
  // Thirty bars: a vertical range of some thirty units.
  for (int i = 0; i < 30; ++i) {
    auto* s = new TSegment(TPoint(10 * i, 50), &fen, nullptr, &TabLElt[0]);
    TabLElt[0].Append(s);
    s->OpenBD();
  }
  const std::vector<TCasMolette> cas = {
      {"un cran vers soi", 600, {{0, -120, false}}, 0, 3},
      {"deux crans puis un en arrière", 600, {{0, -120, false}, {0, -120, false}, {0, 120, false}}, 0, 3},
      {"vers le haut au sommet", 600, {{0, 120, false}}, 0, 0},
      {"molette fine : huit huitièmes de cran", 600, std::vector<TCran>(8, {0, -15, false}), 0, 3},
      {"molette fine : un tiers de cran fait une unité", 600, {{0, -40, false}}, 0, 1},
      {"un reste n'est pas rendu au retour", 600, {{0, -60, false}, {0, 40, false}}, 0, 0},
      {"jusqu'au bas", 600, std::vector<TCran>(50, {0, -120, false}), 0, -1},
      {"Maj fait défiler de côté", 600, {{0, -120, true}}, 3, 0},
      {"molette horizontale", 600, {{-120, 0, false}, {-120, 0, false}}, 6, 0},
      {"de côté jusqu'au bout", 600, std::vector<TCran>(40, {-120, 0, false}), 40, 0},
      {"sans barre horizontale, pas de côté", 800, {{-120, 0, false}, {0, -120, true}}, 0, 0},
      {"en diagonale", 600, {{-120, -120, false}}, 3, 3},
  };
  for (const TCasMolette& c : cas) {
    TFenListe liste(nullptr);
    liste.EvSize(c.largeur, 200);
    liste.RetraceBD();
    ASSERT_GT(liste.YRange, 20);
    for (const TCran& cran : c.crans) liste.Molette(cran.dx, cran.dy, cran.shift);
    EXPECT_EQ(liste.XPos, c.x) << c.nom;
    EXPECT_EQ(liste.YPos, c.y < 0 ? liste.YRange : c.y) << c.nom;
    // The bars stand where the scroller says.
    EXPECT_EQ(TabLElt[0].Premier() ? static_cast<TElt*>(TabLElt[0].Premier())->pBD->Y : 0,
              1 - liste.YPos * TFenListe::YUnit)
        << c.nom;
  }
}

TEST_F(FenListeTest, WheelSaysWhetherTheStripMoved) {
  TFenListe liste(nullptr);
  liste.EvSize(600, 200);
  liste.RetraceBD();  // nothing to show: no vertical range
  EXPECT_FALSE(liste.Molette(0, -120, false));
  EXPECT_TRUE(liste.Molette(0, -120, true));
  EXPECT_EQ(liste.XPos, 3);
}

}  // namespace
