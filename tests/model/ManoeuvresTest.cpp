// Manoeuvres on the spot, the landing and the go-to: derived end points, directions,
// mirrors, copies, and what they add to a solved stretch.
#include <gtest/gtest.h>

#include "model/elements/AllerA.h"
#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "model/elements/Stop.h"
#include "support/BDEspion.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class ManoeuvresTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

TEST_F(ManoeuvresTest, NewManoeuvresCarryTheirDefaults) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* axel = Ajoute<TAxel>(f.fen, 0, 0, 0);
  auto* t540 = Ajoute<T540>(f.fen, 0, 0, 0);
  auto* rot = Ajoute<TRot>(f.fen, 0, 0, 0, 30.0f);
  auto* stop = Ajoute<TStop>(f.fen, 0, 0, 0);
  auto* pose = Ajoute<TPose>(f.fen, 0, 5, 40);
  auto* va = Ajoute<TAllerA>(f.fen, 0, 7, 8);
  EXPECT_EQ(axel->Contrainte, CONTRAINTE_DUREE);
  EXPECT_EQ(axel->GetDureeConstante(), 110.0f);
  EXPECT_EQ(t540->GetDureeConstante(), 110.0f);
  EXPECT_TRUE(axel->Gauche && t540->Gauche);
  EXPECT_EQ(rot->GetDureeConstante(), 100.0f);
  EXPECT_EQ(rot->GetAngle(), 30);
  EXPECT_EQ(stop->GetDureeConstante(), 100.0f);
  EXPECT_EQ(pose->Contrainte, CONTRAINTE_VCONSTANTE);
  EXPECT_EQ(pose->TypePose, POSE_DEUX_POINTES);
  EXPECT_EQ(pose->Getp2Param(), TPointf(5, 2));  // built at height 2
  EXPECT_EQ(va->Contrainte, CONTRAINTE_DUREE);
  EXPECT_EQ(va->GetDureeConstante(), 100.0f);
  EXPECT_FALSE(va->SurPlace);
  for (TElt* e : {static_cast<TElt*>(axel), static_cast<TElt*>(rot), static_cast<TElt*>(stop), static_cast<TElt*>(pose)})
    EXPECT_TRUE(e->SurPlace);
  EXPECT_TRUE(axel->IsCalculV() && t540->IsCalculV() && rot->IsCalculV());
  EXPECT_FALSE(stop->IsCalculV() || pose->IsCalculV() || va->IsCalculV());

  // Only the landing keeps a speed.
  for (TElt* e : {static_cast<TElt*>(axel), static_cast<TElt*>(rot), static_cast<TElt*>(stop), static_cast<TElt*>(va)}) {
    e->SetV(3);
    EXPECT_FLOAT_EQ(e->GetV(), 0.4f);
  }
  pose->SetV(3);
  EXPECT_EQ(pose->GetV(), 3.0f);
}

TEST_F(ManoeuvresTest, EndPointIsThePreviousEnd) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 20, 30);
  auto* axel = Ajoute<TAxel>(f.fen, 0, 0, 0);
  seg->Setp2Param(TPointf(25, 35));
  EXPECT_EQ(axel->Getp2(), TPointf(25, 35));
  EXPECT_EQ(axel->Getp2Param(), TPointf(25, 35));  // the stored point follows
  EXPECT_EQ(axel->CalculLongueur(), 0.0f);
  EXPECT_FALSE(axel->Clic(f.dc, 1, f.fen.LPtoDP(TPointf(25, 35))));
  EXPECT_TRUE(axel->Clicp2(f.dc, 1, f.fen.LPtoDP(TPointf(25, 35))));
  axel->Translate(10, 10, true);
  EXPECT_EQ(seg->Getp2Param(), TPointf(25, 35));
}

TEST_F(ManoeuvresTest, DraggingAChainOfManoeuvresMovesTheElementBeforeThem) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 20, 30);
  auto* a1 = Ajoute<TAxel>(f.fen, 0, 20, 30);
  auto* rot = Ajoute<TRot>(f.fen, 0, 20, 30, 90.0f);
  auto* a2 = Ajoute<TAxel>(f.fen, 0, 20, 30);
  auto* bd = new TBDEspion(seg);
  seg->pBD = bd;
  a2->Setpp2(TPointf(-4, 12));
  EXPECT_EQ(seg->Getp2Param(), TPointf(-4, 12));
  EXPECT_EQ(a1->Getp2Param(), TPointf(-4, 12));
  EXPECT_EQ(rot->Getp2Param(), TPointf(-4, 12));
  EXPECT_EQ(bd->Champs[IDC_X], "-4");  // through the segment's own Setpp2
  // Same point, still through Setpp2: the neighbour moves with a transformation.
  a2->Transforme(TPointf(0, 0), TPointf(10, 0), TRANSFORMATION_PARALLELE);
  EXPECT_EQ(seg->Getp2Param(), TPointf(6, 12));
}

