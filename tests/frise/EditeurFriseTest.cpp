// What the timeline does to the editor: an element chosen on it, and the snapping of a time
// typed in a bar.
#include <gtest/gtest.h>

#include <cmath>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "frise/Battements.h"
#include "frise/Pistes.h"
#include "frise/Selection.h"
#include "support/Fichiers.h"

namespace {

class EditeurFriseTest : public FichiersTest {
protected:
  void TearDown() override {
    Alignement = TAlignement();
    FichiersTest::TearDown();
  }
  // The routine of the companion's cases: three sheets, kite 0's element 9 the first on sheet 3.
  void OuvreTroisFeuilles() {
    Ecrit("vague.fig", Donnee("commandes/vague.fig"));
    ASSERT_TRUE(Ouvre(Donnee("commandes/frise_trois_feuilles.rou")));
    frise = ConstruitFrise();
    ASSERT_EQ(frise.Pistes.size(), 3u);
  }
  TElt* Element(int cv, int index) {
    return const_cast<TElt*>(frise.Pistes[static_cast<std::size_t>(cv)].Blocs[static_cast<std::size_t>(index)].Elt);
  }
  TFrise frise;
};

TEST_F(EditeurFriseTest, AChosenBlockBringsItsSheetToTheFrontAndIsSelected) {
  OuvreTroisFeuilles();
  ASSERT_EQ(cadre->pFenDesActive->Num, 1);
  TElt* pose = Element(0, 9);
  ASSERT_TRUE(SelectionneElement(*cadre, pose));
  EXPECT_EQ(cadre->pFenDesActive->Num, 3);
  EXPECT_EQ(cadre->GetOngletActif(), 2);
  EXPECT_EQ(TFenDessin::pEltCourant, pose);
  // Then one of another kite on sheet 1: back there, the selection moves.
  TElt* seg = Element(1, 1);
  ASSERT_TRUE(SelectionneElement(*cadre, seg));
  EXPECT_EQ(cadre->pFenDesActive->Num, 1);
  EXPECT_EQ(TFenDessin::pEltCourant, seg);
  EXPECT_FALSE(SelectionneElement(*cadre, nullptr));
}

TEST_F(EditeurFriseTest, ATypedTimeSnapsToTheNearestBeatOrMarkOnlyWhenAsked) {
  OuvreTroisFeuilles();  // TEMPO 120 50: a beat every 50 hundredths; marks at 400 and 1200
  TElt* seg = Element(1, 3);  // kite 1's last segment, ending at 2000, free in time
  ASSERT_TRUE(SelectionneElement(*cadre, seg));
  seg->OpenBD();
  ASSERT_NE(seg->pBD, nullptr);
  auto tape = [&](const char* t) {
    seg->pBD->Tape(IDC_T, t);
    return seg->t2.GetParam();
  };
  EXPECT_FLOAT_EQ(tape("1937"), 1937.0f);  // the option off: as typed
  Alignement.Actif = true;
  Alignement.PixelsParCentieme = 0.1;  // 5 pixels are 50 hundredths
  EXPECT_FLOAT_EQ(tape("1937"), 1950.0f);
  EXPECT_FLOAT_EQ(tape("1222"), 1200.0f);  // the mark, nearer than the beat at 1250
  Alignement.PixelsParCentieme = 2;  // 2.5 hundredths
  EXPECT_FLOAT_EQ(tape("1937"), 1937.0f);
  EXPECT_FLOAT_EQ(tape("1948"), 1950.0f);
}

TEST_F(EditeurFriseTest, ABlockEndDraggedMovesAsATypedTimeDoesAndOnlyWhereOneMayBeTyped) {
  OuvreTroisFeuilles();
  TElt* seg = Element(1, 3);  // kite 1's last segment, ending at 2000, free in time
  ASSERT_TRUE(SelectionneElement(*cadre, seg));
  ASSERT_TRUE(PrendFin(seg));
  EXPECT_TRUE(DeplaceFin(seg, 1937.4));
  EXPECT_FLOAT_EQ(seg->t2.GetParam(), 1937.0f);
  // The timeline built again shows the block ending there, and its kite with it.
  frise = ConstruitFrise();
  EXPECT_FLOAT_EQ(frise.Pistes[1].Blocs[3].Fin, 1937.0f);
  Alignement.Actif = true;
  Alignement.PixelsParCentieme = 0.1;
  auto deplace = [&](double t) {
    EXPECT_TRUE(DeplaceFin(seg, t));
    return seg->t2.GetParam();
  };
  EXPECT_FLOAT_EQ(deplace(1937.4), 1950.0f);
  EXPECT_FLOAT_EQ(deplace(1e12), 1950.0f);  // beyond what a routine takes: kept
  EXPECT_FLOAT_EQ(deplace(std::nan("")), 1950.0f);
  // The whole drag is undone at once; a drag the undo took the element from goes no further.
  cadre->pFenDesActive->Undo();
  frise = ConstruitFrise();
  EXPECT_FLOAT_EQ(frise.Pistes[1].Blocs[3].Fin, 2000.0f);
  EXPECT_FALSE(DeplaceFin(seg, 1800));
  EXPECT_FALSE(SelectionneElement(*cadre, seg));
  EXPECT_FLOAT_EQ(frise.Pistes[1].Blocs[3].Elt->t2.GetParam(), 2000.0f);

  // An end a synchronisation sets, or an even speed, is not the user's to drag.
  TElt* synchronise = Element(1, 2);
  ASSERT_TRUE(SelectionneElement(*cadre, synchronise));
  EXPECT_FALSE(PrendFin(synchronise));
  EXPECT_FALSE(DeplaceFin(synchronise, 700));
  EXPECT_FLOAT_EQ(synchronise->t2.GetParam(), 950.0f);
  TElt* vitesse = Element(0, 1);
  ASSERT_TRUE(SelectionneElement(*cadre, vitesse));
  EXPECT_FALSE(FinDeplacable(vitesse));
  EXPECT_FALSE(FinDeplacable(nullptr));
}

}  // namespace
