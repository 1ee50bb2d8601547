// Reading routines into the editor's document: the links it builds and what a second opening
// leaves of the first. What a routine reads as, line by line, is in the companion's cases
// (tests/data/resave); an insertion, in its cases (tests/data/commandes).
#include <gtest/gtest.h>

#include "model/elements/Axel.h"
#include "model/elements/Segment.h"
#include "support/Fichiers.h"

namespace {

class LectureTest : public FichiersTest {};

TEST_F(LectureTest, OpeningLinksTheChildAndEmptiesWhatThePreviousRoutineLeft) {
  ASSERT_TRUE(Ouvre(Donnee("resave/routine_courte.rou")));
  auto* pere = static_cast<TElt*>(TabLElt[0].GetPt(1));
  auto* fils = static_cast<TElt*>(TabLElt[1].GetPt(1));
  EXPECT_EQ(fils->pPere, pere);
  EXPECT_EQ(pere->pFils[0], fils);
  EXPECT_EQ(pere->NumSynchro, 1);
  EXPECT_EQ(fils->pFen, cadre->GetFeuille(0));
  EXPECT_FLOAT_EQ(static_cast<TElt*>(TabLElt[0].GetPt(2))->GetV(), 0.4f);  // carried in the text, dropped

  ASSERT_TRUE(Ouvre("POINT\t0\t0\t2\t3\t0\t\t5  5\t\t0.4\t\t\n"));
  EXPECT_EQ(Team, 1);
  EXPECT_STREQ(_FichierMusique, "");
  EXPECT_EQ(nbCV, 1);
  EXPECT_EQ(TabLElt[0].nbNoeud(), 1);
  EXPECT_TRUE(TabLElt[1].IsVide());
  EXPECT_EQ(TElt::NbElt, 1);
  EXPECT_EQ(NbFenDesOuvertes, 3);
  EXPECT_EQ(cadre->nbFeuilles, 4);  // one more than the highest sheet used

  EXPECT_FALSE(LitRoutine(*cadre, "nulle-part.rou"));
  EXPECT_TRUE(TabLElt[0].IsVide());  // emptied before the file was looked for
  EXPECT_FALSE(ChargementFichierEnCours);
}

}  // namespace
