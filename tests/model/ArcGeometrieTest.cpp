// The four ways of fixing an arc tangent to a direction, which the editor's drags use, the
// degrees of the arc's bar, and the box of a circle.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "model/ArcGeometrie.h"
#include "model/elements/Arc.h"
#include "support/DocumentTest.h"

namespace {

class ArcGeometrieTest : public DocumentTest {};

struct Sortie {
  TPointf c, fin;
  float angle = 0, rayon = 0;
  bool sens = false;
};

void ExpectProche(const TPointf& a, float x, float y) {
  EXPECT_NEAR(a.x, x, 1e-3f);
  EXPECT_NEAR(a.y, y, 1e-3f);
}

TEST_F(ArcGeometrieTest, TheFourCalculationsAgreeOnOneArc) {
  struct Cas {
    TVect v;
    TPointf p1;
    float R, A;
  };
  for (const Cas& k : {Cas{{1, 0}, {0, 0}, 10, 1.5f}, Cas{{0, 1}, {3, -7}, 4, -2.5f}, Cas{{-3, 4}, {-20, 15}, 25, 4.0f},
                       Cas{{5, -2}, {7, 1}, 2, -5.5f}}) {
    SCOPED_TRACE(testing::Message() << "v (" << k.v.x << ", " << k.v.y << ") sweep " << k.A);
    Sortie o, o1, o3, o4;
    ASSERT_EQ(CalculArc2(k.v, k.p1, k.R, k.A, &o.c, &o.fin, &o.sens), 1);
    EXPECT_NEAR(std::hypot(o.c.x - k.p1.x, o.c.y - k.p1.y), k.R, 1e-3f);
    EXPECT_NEAR(std::hypot(o.c.x - o.fin.x, o.c.y - o.fin.y), k.R, 1e-3f);
    EXPECT_NEAR((o.c.x - k.p1.x) * k.v.x + (o.c.y - k.p1.y) * k.v.y, 0, 1e-3f);  // tangent at p1
    EXPECT_EQ(o.sens, k.A < 0);                                                  // a left turn ends on the left

    ASSERT_EQ(CalculArc1(k.v, k.p1, o.fin, &o1.c, &o1.sens), 1);
    ExpectProche(o1.c, o.c.x, o.c.y);
    ASSERT_EQ(CalculArc3(k.v, k.p1, o.fin, k.R, &o3.angle, &o3.c, &o3.fin, &o3.sens), 1);
    EXPECT_NEAR(o3.angle, k.A, 1e-4f);
    ExpectProche(o3.fin, o.fin.x, o.fin.y);
    o4.angle = k.A;
    ASSERT_EQ(CalculArc4(k.v, k.p1, o.fin, &o4.angle, &o4.rayon, &o4.c, &o4.fin, &o4.sens), 1);
    EXPECT_NEAR(o4.rayon, k.R, 1e-3f);
    ExpectProche(o4.fin, o.fin.x, o.fin.y);
    EXPECT_TRUE(o1.sens == o.sens && o3.sens == o.sens && o4.sens == o.sens);
  }
  EXPECT_EQ(dialogues.Bips, 0);
}

TEST_F(ArcGeometrieTest, NoArcWhereThereIsNoCircleAndNothingIsWritten) {
  Sortie o;
  o.rayon = 7;
  const TVect v(1, 0);
  const TPointf p1(0, 0);
  // Ahead, behind and on the start there is no circle through the end.
  o.c = TPointf(1, 2);
  EXPECT_EQ(CalculArc1(v, p1, TPointf(10, 0), &o.c, &o.sens), -2);
  EXPECT_EQ(CalculArc1(TVect(0, 2), TPointf(3, 4), TPointf(3, -6), &o.c, &o.sens), -2);
  EXPECT_EQ(CalculArc1(v, TPointf(2, 2), TPointf(2, 2), &o.c, &o.sens), -1);
  EXPECT_EQ(o.c, TPointf(1, 2));
  // No radius, no direction: nothing; no sweep: an arc of no length ending on its start.
  EXPECT_EQ(CalculArc2(v, p1, 0, 1, &o.c, &o.fin, &o.sens), -1);
  EXPECT_EQ(CalculArc2(TVect(0, 0), p1, 10, 1, &o.c, &o.fin, &o.sens), -1);
  EXPECT_EQ(CalculArc2(v, TPointf(3, 4), 10, 0, &o.c, &o.fin, &o.sens), -3);
  EXPECT_EQ(o.fin, TPointf(3, 4));
  // An end off the circle is brought onto the ray from the centre; on the ray through the
  // start the sweep is nothing; on the centre there is no ray.
  ASSERT_EQ(CalculArc3(v, p1, TPointf(20, -10), 10, &o.angle, &o.c, &o.fin, &o.sens), 1);
  ExpectProche(o.fin, 10, -10);
  EXPECT_NEAR(o.angle, QUART_DE_TOUR, 1e-5f);
  EXPECT_EQ(CalculArc3(v, p1, TPointf(0, -5), 10, &o.angle, &o.c, &o.fin, &o.sens), -4);
  EXPECT_EQ(o.fin, p1);
  EXPECT_EQ(CalculArc3(v, p1, TPointf(0, -10), 10, &o.angle, &o.c, &o.fin, &o.sens), -1);
  EXPECT_EQ(CalculArc3(TVect(0, 0), p1, TPointf(5, 5), 10, &o.angle, &o.c, &o.fin, &o.sens), -1);
  // No sweep to keep: no beep; no circle: a beep, and the radius stays.
  o.angle = 0;
  EXPECT_EQ(CalculArc4(v, p1, TPointf(10, 10), &o.angle, &o.rayon, &o.c, &o.fin, &o.sens), -1);
  EXPECT_EQ(dialogues.Bips, 0);
  o.angle = 1;
  EXPECT_EQ(CalculArc4(v, p1, TPointf(10, 0), &o.angle, &o.rayon, &o.c, &o.fin, &o.sens), -1);
  EXPECT_EQ(dialogues.Bips, 1);
  EXPECT_EQ(o.rayon, 7);
}

TEST_F(ArcGeometrieTest, DegreesOfTheBarRoundButPositiveSweepsUnderADegreeShowAsZero) {
  const float rad = DEMI_TOUR / 180;
  for (const auto& [deg, attendu] :
       std::initializer_list<std::pair<float, int>>{{0.7f, 0}, {-0.7f, -1}, {1.6f, 2}, {-2.4f, -2}, {-2.6f, -3}})
    EXPECT_EQ(ArrondiDegres(deg * rad), attendu) << deg;
  // Beyond int an angle stays at the bound rather than rounding past it.
  EXPECT_EQ(ArrondiDegres(1e10f), std::numeric_limits<int>::max());
  EXPECT_EQ(ArrondiDegres(-1e10f), std::numeric_limits<int>::min());
  EXPECT_EQ(ArrondiDegres(std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST_F(ArcGeometrieTest, BoxOfACircleTruncatesTowardsZero) {
  EXPECT_EQ(GetRectCercleInscrit(TPoint(100, 100), TPoint(103, 104)), TRect(95, 95, 106, 106));
  EXPECT_EQ(GetRectCercleInscrit(TPoint(0, 0), TPoint(1, 1)), TRect(-1, -1, 2, 2));  // -1.41 gives -1
}

}  // namespace
