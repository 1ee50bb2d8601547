// A track with every kind of element, solved end to end.
#include <gtest/gtest.h>

#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

constexpr float QUART = 1.5707964f;

class ParcoursMixteTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

TEST_F(ParcoursMixteTest, ArcAfterANewGoToStartsStraightUp) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TAllerA>(f.fen, 0, 0, 20);
  auto* arc = Ajoute<TArc>(f.fen, 0, 0, 0);
  arc->Set(0, CONTRAINTE_VCONSTANTE, 0, 0.4f, 10, QUART);
  EXPECT_EQ(arc->EtatArc, 1);
  EXPECT_NEAR(arc->Centre.x, 10, 1e-4);
  EXPECT_NEAR(arc->Centre.y, 20, 1e-4);
  EXPECT_NEAR(arc->Getp2Param().x, 10, 1e-4);
  EXPECT_NEAR(arc->Getp2Param().y, 30, 1e-4);
}

TEST_F(ParcoursMixteTest, EveryKindOfElementInOneTrack) {
  nbCV = 1;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 0, 40);
  auto* arc = Ajoute<TArc>(f.fen, 0, 0, 0);
  arc->Set(0, CONTRAINTE_VCONSTANTE, 0, 0.4f, 10, QUART);  // right turn: centre (10, 40), end (10, 50)
  auto* axel = Ajoute<TAxel>(f.fen, 0, 0, 0);               // on the left: flight goes on along -x
  axel->Getp2();  // a manoeuvre's stored point follows its predecessor when it is read
  auto* revo = Ajoute<TArcRevo>(f.fen, 0, 0, 0, 45.0f);
  revo->Set(0, CONTRAINTE_TEMPS, 500, 0.4f, 10, QUART, 45);  // centre (10, 60), end (0, 60)
  auto* pose = Ajoute<TPose>(f.fen, 0, 0, 0);
  auto* va = Ajoute<TAllerA>(f.fen, 0, 30, 20);
  auto* rot = Ajoute<TRot>(f.fen, 0, 0, 0, 90.0f);
  ASSERT_NEAR(revo->Getp2Param().x, 0, 1e-4);
  ASSERT_NEAR(revo->Getp2Param().y, 60, 1e-4);
  EXPECT_NEAR(pose->Getp2().y, 2.7, 1e-6);

  TFenDessin::MiseAJourVTotale();

  // First stretch, up to the revolution arc at 500: lengths 40 + 15.707964 + 0 + 15.707964
  // = 71.41593, truncated to 71; the axel's 110 leaves 390; even speed 71 / 390 = 0.18205128.
  const float v = 71.0f / 390.0f;
  EXPECT_NEAR(seg->Gett2Param(), 40 / v, 1e-3);                      // 219.718
  EXPECT_NEAR(arc->Gett2Param(), 40 / v + 15.707964f / v, 1e-3);     // 306.002
  EXPECT_NEAR(axel->Gett2Param(), 40 / v + 15.707964f / v + 110, 1e-3);  // 416.002
  EXPECT_NEAR(seg->GetV(), v, 1e-6);
  EXPECT_NEAR(arc->GetV(), v, 1e-6);
  EXPECT_FLOAT_EQ(revo->Gett2Param(), 500);
  // The anchor takes what is left: 15.707964 in 500 - 416.002.
  EXPECT_NEAR(revo->GetV(), 15.707964f / (500 - (40 / v + 15.707964f / v + 110)), 1e-5);  // 0.187003
  // Second stretch, with no anchor after it: the default speed. The landing flies down
  // 60 - 2.7 = 57.3 units in 143.25 and stays 100; the go-to and the rotation take 100 each.
  EXPECT_NEAR(pose->Gett2Param(), 500 + 143.25 + 100, 1e-3);
  EXPECT_NEAR(pose->GetV(), 0.4, 1e-6);
  EXPECT_NEAR(va->Gett2Param(), 843.25, 1e-3);
  EXPECT_NEAR(rot->Gett2Param(), 943.25, 1e-3);
  EXPECT_TRUE(dialogues.Statuts.empty());
}

}  // namespace
