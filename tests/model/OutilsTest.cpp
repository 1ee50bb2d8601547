// Geometry tools: orientation folding, truncation, and the point-to-line distance of the
// hit tests.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "model/Nombres.h"
#include "model/Outils.h"

namespace {

TEST(AngleModulo2Pi, FoldsIntoMinus179To180) {
  for (const auto& [angle, attendu] : std::initializer_list<std::pair<float, int>>{{-190, 170},
                                                                                   {190, -170},
                                                                                   {359.9f, -1},
                                                                                   {450, 90},
                                                                                   {-180, 180},
                                                                                   {180, 180},
                                                                                   {-179, -179},
                                                                                   {-0.9f, 0},
                                                                                   {-720, 0}})
    EXPECT_EQ(AngleModulo2Pi(angle), attendu) << angle;
}

TEST(Tronque, GoesTowardsZeroAndHoldsTheIntRange) {
  EXPECT_EQ(Tronque(-2.7), -2);
  EXPECT_EQ(Tronque(2.7), 2);
  EXPECT_EQ(Tronque(1e20), std::numeric_limits<int>::max());
  EXPECT_EQ(Tronque(-1e20), std::numeric_limits<int>::min());
  EXPECT_EQ(Tronque(std::nan("")), 0);
}

TEST(DistPtSeg, MeasuresToTheFootOnlyWithinTheStretch) {
  TPoint h(-9, -9);
  EXPECT_EQ(DistPtSeg(TPoint(5, 5), TPoint(3, 3), TPoint(3, 3), h), -1);  // a single pixel is no line
  EXPECT_EQ(h, TPoint(-9, -9));
  EXPECT_EQ(DistPtSeg(TPoint(5, 13), TPoint(0, 10), TPoint(20, 10), h), 3);
  EXPECT_EQ(h.y, 10);      // axis-aligned: the foot exactly on the line
  EXPECT_NEAR(h.x, 5, 1);  // elsewhere truncated, so rounding may give the pixel before
  EXPECT_EQ(DistPtSeg(TPoint(25, 10), TPoint(0, 10), TPoint(20, 10), h), -1);  // beyond the end
  EXPECT_EQ(DistPtSeg(TPoint(-1, 12), TPoint(0, 10), TPoint(20, 10), h), -1);  // before the start
  EXPECT_EQ(DistPtSeg(TPoint(20, 14), TPoint(0, 10), TPoint(20, 10), h), 4);   // at the end itself
  EXPECT_EQ(DistPtSeg(TPoint(104, 57), TPoint(100, 20), TPoint(100, 80), h), 4);
  EXPECT_EQ(h, TPoint(100, 57));
  // From (10, 20) to (30, 40); the click (24, 30) is 2.83 pixels from the foot (22, 32).
  EXPECT_EQ(DistPtSeg(TPoint(24, 30), TPoint(10, 20), TPoint(30, 40), h), 2);
  EXPECT_NEAR(h.x, 22, 1);
  EXPECT_NEAR(h.y, 32, 1);
  EXPECT_EQ(DistPtSeg(TPoint(34, 40), TPoint(10, 20), TPoint(30, 40), h), -1);
  // A x B - B x A is about 1e10 here, beyond a 32-bit int.
  EXPECT_EQ(DistPtSeg(TPoint(0, 70003), TPoint(70000, 70000), TPoint(-70000, 70000), h), 3);
  EXPECT_EQ(h, TPoint(0, 70000));
}

TEST(DistPtSeg, LinesThroughTheDeviceOrigin) {
  TPoint h;
  // A line whose support passes through the pixel (0, 0) is measured against the line
  // x + b y + 1 = 0, one pixel aside: a click on it is still a hit, and one 4.24 pixels
  // off reads as 6.
  EXPECT_EQ(DistPtSeg(TPoint(3, 3), TPoint(2, 2), TPoint(4, 4), h), 0);
  EXPECT_EQ(DistPtSeg(TPoint(24, 16), TPoint(10, 10), TPoint(30, 30), h), 6);
  // Both ends on the top row: the row is a horizontal line.
  EXPECT_EQ(DistPtSeg(TPoint(5, 3), TPoint(0, 0), TPoint(10, 0), h), 3);
  EXPECT_EQ(h, TPoint(5, 0));
  EXPECT_EQ(DistPtSeg(TPoint(15, 1), TPoint(0, 0), TPoint(10, 0), h), -1);
}

// The writer's own number formatting, at the edges where it leaves the plain decimal form.
TEST(Gcvt, WritesThePrintfGeneralForm) {
  EXPECT_EQ(Gcvt(1234567.0, 6), "1.23457e+06");
  EXPECT_EQ(Gcvt(0.125, 2), "0.12");        // an exact tie goes to the even digit
  EXPECT_EQ(Gcvt(-0.0001f, 4), "-0.0001");  // just below 1e-4, rounded up into the fixed form
}

}  // namespace
