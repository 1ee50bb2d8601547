// Straight flight: direction, length, hit test and moves of points, segments and slides.
#include <gtest/gtest.h>

#include <cmath>

#include "support/BDEspion.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class DroitsTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

// TSegment and TDerapage share every rule of their shape.
template <class T>
class LigneTest : public DroitsTest {};
using Lignes = ::testing::Types<TSegment, TDerapage>;
TYPED_TEST_SUITE(LigneTest, Lignes);

TYPED_TEST(LigneTest, DirectionIsEndMinusStartTruncated) {
  Ajoute<TPt>(this->f.fen, 0, 0, 0);
  auto* l = Ajoute<TypeParam>(this->f.fen, 0, 0, 0);
  l->Setp2Param(TPointf(10.9f, -5.5f));
  EXPECT_EQ(l->GetVDir(), TVect(10, -5));
  EXPECT_FLOAT_EQ(l->CalculLongueur(), 12.209013f);  // sqrt(10.9² + 5.5²)
}

TYPED_TEST(LigneTest, LineOfNoLengthFliesOnInThePreviousDirection) {
  Ajoute<TPt>(this->f.fen, 0, 0, 0);
  Ajoute<TSegment>(this->f.fen, 0, 30, 40);
  auto* nul = Ajoute<TypeParam>(this->f.fen, 0, 30, 40);
  EXPECT_EQ(nul->GetVDir(), TVect(30, 40));
  EXPECT_EQ(nul->CalculLongueur(), 0.0f);
  EXPECT_FALSE(nul->Clic(this->f.dc, 1, this->f.fen.LPtoDP(TPointf(30, 40))));
}

TYPED_TEST(LigneTest, LineShorterThanAUnitHasNoDirection) {
  Ajoute<TPt>(this->f.fen, 0, 0, 0);
  auto* l = Ajoute<TypeParam>(this->f.fen, 0, 0, 0);
  l->Setp2Param(TPointf(0.5f, 0.5f));
  EXPECT_EQ(l->GetVDir(), TVect(0, 0));  // no fall back to the previous element
  EXPECT_FLOAT_EQ(l->CalculLongueur(), 0.70710677f);
}

TYPED_TEST(LigneTest, TranslateMovesTheStartOnlyWithAStretch) {
  Ajoute<TPt>(this->f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(this->f.fen, 0, 10, 10);
  auto* l = Ajoute<TypeParam>(this->f.fen, 0, 20, 10);
  auto* suivant = Ajoute<TSegment>(this->f.fen, 0, 30, 30);
  l->Translate(5, -2, false);
  EXPECT_EQ(l->Getp2Param(), TPointf(25, 8));
  EXPECT_EQ(a->Getp2Param(), TPointf(10, 10));
  // The next element starts where this one ends, so it follows by construction.
  EXPECT_FLOAT_EQ(suivant->CalculLongueur(), std::hypot(5.0f, 22.0f));
  l->Translate(1, 1, true);
  EXPECT_EQ(l->Getp2Param(), TPointf(26, 9));
  EXPECT_EQ(a->Getp2Param(), TPointf(11, 11));
}

TYPED_TEST(LigneTest, ClicCatchesTheBodyWithinFivePixels) {
  Ajoute<TPt>(this->f.fen, 0, 0, 10);                 // pixel (448, 368)
  auto* l = Ajoute<TypeParam>(this->f.fen, 0, 20, 10);  // pixel (528, 368)
  auto& dc = this->f.dc;
  EXPECT_TRUE(l->Clic(dc, 1, TPoint(488, 368)));
  EXPECT_TRUE(l->Clic(dc, 1, TPoint(488, 373)));
  EXPECT_TRUE(l->Clic(dc, 1, TPoint(488, 363)));
  EXPECT_FALSE(l->Clic(dc, 1, TPoint(488, 374)));
  EXPECT_FALSE(l->Clic(dc, 1, TPoint(540, 368)));  // beyond the end
  EXPECT_FALSE(l->Clic(dc, 2, TPoint(488, 368)));  // on another sheet
}

TEST_F(DroitsTest, RunOfEmptyLinesAfterAStartPointPointsUp) {
  Ajoute<TPt>(f.fen, 0, 5, 5);
  TElt* dernier = nullptr;
  // Long enough that a recursive walk back would exhaust the stack.
  for (int i = 0; i < 200000; ++i)
    dernier = i % 2 ? static_cast<TElt*>(Ajoute<TSegment>(f.fen, 0, 5, 5)) : Ajoute<TDerapage>(f.fen, 0, 5, 5);
  EXPECT_EQ(dernier->GetVDir(), TVect(0, 1));
}

TEST_F(DroitsTest, StartPointHasNoShapeOfItsOwn) {
  auto* pt = Ajoute<TPt>(f.fen, 0, 7, 8);
  EXPECT_EQ(pt->GetVDir(), TVect(0, 1));
  EXPECT_EQ(pt->CalculLongueur(), 0.0f);
  pt->Translate(10, 10, true);
  EXPECT_EQ(pt->Getp2Param(), TPointf(7, 8));
  pt->Set(0, CONTRAINTE_TEMPS, 42);
  EXPECT_EQ(pt->Gett2Param(), 42.0f);
}

TEST_F(DroitsTest, FirstLineOfAListHasNothingToReadBehindIt) {
  // A damaged routine may start with a line: it must not read before the list.
  auto* l = Ajoute<TSegment>(f.fen, 0, 10, 10);
  EXPECT_EQ(l->CalculLongueur(), 0.0f);
  EXPECT_EQ(l->GetVDir(), TVect(0, 1));
  EXPECT_FALSE(l->Clic(f.dc, 1, TPoint(488, 368)));
  l->Translate(1, 1, true);
  EXPECT_EQ(l->Getp2Param(), TPointf(11, 11));
}

TEST_F(DroitsTest, SegRevoKeepsItsAngleAsAnOrientation) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* r = Ajoute<TSegRevo>(f.fen, 0, 10, 0, 450.0f);
  EXPECT_EQ(r->GetAngle(), 90);
  EXPECT_EQ(r->GetVDir(), TVect(10, 0));
  EXPECT_EQ(Ajoute<TSegment>(f.fen, 0, 20, 0)->GetAngle(), 0);

  auto* bd = new TBDEspion(r);
  r->pBD = bd;
  r->Set(3, CONTRAINTE_TEMPS, 500, 0.3f, -190);
  EXPECT_EQ(r->GetAngle(), 170);
  EXPECT_EQ(r->Gett2Param(), 500.0f);
  EXPECT_EQ(r->GetV(), 0.3f);
  EXPECT_EQ(bd->RafraichisAngle, 1);
  r->Set(3, CONTRAINTE_VCONSTANTE, 600, 0.2f);  // the four-value form keeps the angle
  EXPECT_EQ(r->GetAngle(), 170);
  EXPECT_EQ(r->Contrainte, CONTRAINTE_VCONSTANTE);
}

}  // namespace
