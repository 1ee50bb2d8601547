// Arcs in a track: the end derived from radius and sweep, the three kinds of drag, moves,
// mirrors, copies, hit test, bar texts and the solver's view of their length.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>

#include "model/ArcGeometrie.h"
#include "model/elements/Arc.h"
#include "support/BDEspion.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class ArcTest : public DocumentTest {
protected:
  // An arc after the start point (0, 0) of kite cv, which flies straight up.
  TArc* ArcApresDepart(float rayon, float angle, int cv = 0) {
    Ajoute<TPt>(f.fen, cv, 0, 0);
    auto* a = Ajoute<TArc>(f.fen, cv, 0, 0);
    a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, rayon, angle);
    return a;
  }
  TFeuilleTest f;
};

void ExpectProche(const TPointf& a, float x, float y) {
  EXPECT_NEAR(a.x, x, 1e-3f);
  EXPECT_NEAR(a.y, y, 1e-3f);
}

TEST_F(ArcTest, NewArcHasNoLengthAndItsEndStaysUntilItHasARadius) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TArc>(f.fen, 0, 7, 8);
  EXPECT_EQ(a->Contrainte, CONTRAINTE_VCONSTANTE);
  EXPECT_EQ(a->EtatArc, ETAT_ARC_NON_CALCULE);
  EXPECT_EQ(a->CalculLongueur(), 0.0f);
  EXPECT_EQ(a->Getp2(), TPointf(7, 8));
  EXPECT_EQ(a->EtatArc, -1);
  EXPECT_EQ(Ajoute<TArcRevo>(f.fen, 0, 0, 0, 450.0f)->GetAngle(), 90);
}

TEST_F(ArcTest, EndDirectionAndHitTestFollowFromRadiusAndSweep) {
  TArc* a = ArcApresDepart(10, QUART_DE_TOUR);  // up, then a quarter turn to the right
  EXPECT_EQ(a->EtatArc, 1);
  ExpectProche(a->Getp2Param(), 10, 10);
  EXPECT_FLOAT_EQ(a->CalculLongueur(), 15.707964f);
  EXPECT_EQ(a->GetVDir(), TVect(10, 0));  // flying right, as long as the radius
  // The whole circle is hit, centre pixel (488, 408), radius 40 px, even off the swept part.
  EXPECT_TRUE(a->Clic(f.dc, 1, TPoint(488, 448 + 5)));
  EXPECT_FALSE(a->Clic(f.dc, 1, TPoint(488, 448 + 6)));
  EXPECT_FALSE(a->Clic(f.dc, 2, TPoint(488, 448)));
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, -QUART_DE_TOUR);
  EXPECT_EQ(a->GetVDir(), TVect(-10, 0));
  // No sweep: a valid arc of no length, flying on in the previous direction.
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, 0);
  EXPECT_EQ(a->EtatArc, 1);
  EXPECT_EQ(a->Getp2Param(), TPointf(0, 0));
  EXPECT_EQ(a->GetVDir(), TVect(0, 1));
}

TEST_F(ArcTest, DragSetsRadiusAndSweep) {
  TArc* a = ArcApresDepart(0, 0);
  auto* bd = new TBDEspion(a);
  a->pBD = bd;
  a->Setp2Poignee(TPointf(10, 10));
  EXPECT_EQ(a->EtatArc, 1);
  EXPECT_FLOAT_EQ(a->Rayon, 10);
  EXPECT_FLOAT_EQ(a->Angle, QUART_DE_TOUR);
  EXPECT_EQ(a->RectCercle, TRect(448, 368, 529, 449));  // centre (10, 0) is pixel (488, 408)
  // Past a half turn on either side: 225 degrees round a circle of radius 5.
  const float d = 5 * std::sqrt(0.5f);
  for (const float cote : {-1.0f, 1.0f}) {
    a->Setp2Poignee(TPointf(cote * (5 + d), -d));
    EXPECT_NEAR(a->Rayon, 5, 1e-4f);
    EXPECT_NEAR(a->Angle, cote * 5 * DEMI_TOUR / 4, 1e-4f);
    EXPECT_EQ(a->Sens, cote < 0);
    ExpectProche(a->Getp2(), cote * (5 + d), -d);  // the sweep leads back to the same end
  }
  EXPECT_EQ(bd->Champs[IDC_ANGLE], "225");
  // On the start: a beep and the values stay. Straight ahead: a beep and no sweep.
  a->Setp2Poignee(TPointf(0, 0));
  EXPECT_EQ(a->EtatArc, -1);
  EXPECT_NEAR(a->Angle, 5 * DEMI_TOUR / 4, 1e-4f);
  a->Setp2Poignee(TPointf(0, 20));
  EXPECT_EQ(a->EtatArc, -2);
  EXPECT_EQ(a->Angle, 0.0f);
  EXPECT_NEAR(a->Rayon, 5, 1e-4f);
  EXPECT_EQ(dialogues.Bips, 2);
}

