// The flight generator and the key tracks given values that no routine holds, as a solver or
// a figure can still make them once every entry has checked its own: each loop that lays
// keys ends, with few keys, and sampling stays within the keys. A fault here hangs the test
// or fails it under the sanitizers.
#include <cmath>
#include <limits>
#include <string>

#include "demo/CV.h"
#include "model/Bornes.h"
#include "support/DocumentTest.h"

namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr float Infini = std::numeric_limits<float>::infinity();
constexpr double PI = 3.14159265358979323846;

class VolBornesTest : public DocumentTest {
protected:
  VolBornesTest() { cv.Trajectoire(&pistes); }

  std::size_t NbCles() const { return pistes.Ordre.size(); }
  std::string DernierStatut() const { return dialogues.Statuts.empty() ? std::string() : dialogues.Statuts.back(); }

  TTrajectoire pistes;
  CV cv;
};

TEST_F(VolBornesTest, ArcOrPointBeyondTheBoundsIsRefusedAndTheFlightGoesOnFromWhereItWas) {
  cv.Point(0, 0, 0, 50);
  for (float t : {3e8f, Infini, TEMPS_MAX * 1.0001f}) {
    cv.Arc(1, t, 10, 50, 20, 50, true);
    EXPECT_EQ(DernierStatut(), "!!!! Élément N°1 : temps hors limites!!!") << t;
  }
  cv.ArcRevo(-3, 3e8f, 10, 50, 20, 50, true, 90);
  EXPECT_EQ(DernierStatut(), "!!!! Élément de la Figure N°3 : temps hors limites!!!");
  cv.Point(4, -Infini, 5, 5);
  EXPECT_EQ(NbCles(), 1u);
  EXPECT_EQ(cv.T, 0.0f);
  EXPECT_EQ(cv.X, 0.0f);
  // The next arc starts from the point: keys at 10 and 20.
  cv.Arc(5, 20, 10, 50, 20, 50, true);
  EXPECT_EQ(NbCles(), 5u);
  EXPECT_EQ(cv.T, 20.0f);
}

TEST_F(VolBornesTest, FlightLastsNoLongerThanTheLongestRoutine) {
  cv.Point(0, -TEMPS_MAX, 0, 0);
  cv.Arc(1, 1, 10, 0, 20, 0, false);
  EXPECT_EQ(DernierStatut(), "!!!! Élément N°1 : temps hors limites!!!");
  EXPECT_EQ(NbCles(), 1u);
  cv.Segment(2, 0, 10, 0, 10);
  EXPECT_EQ(NbCles(), 4u);
  EXPECT_EQ(cv.T, 0.0f);
}

TEST_F(VolBornesTest, ArcEndingAtTheBoundLaysAKeyEveryTenthUpToIt) {
  cv.Point(0, TEMPS_MAX - 1000, 0, 0);
  cv.Arc(1, TEMPS_MAX, 10, 0, 20, 0, false);
  const auto& cles = pistes.Positions.GetCles();
  ASSERT_EQ(cles.size(), 101u);
  for (std::size_t i = 0; i < cles.size(); ++i) EXPECT_EQ(cles[i].first, TEMPS_MAX - 1000 + 10.0f * static_cast<float>(i));
  EXPECT_EQ(cv.T, TEMPS_MAX);
}

TEST_F(VolBornesTest, TurnToAnAngleNoRoutineHoldsLaysOnlyTheElementsOwnKeys) {
  for (float angle : {NaN, Infini, -Infini, 1e10f, -ANGLE_MAX - 1}) {
    pistes = TTrajectoire();
    cv = CV();
    cv.Trajectoire(&pistes);
    cv.Point(0, 0, 0, 50);
    cv.SegRevo(1, 200, 10, 50, angle);
    cv.Rot(2, 300, angle);
    cv.ArcRevo(3, 400, 10, 60, 10, 70, true, angle);
    // The point, two keys at the end of each element, and the arc's position every tenth.
    EXPECT_EQ(NbCles(), 1u + 2 + 2 + 10 + 2) << angle;
    EXPECT_EQ(cv.T, 400.0f);
  }
}

TEST_F(VolBornesTest, TurnToTheBoundLaysAKeyEveryQuarterTurn) {
  for (float angle : {ANGLE_MAX, -ANGLE_MAX}) {
    pistes = TTrajectoire();
    cv = CV();
    cv.Trajectoire(&pistes);
    cv.Point(0, 0, 0, 50);  // heading 0
    cv.Rot(1, 100000, angle);
    // 1111 quarter turns fit in 100000 degrees; the last at 99990, at its time on the way.
    ASSERT_EQ(pistes.Orientations.nbCles(), 1111u + 1);
    const auto& avantDerniere = pistes.Ordre[pistes.Ordre.size() - 3];
    EXPECT_FLOAT_EQ(avantDerniere.t, 99990.0f);
    EXPECT_FLOAT_EQ(avantDerniere.O.Y.x, static_cast<float>(std::sin(std::copysign(99990.0, angle) * PI / 180)));
  }
}

TEST_F(VolBornesTest, TrackSampledAtAnyFloatGivesAKeyOrBetweenTwo) {
  TPistePosition piste;
  piste.Ajoute(NaN, {9, 9, 9});  // has no place among the others
  piste.Ajoute(10, {1, 0, 0});
  piste.Ajoute(20, {3, 0, 0});
  piste.Ajoute(30, {5, 0, 0});
  ASSERT_EQ(piste.nbCles(), 3u);
  EXPECT_EQ(piste.Echantillonne(NaN).x, 1.0f);
  EXPECT_EQ(piste.Echantillonne(-NaN).x, 1.0f);
  EXPECT_EQ(piste.Echantillonne(-Infini).x, 1.0f);
  EXPECT_EQ(piste.Echantillonne(Infini).x, 5.0f);
  EXPECT_EQ(piste.Echantillonne(std::numeric_limits<float>::max()).x, 5.0f);
  EXPECT_EQ(piste.Echantillonne(25).x, 4.0f);
}

}  // namespace
