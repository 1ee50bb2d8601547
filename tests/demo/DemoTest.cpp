// Starting a demonstration from the editor: refused on a bare kite, else a new paused scene
// as long as the shortest kite, its tracks laid, then every time solved.
#include <gtest/gtest.h>

#include <cstring>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "support/Fichiers.h"
#include "support/Trace.h"

namespace {

class DemoTest : public FichiersTest {
protected:
  TFeuilleTest f;
};

TEST_F(DemoTest, KiteWithOnlyItsPointRefusesTheDemonstration) {
  nbCV = 2;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 10, 10)->Sett2Param(100);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  TFenDessin::Demo();
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Démo impossible : liste  vide");
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
}

TEST_F(DemoTest, SceneEndsWithTheShortestKiteAndTimesAreSolvedAfterTheKeys) {
  nbCV = 2;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  a->Sett2Param(100);  // stale: at the default speed it ends at 250
  Ajoute<TSegment>(f.fen, 0, 0, 200)->Set(0, CONTRAINTE_TEMPS, 1000, 0.4f);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  Ajoute<TSegment>(f.fen, 1, 0, 50)->Set(0, CONTRAINTE_TEMPS, 1200, 0.4f);
  TFenDessin::Demo();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.blDemoOK, 1);
  EXPECT_EQ(Globals.pD3DDemo->tFin, 999.0f);
  EXPECT_EQ(Globals.pD3DDemo->Mode, MODE_PAUSE);
  EXPECT_EQ(Globals.pD3DDemo->Trajectoires[0].Positions.GetCles()[1].first, 100.0f);
  EXPECT_FLOAT_EQ(a->Gett2Param(), 500);  // solved afterwards: 200 units between 0 and 1000

  TFenDessin::Demo();  // a new scene each time, laid from the times solved by the last one
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.pD3DDemo->Trajectoires[0].Positions.GetCles()[1].first, 500.0f);
}

TEST_F(DemoTest, MusicIsOpenedWithTheSceneAndClosedWithIt) {
  std::strcpy(_FichierMusique, "absente.wav");
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 10, 10)->Sett2Param(100);
  TFenDessin::Demo();  // no sound device here: the box, and the demonstration goes on
  ASSERT_FALSE(dialogues.Boites.empty());
  EXPECT_EQ(dialogues.Boites.back().Titre, "Echec ouverture Musique");
  EXPECT_FALSE(TD3DDemo::MusiqueEnCours);
  EXPECT_NE(Globals.pD3DDemo, nullptr);
  FermeDemo();
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.blDemoOK, 0);
}

}  // namespace