TEST_F(ArcTest, DragByRadiusOrBySweepKeepsTheOther) {
  TArc* a = ArcApresDepart(10, QUART_DE_TOUR);
  a->TypeArc = TYPE_ARC_RAYON;
  // The circle tangent to up at the origin through (30, 10) has its centre at (50/3, 0); the
  // end goes to the stored quarter turn on it, away from the mouse.
  a->Setp2Poignee(TPointf(30, 10));
  EXPECT_EQ(a->EtatArc, 1);
  EXPECT_FLOAT_EQ(a->Angle, QUART_DE_TOUR);
  EXPECT_NEAR(a->Rayon, 50.0f / 3, 1e-4f);
  ExpectProche(a->Getp2Param(), 50.0f / 3, 50.0f / 3);

  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);
  a->TypeArc = TYPE_ARC_ANGLE;
  a->Setp2Poignee(TPointf(30, 0));  // on the ray from the centre (10, 0): a half turn
  EXPECT_FLOAT_EQ(a->Rayon, 10);
  EXPECT_NEAR(a->Angle, DEMI_TOUR, 1e-5f);
  ExpectProche(a->Getp2Param(), 20, 0);
}

TEST_F(ArcTest, ZeroDirectionBeforeTheArcFailsAndKeepsTheStoredValues) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 0, 0)->Setp2Param(TPointf(0.5f, 0.5f));  // direction (0, 0)
  auto* a = Ajoute<TArc>(f.fen, 0, 7, 8);
  a->Rayon = 10;
  a->Angle = 1;
  EXPECT_EQ(a->Getp2(), TPointf(7, 8));
  EXPECT_EQ(a->EtatArc, -1);
  for (const int type : {TYPE_ARC_RAYON, TYPE_ARC_ANGLE}) {
    a->TypeArc = type;
    a->Setp2Poignee(TPointf(3, 4));
    EXPECT_EQ(a->EtatArc, -1);
    EXPECT_TRUE(a->Rayon == 10 && a->Angle == 1);
  }
}

TEST_F(ArcTest, EndFollowsTheStartAndNeverMovesByItself) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* s = Ajoute<TSegment>(f.fen, 0, 10, 0);
  auto* a = Ajoute<TArc>(f.fen, 0, 0, 0);
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);
  ExpectProche(a->Getp2Param(), 20, -10);
  s->Setpp2(TPointf(10, 10));  // now flying at 45 degrees up: the turn ends flying down-right
  ExpectProche(a->Getp2(), 10 + 10 * std::sqrt(2.0f), 10);
  EXPECT_TRUE(a->Rayon == 10 && a->Angle == QUART_DE_TOUR);
  s->Setpp2(TPointf(10, 0));
  a->Translate(3, 0, false);
  ExpectProche(a->Getp2Param(), 20, -10);
  a->Translate(3, 0, true);
  EXPECT_EQ(s->Getp2Param(), TPointf(13, 0));
  ExpectProche(a->Getp2Param(), 23, -10);
}

TEST_F(ArcTest, MirrorsReverseTheTurnAndAHalfTurnKeepsIt) {
  // A start point, a line to (10, 0) and an arc, moved about the destination (5, 5) as a
  // paste moves them; sx, sy: the map of the plane.
  struct Cas {
    int Mode;
    float sx, sy, Angle;
  };
  int cv = 0;
  for (const Cas& k : {Cas{TRANSFORMATION_PARALLELE, 1, 1, 1}, Cas{TRANSFORMATION_SYMETRIE_X, 1, -1, -1},
                       Cas{TRANSFORMATION_SYMETRIE_Y, -1, 1, -1}, Cas{TRANSFORMATION_SYMETRIE_POINT, -1, -1, 1}}) {
    SCOPED_TRACE(k.Mode);
    TElt* e[] = {Ajoute<TPt>(f.fen, cv, 0, 0), Ajoute<TSegment>(f.fen, cv, 10, 0), Ajoute<TArc>(f.fen, cv, 0, 0)};
    auto* a = static_cast<TArc*>(e[2]);
    a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, 1);
    const TPointf avant = a->Getp2Param();
    for (TElt* x : e) x->Transforme(TPointf(0, 0), TPointf(5, 5), k.Mode);
    EXPECT_EQ(a->Angle, k.Angle);
    ExpectProche(a->Getp2Param(), 5 + k.sx * avant.x, 5 + k.sy * avant.y);
    ++cv;
  }
}