TEST_F(ManoeuvresTest, LongRunOfManoeuvresNeedsNoDeepRecursion) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 10, 10);
  TElt* dernier = nullptr;
  for (int i = 0; i < 200000; ++i)
    dernier = i % 2 ? static_cast<TElt*>(Ajoute<TRot>(f.fen, 0, 10, 10, 0.0f)) : Ajoute<TSegment>(f.fen, 0, 10, 10);
  auto* axel = Ajoute<TAxel>(f.fen, 0, 10, 10);
  EXPECT_EQ(dernier->GetVDir(), TVect(10, 10));  // back through empty lines and rotations
  axel->Setpp2(TPointf(1, 2));
  EXPECT_EQ(seg->Getp2Param(), TPointf(10, 10));
  EXPECT_EQ(dernier->Getp2Param(), TPointf(1, 2));
}

TEST_F(ManoeuvresTest, DirectionsAfterEachManoeuvre) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 30, 40);
  auto* rot = Ajoute<TRot>(f.fen, 0, 30, 40, 45.0f);
  EXPECT_EQ(rot->GetVDir(), TVect(30, 40));
  auto* axel = Ajoute<TAxel>(f.fen, 0, 30, 40);
  EXPECT_EQ(axel->GetVDir(), TVect(-1, 0));
  axel->Gauche = false;
  EXPECT_EQ(axel->GetVDir(), TVect(1, 0));
  EXPECT_EQ(Ajoute<TStop>(f.fen, 0, 30, 40)->GetVDir(), TVect(0, 1));
  EXPECT_EQ(Ajoute<TPose>(f.fen, 0, 30, 40)->GetVDir(), TVect(0, 1));
  auto* va = Ajoute<TAllerA>(f.fen, 0, 0, 0);
  EXPECT_EQ(va->GetVDir(), TVect(0, 1));
  va->xY = 0.5f;
  va->yY = -0.9f;
  EXPECT_EQ(va->GetVDir(), TVect(0, 0));
  va->xY = -2.5f;
  EXPECT_EQ(va->GetVDir(), TVect(-2, 0));
}

TEST_F(ManoeuvresTest, LandingStaysOnTheGroundBelowThePreviousEnd) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 20, 60);
  auto* pose = Ajoute<TPose>(f.fen, 0, 0, 0);
  pose->Setpp2(TPointf(10, 50));
  EXPECT_EQ(pose->Getp2Param(), TPointf(10, 2.7f));
  EXPECT_EQ(seg->Getp2Param(), TPointf(10, 60));
  EXPECT_FLOAT_EQ(pose->CalculLongueur(), 57.3f);
  EXPECT_EQ(pose->Getp2(), TPointf(10, 2.7f));
  pose->Translate(5, 99, false);
  EXPECT_EQ(seg->Getp2Param(), TPointf(10, 60));
  pose->Translate(5, 99, true);
  EXPECT_EQ(seg->Getp2Param(), TPointf(15, 60));
  // A click on the way down catches it.
  EXPECT_TRUE(pose->Clic(f.dc, 1, f.fen.LPtoDP(TPointf(15, 30))));
  EXPECT_FALSE(pose->Clic(f.dc, 1, f.fen.LPtoDP(TPointf(20, 30))));
}

TEST_F(ManoeuvresTest, MirrorsSwapSidesAsTheyShould) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 10, 10);
  auto* axel = Ajoute<TAxel>(f.fen, 0, 10, 10);
  auto* t540 = Ajoute<T540>(f.fen, 0, 10, 10);
  auto* rot = Ajoute<TRot>(f.fen, 0, 10, 10, 70.0f);
  auto* pose = Ajoute<TPose>(f.fen, 0, 10, 10);
  auto* va = Ajoute<TAllerA>(f.fen, 0, 10, 40);
  pose->TypePose = POSE_POINTE_GAUCHE;
  va->Set(0, CONTRAINTE_DUREE, 0, 100, 1, 2, 3, 4, 5, 6, 7);
  const TPointf o(0, 0);
  struct Cas {
    int mode;
    bool gauche;
    int typePose;
    float xZ, yZ, xY, yY;
  };
  // Each row is applied to the state the row before left.
  for (const Cas& c : {Cas{TRANSFORMATION_MEMES_POINTS, true, 2, 1, 2, 4, 5},
                       Cas{TRANSFORMATION_PARALLELE, true, 2, 1, 2, 4, 5},
                       Cas{TRANSFORMATION_SYMETRIE_X, true, 2, 1, -2, 4, -5},
                       Cas{TRANSFORMATION_SYMETRIE_Y, false, 3, -1, -2, -4, -5},
                       Cas{TRANSFORMATION_SYMETRIE_POINT, true, 3, 1, 2, 4, 5}}) {
    for (TElt* e : {static_cast<TElt*>(axel), static_cast<TElt*>(t540), static_cast<TElt*>(rot),
                    static_cast<TElt*>(pose), static_cast<TElt*>(va)})
      e->Transforme(o, o, c.mode);
    EXPECT_EQ(axel->Gauche, c.gauche) << c.mode;
    EXPECT_EQ(t540->Gauche, c.gauche) << c.mode;
    EXPECT_EQ(rot->Angle, 70.0f) << c.mode;
    EXPECT_EQ(pose->TypePose, c.typePose) << c.mode;
    EXPECT_EQ(va->xZ, c.xZ) << c.mode;
    EXPECT_EQ(va->yZ, c.yZ) << c.mode;
    EXPECT_EQ(va->xY, c.xY) << c.mode;
    EXPECT_EQ(va->yY, c.yY) << c.mode;
    EXPECT_EQ(va->zZ, 3.0f);
    EXPECT_EQ(va->zY, 6.0f);
    EXPECT_EQ(va->z, 7.0f);
  }
}

