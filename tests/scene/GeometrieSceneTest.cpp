// What the 3D scene draws beyond the kites, computed without a screen: trails, pilots and
// their lines, cameras.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "scene/Cameras.h"
#include "scene/Pilotes.h"
#include "scene/Traine.h"

namespace {
constexpr float PRES = 1e-3f;

void ExpectPres(const TVecteur3& a, const TVecteur3& b, const char* quoi) {
  EXPECT_NEAR(a.x, b.x, PRES) << quoi;
  EXPECT_NEAR(a.y, b.y, PRES) << quoi;
  EXPECT_NEAR(a.z, b.z, PRES) << quoi;
}

// A kite flying a straight segment from (-50, 20) at 1 s to (50, 20) at 4 s, then still.
TPistePosition Segment() {
  TPistePosition p;
  p.Ajoute(100, {-50, 20, 0});
  p.Ajoute(400, {50, 20, 0});
  return p;
}

struct TAttendu {
  float x, opacite;
};

void ExpectTraine(const std::vector<TPointTraine>& traine, const std::vector<TAttendu>& attendu, const char* quoi) {
  ASSERT_EQ(traine.size(), attendu.size()) << quoi;
  for (std::size_t i = 0; i < attendu.size(); ++i) {
    EXPECT_NEAR(traine[i].P.x, attendu[i].x, PRES) << quoi << " point " << i;
    EXPECT_NEAR(traine[i].P.y, 20, PRES) << quoi << " point " << i;
    EXPECT_NEAR(traine[i].Opacite, attendu[i].opacite, PRES) << quoi << " point " << i;
  }
}

TEST(Traine, FollowsTheTrackBehindTheKiteAndFadesWithTime) {
  const TPistePosition p = Segment();
  const float tiers = 100.0f / 3;
  // Forward at 3 s, 3 s long: back to the first key at 1 s, where the flight starts.
  ExpectTraine(PointsTraine(p, 300, 300, false, 50),
               {{tiers / 2, 1}, {0, 5 / 6.f}, {-tiers / 2, 4 / 6.f}, {-tiers, 3 / 6.f}, {-50, 2 / 6.f}}, "avant");
  // Backward at 3 s: the second that comes after, up to the last key.
  ExpectTraine(PointsTraine(p, 300, 300, true, 50), {{tiers / 2, 1}, {tiers, 5 / 6.f}, {50, 4 / 6.f}}, "arrière");
  // A short trail ends between two steps: its far end is a point of its own, faded out.
  ExpectTraine(PointsTraine(p, 300, 75, false, 50), {{tiers / 2, 1}, {0, 1 / 3.f}, {-tiers / 4, 0}}, "courte");
  // After the last key the kite stands still: what it flew before fades as time goes on.
  ExpectTraine(PointsTraine(p, 500, 150, false, 50), {{50, 1 / 3.f}, {50 - tiers / 2, 0}}, "après la fin");
}

TEST(Traine, NothingWhereTheKiteHasNotFlown) {
  const TPistePosition p = Segment();
  EXPECT_TRUE(PointsTraine(p, 50, 300, false).empty()) << "avant le départ";
  EXPECT_TRUE(PointsTraine(p, 500, 300, true).empty()) << "en arrière après la fin";
  EXPECT_TRUE(PointsTraine(TPistePosition(), 300, 300, false).empty()) << "piste vide";
  EXPECT_TRUE(PointsTraine(p, 300, 0, false).empty()) << "durée nulle";
  EXPECT_TRUE(PointsTraine(p, 300, 300, false, 0).empty()) << "pas nul";
  EXPECT_TRUE(PointsTraine(p, std::nanf(""), 300, false).empty()) << "temps indéfini";
}

TEST(Pilotes, StandInARowInKiteOrderOneLineUpwindOfTheWindow) {
  const TReglagesSecurite defaut;
  const float m = static_cast<float>(defaut.MetresParUnite());  // 30 m lines: 0.4712 m
  // Two pilots, 2 m apart, centred; a line of 30 m is 30 / m units.
  ExpectPres(PositionPilote(0, 2, defaut), {-1 / m, 0, -30 / m}, "1 sur 2");
  ExpectPres(PositionPilote(1, 2, defaut), {1 / m, 0, -30 / m}, "2 sur 2");
  ExpectPres(PositionPilote(1, 3, defaut), {0, 0, -30 / m}, "2 sur 3");
  // Longer lines make the window bigger in metres, so the same spacing is fewer units.
  TReglagesSecurite r;
  r.Ligne = 60;
  r.Espacement = 3;
  const float m2 = static_cast<float>(r.MetresParUnite());
  EXPECT_NEAR(PositionPilote(2, 3, r).x - PositionPilote(0, 3, r).x, 6 / m2, PRES);
  EXPECT_NEAR(PositionPilote(0, 3, r).z * m2, -60, PRES);
}

TEST(Pilotes, LinesRunFromTheHandsToTheWingTips) {
  const TReglagesSecurite defaut;
  const float m = static_cast<float>(defaut.MetresParUnite());
  const TVecteur3 pieds = PositionPilote(0, 1, defaut);
  const TPaire mains = MainsPilote(pieds, defaut);
  EXPECT_LT(mains.Gauche.x, pieds.x);
  EXPECT_GT(mains.Droite.x, pieds.x);
  EXPECT_NEAR(mains.Gauche.y * m, 1.1, 1e-3);
  EXPECT_GT(mains.Gauche.z, pieds.z);  // held out towards the kite
  // Flying up: the tips are across, the left one on the left.
  const TPaire haut = BoutsAiles({10, 20, 0}, {{0, 0, 1}, {0, 1, 0}});
  ExpectPres(haut.Gauche, {6, 18.7f, 0.5f}, "vers le haut, gauche");
  ExpectPres(haut.Droite, {14, 18.7f, 0.5f}, "vers le haut, droite");
  // Nose to the left, given with vectors of any length: the wings stand up and down.
  const TPaire gauche = BoutsAiles({10, 20, 0}, {{0, 0, 2}, {-3, 0, 0}});
  ExpectPres(gauche.Gauche, {11.3f, 16, 0.5f}, "vers la gauche, gauche");
  ExpectPres(gauche.Droite, {11.3f, 24, 0.5f}, "vers la gauche, droite");
  // The figure's strokes come in pairs, and its arms end at the hands.
  const std::vector<TVecteur3> traits = SilhouettePilote(pieds, defaut);
  ASSERT_EQ(traits.size() % 2, 0u);
  int bras = 0;
  for (const TVecteur3& p : traits)
    bras += std::abs(p.x - mains.Gauche.x) + std::abs(p.y - mains.Gauche.y) + std::abs(p.z - mains.Gauche.z) < PRES;
  EXPECT_EQ(bras, 1);
}

TEST(Cameras, EachStandsWhereItShouldAndTheMovesApplyOnTop) {
  const TReglagesSecurite r;
  const float m = static_cast<float>(r.MetresParUnite());
  const float pi = std::numbers::pi_v<float>;
  // The public's: the player's camera as it always was.
  TPoseCamera c = PoseCamera(TCamera::Public, r, 0, 215, 54);
  ExpectPres(c.Position, {0, 54, -215}, "public");
  ExpectPres(c.Direction, {0, 0, 1}, "public");
  c = PoseCamera(TCamera::Public, r, pi / 2, 100, 60);
  ExpectPres(c.Position, {-100, 60, 0}, "public tournée");
  ExpectPres(c.Direction, {1, 0, 0}, "public tournée");

  // The judges: 10 m behind the pilots' row, 3 m up, looking at the window's centre.
  const float rang = PositionPilote(0, 1, r).z;
  c = PoseCamera(TCamera::Juge, r, 0, 215, 54);
  EXPECT_NEAR((rang - c.Position.z) * m, 10, 1e-3);
  EXPECT_NEAR(c.Position.y * m, 3, 1e-3);
  EXPECT_NEAR(c.Position.x, 0, PRES);
  EXPECT_NEAR(c.Direction.x, 0, PRES);
  EXPECT_NEAR(c.Direction.y / c.Direction.z, (45 - c.Position.y) / -c.Position.z, PRES);
  // Wide enough to take in the whole window from there, 200 units across.
  EXPECT_GE(c.DemiChamp * -c.Position.z, 100);
  EXPECT_EQ(PoseCamera(TCamera::Public, r, 0, 215, 54).DemiChamp, 0.5f);

  // The pilots': a step behind the row at eye height, looking downwind and up at the window.
  const TPoseCamera p = PoseCamera(TCamera::Pilotes, r, 0, 215, 54);
  EXPECT_NEAR((rang - p.Position.z) * m, 1, 1e-3);
  EXPECT_NEAR(p.Position.y * m, 1.7, 1e-3);
  EXPECT_GT(p.Direction.z, 0);
  EXPECT_GT(p.Direction.y, 0);
  EXPECT_NEAR(p.Direction.x * p.Direction.x + p.Direction.y * p.Direction.y + p.Direction.z * p.Direction.z, 1,
              PRES);

  // Moves: up 5 is 5 units higher, half the distance halves the way to the axis, a quarter
  // turn to the left puts it on the window's left looking right.
  c = PoseCamera(TCamera::Juge, r, 0, 215, 59);
  EXPECT_NEAR(c.Position.y * m, 3 + 5 * m, 1e-3);
  c = PoseCamera(TCamera::Juge, r, 0, 107.5f, 54);
  EXPECT_NEAR((-c.Position.z) * m, (10 - rang * m) / 2, 1e-3);
  c = PoseCamera(TCamera::Pilotes, r, pi / 2, 215, 54);
  EXPECT_NEAR(c.Position.x, p.Position.z, PRES);
  EXPECT_NEAR(c.Direction.x, p.Direction.z, PRES);
  EXPECT_NEAR(c.Position.z, 0, PRES);
  // Never below the ground, however far down it is moved.
  EXPECT_GT(PoseCamera(TCamera::Pilotes, r, 0, 215, 0).Position.y, 0);
}
}  // namespace