TEST_F(ArcTest, CopyKeepsTheArcFields) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TArcRevo>(f.fen, 0, 0, 0, 30.0f);
  a->Set(0, CONTRAINTE_TEMPS, 120, 0.3f, 10, 2);  // a right turn: Sens false, unlike a new arc
  a->TypeArc = TYPE_ARC_ANGLE;
  std::unique_ptr<TElt> copie(a->Copie(&TabLElt[1], false));
  auto* c = dynamic_cast<TArcRevo*>(copie.get());
  ASSERT_NE(c, nullptr);
  EXPECT_EQ(c->AngleRevo, 30.0f);
  EXPECT_EQ(c->TypeArc, TYPE_ARC_ANGLE);
  EXPECT_EQ(c->RectCercle, a->RectCercle);
  EXPECT_FALSE(c->Sens);
  EXPECT_EQ(c->Centre, a->Centre);
  EXPECT_TRUE(c->Rayon == 10 && c->Angle == 2 && c->Gett2Param() == 120);
}

TEST_F(ArcTest, BarShowsRadiusAndRoundedDegreesExceptWhilePrinting) {
  const float rad = DEMI_TOUR / 180;
  // Positive sweeps under a degree show as 0; the rest round to the nearest degree.
  for (const auto& [deg, attendu] :
       std::initializer_list<std::pair<float, int>>{{0.7f, 0}, {-0.7f, -1}, {1.6f, 2}, {-2.4f, -2}, {-2.6f, -3}})
    EXPECT_EQ(ArrondiDegres(deg * rad), attendu) << deg;

  TArc* a = ArcApresDepart(10, QUART_DE_TOUR);
  auto* bd = new TBDEspion(a);
  a->pBD = bd;
  a->SetTBDParam(TPointf(1, 2), 123.456f, -23456.3f * rad);
  EXPECT_EQ(bd->Champs[IDC_RAYON], "123.46");
  EXPECT_EQ(bd->Champs[IDC_ANGLE], "-2.346e+04");
  TFenDessin::Imp.blImpression = true;
  a->Rayon = 20;
  a->Getp2();
  EXPECT_EQ(bd->Champs[IDC_RAYON], "123.46");
  TFenDessin::Imp.blImpression = false;
  a->Getp2();
  EXPECT_EQ(bd->Champs[IDC_RAYON], "20");
}

TEST_F(ArcTest, TrackWithoutAStartOrASheetDoesNotCrash) {
  auto* seul = Ajoute<TArc>(f.fen, 0, 4, 4);
  seul->Rayon = 10;
  for (const int type : {TYPE_ARC_RAYON_ANGLE, TYPE_ARC_RAYON, TYPE_ARC_ANGLE}) {
    seul->TypeArc = type;
    seul->Setp2Poignee(TPointf(9, 9));
    EXPECT_EQ(seul->EtatArc, -1);
  }
  EXPECT_EQ(seul->Getp2(), TPointf(9, 9));
  auto* a = new TArc(TPoint(0, 0), nullptr, nullptr, &TabLElt[1]);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  TabLElt[1].Append(a);
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);
  EXPECT_EQ(a->EtatArc, 1);
  EXPECT_FALSE(a->Clic(f.dc, 1, TPoint(488, 448)));
}

TEST_F(ArcTest, SolverFliesTheArcAtTheSpeedOfItsStretch) {
  TArc* a = ArcApresDepart(10, QUART_DE_TOUR);  // ends at (10, 10)
  auto* ancre = Ajoute<TSegment>(f.fen, 0, 10, 30);
  ancre->Contrainte = CONTRAINTE_TEMPS;
  ancre->Sett2Param(700);
  nbCV = 1;
  TFenDessin::MiseAJourVTotale();
  // From the point (t 0) to the anchor (t 700): 15.707964 + 20 = 35.707964, taken as 35
  // whole units, so 35 / 700 = 0.05 per hundredth. The arc ends at 15.707964 / 0.05 =
  // 314.15928 and is flown at 15.707964 / 314.15928 = 0.05.
  EXPECT_NEAR(a->Gett2Param(), 314.15928f, 1e-3f);
  EXPECT_NEAR(a->GetV(), 0.05f, 1e-6f);
}

}  // namespace