TEST_F(ManoeuvresTest, CopiesKeepTheirOwnFields) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* axel = Ajoute<T540>(f.fen, 0, 0, 0);
  axel->Set(0, CONTRAINTE_TEMPS, 300, false, 140);
  auto* rot = Ajoute<TRot>(f.fen, 0, 0, 0, -45.0f);
  rot->DureeConstante = 80;
  auto* pose = Ajoute<TPose>(f.fen, 0, 0, 0);
  pose->Set(0, CONTRAINTE_VCONSTANTE, 0, 250, POSE_POINTE_DROITE);
  auto* va = Ajoute<TAllerA>(f.fen, 0, 0, 0);
  va->Set(0, CONTRAINTE_DUREE, 0, 60, 1, 2, 3, 4, 5, 6, 7);

  auto* c540 = dynamic_cast<T540*>(axel->Copie(Tampon, false));
  ASSERT_NE(c540, nullptr);
  EXPECT_FALSE(c540->Gauche);
  EXPECT_EQ(c540->DureeConstante, 140.0f);
  EXPECT_EQ(c540->Contrainte, CONTRAINTE_TEMPS);
  auto* crot = dynamic_cast<TRot*>(rot->Copie(Tampon, false));
  ASSERT_NE(crot, nullptr);
  EXPECT_EQ(crot->Angle, -45.0f);
  EXPECT_EQ(crot->DureeConstante, 80.0f);
  auto* cpose = dynamic_cast<TPose*>(pose->Copie(Tampon, false));
  ASSERT_NE(cpose, nullptr);
  EXPECT_EQ(cpose->TypePose, POSE_POINTE_DROITE);
  EXPECT_EQ(cpose->DureeConstante, 250.0f);
  auto* cva = dynamic_cast<TAllerA*>(va->Copie(Tampon, false));
  ASSERT_NE(cva, nullptr);
  EXPECT_EQ(cva->DureeConstante, 60.0f);
  EXPECT_EQ((std::vector<float>{cva->xZ, cva->yZ, cva->zZ, cva->xY, cva->yY, cva->zY, cva->z}),
            (std::vector<float>{1, 2, 3, 4, 5, 6, 7}));
  for (TElt* c : {static_cast<TElt*>(c540), static_cast<TElt*>(crot), static_cast<TElt*>(cpose), static_cast<TElt*>(cva)})
    delete c;
}

TEST_F(ManoeuvresTest, DurationsCountInTheirStretchWhateverTheirConstraint) {
  nbCV = 1;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  auto* stop = Ajoute<TStop>(f.fen, 0, 0, 100);
  stop->Set(0, CONTRAINTE_TEMPS, 300, 100);
  auto* rot = Ajoute<TRot>(f.fen, 0, 0, 100, 90.0f);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 200);
  auto* c = Ajoute<TSegment>(f.fen, 0, 0, 300);
  c->Set(0, CONTRAINTE_TEMPS, 800, 0.4f);
  TFenDessin::MiseAJourVTotale();
  // Before the stop: 100 units, and the stop's own 100, in 300: speed 0.5.
  EXPECT_FLOAT_EQ(a->Gett2Param(), 200);
  EXPECT_FLOAT_EQ(a->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(stop->Gett2Param(), 300);
  // After it: the rotation's 100, then 200 units in the 400 left: speed 0.5.
  EXPECT_FLOAT_EQ(rot->Gett2Param(), 400);
  EXPECT_FLOAT_EQ(b->Gett2Param(), 600);
  EXPECT_FLOAT_EQ(c->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(rot->GetV(), 0.4f);
}

TEST_F(ManoeuvresTest, LandingOnEvenSpeedFliesDownThenStays) {
  nbCV = 1;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 0, 42);
  seg->Set(0, CONTRAINTE_TEMPS, 100, 0.4f);
  auto* pose = Ajoute<TPose>(f.fen, 0, 0, 0);
  pose->Getp2();  // onto the ground: 42 - 2.7 = 39.3 units down
  pose->Set(0, CONTRAINTE_VCONSTANTE, 0, 150, POSE_DEUX_POINTES);
  pose->SetV(0.3f);
  pose->CalculT();
  EXPECT_NEAR(pose->Gett2Param(), 100 + 39.3 / 0.3 + 150, 1e-3);
  TFenDessin::MiseAJourVTotale();  // no anchor after: the default speed
  EXPECT_NEAR(pose->Gett2Param(), 100 + 39.3 / 0.4 + 150, 1e-3);
}

}  // namespace
