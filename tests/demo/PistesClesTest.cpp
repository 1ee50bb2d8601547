// Key tracks: order, replacement, linear sampling, clamping and turns by the shorter way.
#include <gtest/gtest.h>

#include <cmath>

#include "demo/PistesCles.h"

namespace {

void AttendVecteur(const TVecteur3& v, float x, float y, float z) {
  EXPECT_NEAR(v.x, x, 1e-5);
  EXPECT_NEAR(v.y, y, 1e-5);
  EXPECT_NEAR(v.z, z, 1e-5);
}

// The orientation of a kite in the sheet's plane turned `degres` clockwise from nose up.
TOrientation Cap(float degres) {
  const float r = degres * 3.14159265f / 180;
  return TOrientation{{0, 0, 1}, {std::sin(r), std::cos(r), 0}};
}

TEST(PisteCles, KeysAreOrderedWhateverTheOrderTheyAreLaidIn) {
  TPistePosition p;
  EXPECT_TRUE(p.IsVide());
  AttendVecteur(p.Echantillonne(5), 0, 0, 0);
  p.Ajoute(300, {30, 0, 0});
  p.Ajoute(100, {10, 0, 0});
  p.Ajoute(200, {20, 5, 0});
  p.Ajoute(110, {11, 0, 0});
  ASSERT_EQ(p.nbCles(), 4u);
  EXPECT_EQ(p.GetCles()[1].first, 110.0f);
  p.Ajoute(200, {20, 0, 0});  // the same time: the new key takes the old one's place
  EXPECT_EQ(p.nbCles(), 4u);

  AttendVecteur(p.Echantillonne(50), 10, 0, 0);   // before the first key
  AttendVecteur(p.Echantillonne(999), 30, 0, 0);  // after the last
  AttendVecteur(p.Echantillonne(110), 11, 0, 0);
  AttendVecteur(p.Echantillonne(155), 15.5f, 0, 0);
  AttendVecteur(p.Echantillonne(275), 27.5f, 0, 0);
}

TEST(PisteCles, OrientationsTurnByTheShorterWay) {
  TPisteOrientation o;
  o.Ajoute(0, Cap(0));
  o.Ajoute(100, Cap(90));
  o.Ajoute(200, Cap(170));
  o.Ajoute(300, Cap(-170));
  const TOrientation milieu = o.Echantillonne(50);
  AttendVecteur(milieu.Y, std::sqrt(0.5f), std::sqrt(0.5f), 0);
  AttendVecteur(milieu.Z, 0, 0, 1);
  // From 170 to -170 the kite turns 20 degrees through 180, not 340 through 0.
  AttendVecteur(o.Echantillonne(250).Y, 0, -1, 0);
}

TEST(PisteCles, KeysKeepTheirVectorsAsGiven) {
  TPisteOrientation o;
  const TOrientation penche{{0.24f, 0, 0.97f}, {0, 2, 0}};
  o.Ajoute(10, penche);
  o.Ajoute(20, Cap(0));
  AttendVecteur(o.Echantillonne(10).Z, 0.24f, 0, 0.97f);
  AttendVecteur(o.Echantillonne(10).Y, 0, 2, 0);
  const TOrientation entre = o.Echantillonne(15);
  EXPECT_NEAR(std::hypot(entre.Y.x, entre.Y.y, entre.Y.z), 1.0, 1e-5);
  // A key whose vectors give no frame is held rather than turned.
  o.Ajoute(30, TOrientation{{0, 0, 0}, {0, 1, 0}});
  AttendVecteur(o.Echantillonne(24).Y, 0, 1, 0);
  AttendVecteur(o.Echantillonne(26).Z, 0, 0, 0);
}

}  // namespace
