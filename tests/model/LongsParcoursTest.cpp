// Tracks far longer than a recursion back along them could walk: the solver, the direction
// of lines of no length, and a drag handed back through a run of manoeuvres.
#include <gtest/gtest.h>

#include "model/elements/Axel.h"
#include "model/elements/Rot.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class LongsParcoursTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

TEST_F(LongsParcoursTest, AMillionElementStretchSolvesWithoutDeepRecursion) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  constexpr int n = 1'000'000;
  TElt* avant = nullptr;
  for (int i = 1; i <= n; ++i) avant = Ajoute<TSegment>(f.fen, 0, 0, i % 2);
  auto* fin = Ajoute<TSegment>(f.fen, 0, 0, 0);  // one unit more, one hundredth each
  fin->Contrainte = CONTRAINTE_TEMPS;
  fin->Sett2Param(2'000'001);
  TFenDessin::MiseAJourVTotale();
  EXPECT_NEAR(avant->Gett2Param(), 2'000'000, 1);
  EXPECT_FLOAT_EQ(avant->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(fin->Gett2Param(), 2'000'001);
  EXPECT_FALSE(MiseAJourVTotaleEnCours);
}

TEST_F(LongsParcoursTest, RunsOfEmptyLinesAndManoeuvresAreWalkedWithoutDeepRecursion) {
  Ajoute<TPt>(f.fen, 0, 5, 5);
  TElt* dernier = nullptr;
  for (int i = 0; i < 200000; ++i)
    dernier = i % 2 ? static_cast<TElt*>(Ajoute<TSegment>(f.fen, 0, 5, 5)) : Ajoute<TDerapage>(f.fen, 0, 5, 5);
  EXPECT_EQ(dernier->GetVDir(), TVect(0, 1));  // back to the start point, which points up

  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 1, 10, 10);
  for (int i = 0; i < 200000; ++i)
    dernier = i % 2 ? static_cast<TElt*>(Ajoute<TRot>(f.fen, 1, 10, 10, 0.0f)) : Ajoute<TSegment>(f.fen, 1, 10, 10);
  auto* axel = Ajoute<TAxel>(f.fen, 1, 10, 10);
  EXPECT_EQ(dernier->GetVDir(), TVect(10, 10));  // back through empty lines and rotations
  axel->Setpp2(TPointf(1, 2));
  EXPECT_EQ(seg->Getp2Param(), TPointf(10, 10));
  EXPECT_EQ(dernier->Getp2Param(), TPointf(1, 2));
}

TEST_F(LongsParcoursTest, AnUpdateFromAnElementInNoListSaysSo) {
  TSegment seul(TPoint(0, 0), &f.fen, nullptr, &TabLElt[0]);
  TFenDessin::MiseAJourV(&seul, true, true);
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Titre + ": " + dialogues.Boites[0].Texte, "MiseAJourV: pE = NULL");
}

}  // namespace
