// Solving end times and speeds along tracks, and carrying times through synchronisations.
#include <gtest/gtest.h>

#include "editor/FenCadre2.h"
#include "support/BDEspion.h"
#include "support/DocumentTest.h"
#include "model/elements/Axel.h"
#include "support/Trace.h"

namespace {

class SolveurTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    nbCV = 6;
  }

  // A segment on constraint 2 at time t.
  TSegment* Ancre(int cv, int x, int y, float t) {
    auto* s = Ajoute<TSegment>(f.fen, cv, x, y);
    s->Contrainte = CONTRAINTE_TEMPS;
    s->Sett2Param(t);
    return s;
  }

  // An axel: a fixed duration with no length, through which a time change passes.
  TAxel* Axel(int x, int y, float duree) {
    auto* a = Ajoute<TAxel>(f.fen, 0, x, y);
    a->DureeConstante = duree;
    return a;
  }

  TFeuilleTest f;
};

TEST_F(SolveurTest, EvenSpeedBetweenTwoAnchors) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 400);
  auto* c = Ancre(0, 0, 500, 1000);
  int distance = 0;
  int duree = 0;
  b->GetDistanceDuree(&distance, &duree);
  EXPECT_EQ(distance, 500);
  EXPECT_EQ(duree, 1000);

  TFenDessin::MiseAJourVTotale();
  EXPECT_FLOAT_EQ(a->Gett2Param(), 200);
  EXPECT_FLOAT_EQ(b->Gett2Param(), 800);
  EXPECT_FLOAT_EQ(c->Gett2Param(), 1000);
  EXPECT_FLOAT_EQ(a->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(b->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(c->GetV(), 100.0f / 200.0f);
  EXPECT_FALSE(MiseAJourVTotaleEnCours);
  EXPECT_TRUE(dialogues.Statuts.empty());
}

TEST_F(SolveurTest, NoAnchorAfterTheStretchFliesAtTheDefaultSpeed) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 400);
  auto* c = Ajoute<TSegment>(f.fen, 0, 0, 500);
  c->SetV(0.9f);
  int distance = 0;
  int duree = 0;
  c->GetDistanceDuree(&distance, &duree);
  EXPECT_EQ(duree, -1);
  TFenDessin::MiseAJourVTotale();
  EXPECT_FLOAT_EQ(a->Gett2Param(), 250);
  EXPECT_FLOAT_EQ(b->Gett2Param(), 1000);
  EXPECT_FLOAT_EQ(c->Gett2Param(), 1250);
  for (TElt* e : {static_cast<TElt*>(a), static_cast<TElt*>(b), static_cast<TElt*>(c)})
    EXPECT_FLOAT_EQ(e->GetV(), 0.4f);
}

TEST_F(SolveurTest, FixedDurationInsideAStretchIsTakenOffItsTime) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  auto* axel = Axel(0, 100, 110.0f);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 400);
  auto* c = Ancre(0, 0, 500, 1000);
  int distance = 0;
  int duree = 0;
  axel->GetDistanceDuree(&distance, &duree);
  EXPECT_EQ(distance, 500);
  EXPECT_EQ(duree, 890);

  TFenDessin::MiseAJourV(a, true, true);
  // Even speed 500 / 890: 100 units take 178, 300 take 534.
  EXPECT_NEAR(a->Gett2Param(), 178, 0.01);
  EXPECT_NEAR(axel->Gett2Param(), 288, 0.01);
  EXPECT_NEAR(b->Gett2Param(), 822, 0.01);
  EXPECT_FLOAT_EQ(c->Gett2Param(), 1000);
  EXPECT_NEAR(c->GetV(), 100.0f / 178.0f, 1e-5);
  EXPECT_FLOAT_EQ(axel->GetV(), 0.4f);  // a manoeuvre has no speed to set
}

TEST_F(SolveurTest, ALineOfNoLengthHandsItsStoredSpeedToTheRestOfTheStretch) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  auto* nul = Ajoute<TSegment>(f.fen, 0, 0, 100);
  nul->SetV(0.25f);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 200);
  auto* c = Ancre(0, 0, 300, 400);
  TFenDessin::MiseAJourVTotale();
  // The even speed is 300 / 400. The line of no length ends one hundredth after a, for the
  // levels after it, but stores a's time; it leaves its own stored speed as the working
  // speed, which b then flies at: the anchor comes too early.
  EXPECT_NEAR(a->Gett2Param(), 133.333, 0.01);
  EXPECT_NEAR(nul->Gett2Param(), 133.333, 0.01);
  EXPECT_FLOAT_EQ(nul->GetV(), 0.25f);
  EXPECT_NEAR(b->Gett2Param(), 534.333, 0.01);
  EXPECT_FLOAT_EQ(b->GetV(), 0.25f);
  ASSERT_EQ(dialogues.Statuts.size(), 1u);
  EXPECT_EQ(dialogues.Statuts[0], "!!!! Erreur possible élément N°" + std::to_string(c->Num) + " : t2<t1");
  EXPECT_FLOAT_EQ(c->GetV(), 100.0f);
}

TEST_F(SolveurTest, AnchorNoLaterThanItsPredecessorIsReportedAndFlownInOneHundredth) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ancre(0, 0, 10, 0);
  a->CalculV();
  ASSERT_EQ(dialogues.Statuts.size(), 1u);
  EXPECT_EQ(dialogues.Statuts[0], "!!!! Erreur possible élément N°1 : t2<t1");
  EXPECT_FLOAT_EQ(a->GetV(), 10.0f);
  EXPECT_FLOAT_EQ(a->Gett2Param(), 0);  // the stored time stays
}

TEST_F(SolveurTest, SpeedTooLowKeepsTheStoredSpeed) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ancre(0, 0, 0, 100);  // no length
  a->SetV(0.7f);
  a->CalculV();
  EXPECT_FLOAT_EQ(a->GetV(), 0.7f);
}

TEST_F(SolveurTest, AnchorWhoseTimeTruncatesToMinusOneIsNoAnchor) {
  auto* pt = Ajoute<TPt>(f.fen, 0, 0, 0);
  pt->Sett2Param(-1.5f);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  Ancre(0, 0, 200, 500);
  int distance = 0;
  int duree = 0;
  a->GetDistanceDuree(&distance, &duree);
  EXPECT_EQ(duree, -1);
  EXPECT_EQ(distance, 200);
}

TEST_F(SolveurTest, CalculTUsesTheStoredSpeedAndTimesOnly) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ancre(0, 0, 10, 100);
  auto* b = Ajoute<TSegment>(f.fen, 0, 0, 60);
  b->SetV(0.5f);
  b->CalculT();
  EXPECT_FLOAT_EQ(b->Gett2Param(), 200);
  EXPECT_FLOAT_EQ(b->GetV(), 0.5f);
  auto* d = Axel(0, 60, 40.0f);
  d->CalculT();
  EXPECT_FLOAT_EQ(d->Gett2Param(), 240);
  EXPECT_FLOAT_EQ(a->Gett2Param(), 100);
}

TEST_F(SolveurTest, UnknownConstraintIsReportedAndNothingSolved) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 0, 100);
  a->Contrainte = 4;
  a->Sett2Param(77);
  a->CalculV();
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "CalculV()");
  EXPECT_EQ(dialogues.Boites[0].Titre, "type contrainte non-prévu");
  EXPECT_FLOAT_EQ(a->Gett2(), 77);
}

TEST_F(SolveurTest, MiseAJourVOnAnElementOutOfItsListSaysSo) {
  TSegment seul(TPoint(0, 0), &f.fen, nullptr, &TabLElt[0]);
  TFenDessin::MiseAJourV(&seul, true, true);
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "pE = NULL");
  EXPECT_EQ(dialogues.Boites[0].Titre, "MiseAJourV");
}

TEST_F(SolveurTest, TwoManoeuvresPassingChangesBothWaysStillEnd) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Axel(0, 0, 50.0f);
  a->Contrainte = CONTRAINTE_TEMPS;
  a->Sett2Param(80);
  auto* b = Axel(0, 0, 30.0f);
  TFenDessin::MiseAJourV(b, true, true);
  EXPECT_FLOAT_EQ(b->Gett2Param(), 110);
}

TEST_F(SolveurTest, TimeChangeCrossesToTheChildAndItsNextStretch) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* A = Ancre(0, 0, 50, 500);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* B = Ancre(1, 0, 60, 0);
  auto* C = Ajoute<TSegment>(f.fen, 1, 0, 90);
  auto* D = Ancre(1, 0, 120, 900);
  TFenDessin::Synchronise(B, 0, TabLElt, 1, &f.fen);
  ASSERT_EQ(B->pPere, A);
  EXPECT_EQ(A->NumSynchro, 1);
  EXPECT_EQ(f.fen.NbSynchro, 1);
  EXPECT_FLOAT_EQ(B->Gett2Param(), 500);

  A->Sett2(600);
  EXPECT_FLOAT_EQ(B->t2.GetParam(), 600);
  EXPECT_FLOAT_EQ(B->GetV(), 60.0f / 600.0f);
  // C and D share 60 units between 600 and 900.
  EXPECT_FLOAT_EQ(C->Gett2Param(), 750);
  EXPECT_FLOAT_EQ(C->GetV(), 0.2f);
  EXPECT_FLOAT_EQ(D->Gett2Param(), 900);
  EXPECT_FLOAT_EQ(D->GetV(), 30.0f / 150.0f);
}

TEST_F(SolveurTest, WholeUpdateSolvesFathersBeforeChildren) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* p = Ajoute<TSegment>(f.fen, 0, 0, 100);
  Ancre(0, 0, 200, 400);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* enfant = Ancre(1, 0, 40, 0);
  auto* apres = Ajoute<TSegment>(f.fen, 1, 0, 80);
  Ancre(1, 0, 120, 300);
  ASSERT_TRUE(enfant->Sett2(p, 1));
  TFenDessin::MiseAJourVTotale();
  EXPECT_FLOAT_EQ(p->Gett2Param(), 200);
  EXPECT_FLOAT_EQ(enfant->t2.GetParam(), 200);
  EXPECT_FLOAT_EQ(enfant->GetV(), 40.0f / 200.0f);
  EXPECT_FLOAT_EQ(apres->Gett2Param(), 250);
}

TEST_F(SolveurTest, SynchronisationRefusals) {
  TFeuilleTest autre(2);
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* pere = Ancre(0, 0, 10, 100);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* haut = Ancre(1, 0, 10, 50);

  EXPECT_FALSE(haut->Sett2(nullptr, 1));
  EXPECT_TRUE(dialogues.Statuts.empty());

  EXPECT_FALSE(pere->Sett2(haut, 1));  // the father must be on a lower kite
  EXPECT_EQ(dialogues.Statuts.back(),
            "!!!! Element N°" + std::to_string(pere->Num) + " : Synchro impossible :  N°CV trop faible");

  auto* ailleurs = new TSegment(TPoint(0, 0), &autre.fen, nullptr, &TabLElt[2]);
  TabLElt[2].Append(ailleurs);
  EXPECT_FALSE(ailleurs->Sett2(pere, 1));
  EXPECT_EQ(dialogues.Statuts.back(),
            "!!!! Element N°" + std::to_string(ailleurs->Num) + " : Synchro impossible : pas sur la même feuille");

  ASSERT_TRUE(haut->Sett2(pere, 3));
  auto* deuxieme = Ancre(1, 0, 20, 60);
  EXPECT_FALSE(deuxieme->Sett2(pere, 3));
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Impossible :CV déjà synchro / cet élément");
  EXPECT_EQ(deuxieme->pPere, nullptr);
  EXPECT_EQ(dialogues.Bips, 3);
}

TEST_F(SolveurTest, AHoleInTheChildrenGoesUnnoticedAndASixthChildIsRefused) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* pere = Ancre(0, 0, 10, 100);
  TElt* fils[6];
  for (int cv = 1; cv <= 5; ++cv) {
    Ajoute<TPt>(f.fen, cv, 0, 0);
    fils[cv] = Ancre(cv, 0, cv, 0);
    ASSERT_TRUE(fils[cv]->Sett2(pere, 1)) << cv;
  }
  f.fen.SupprSynchro(fils[1]);
  EXPECT_EQ(pere->pFils[0], nullptr);
  EXPECT_EQ(pere->NumSynchro, 1);

  // Slot 0 is free, so a second child of kite 2 is taken before slot 1 is ever looked at.
  auto* encore2 = Ancre(2, 0, 20, 0);
  EXPECT_TRUE(encore2->Sett2(pere, 1));
  EXPECT_EQ(pere->pFils[0], encore2);

  auto* sixieme = Ancre(1, 0, 20, 0);
  EXPECT_FALSE(sixieme->Sett2(pere, 1));
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Synchro impossible : trop de CV fils");
}

TEST_F(SolveurTest, RemovingTheLastChildClearsTheFathersNumber) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* pere = Ajoute<TSegment>(f.fen, 0, 0, 10);
  pere->Sett2Param(300);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* fils = Ajoute<TSegment>(f.fen, 1, 0, 10);
  auto* bd = new TBDEspion(fils);
  fils->pBD = bd;
  TFenDessin::Synchronise(fils, 0, TabLElt, 1, &f.fen);
  EXPECT_EQ(fils->Contrainte, CONTRAINTE_TEMPS);
  EXPECT_EQ(bd->Champs[IDC_T], "300- 1");
  EXPECT_EQ(bd->MisesAJourContrainte, 1);

  f.fen.SupprSynchro(fils);
  EXPECT_EQ(pere->NumSynchro, 0);
  EXPECT_EQ(pere->Contrainte, CONTRAINTE_VCONSTANTE);  // the father keeps its constraint
  EXPECT_EQ(fils->pPere, nullptr);
  EXPECT_EQ(fils->Contrainte, CONTRAINTE_TEMPS);
  EXPECT_FLOAT_EQ(fils->Gett2Param(), 300);  // it stays at the time it had
  EXPECT_EQ(bd->Champs[IDC_T], "300");
}

TEST_F(SolveurTest, PreleveSynchroTakesTheFatherOfTheSelection) {
  TFenCadre2 cadre;
  TFenDessin* fen = cadre.GetFeuille(0);
  EXPECT_FALSE(fen->PreleveSynchro());
  EXPECT_EQ(dialogues.Statuts.back(), "!!!!  Synchronisation : sélectionnez un élément auparavant");

  Ajoute<TPt>(*fen, 0, 0, 0);
  auto* pere = Ajoute<TSegment>(*fen, 0, 0, 10);
  pere->Sett2Param(432.8f);
  Ajoute<TPt>(*fen, 1, 0, 0);
  auto* fils = Ajoute<TSegment>(*fen, 1, 0, 10);
  ASSERT_TRUE(fils->Sett2(pere, 1));
  TFenDessin::pEltCourant = fils;
  EXPECT_TRUE(fen->PreleveSynchro());
  EXPECT_EQ(TFenDessin::pEltSynchro, pere);
  EXPECT_EQ(cadre.GetTexteGadgetSynchro(), std::to_string(pere->Num) + "/432");
}

TEST_F(SolveurTest, AMillionElementStretchSolvesWithoutDeepRecursion) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  constexpr int n = 1'000'000;
  TElt* avant = nullptr;
  for (int i = 1; i <= n; ++i) avant = Ajoute<TSegment>(f.fen, 0, 0, i % 2);
  auto* fin = Ancre(0, 0, 0, 2'000'001);  // one unit more, one hundredth each
  TFenDessin::MiseAJourVTotale();
  EXPECT_NEAR(avant->Gett2Param(), 2'000'000, 1);
  EXPECT_FLOAT_EQ(avant->GetV(), 0.5f);
  EXPECT_FLOAT_EQ(fin->Gett2Param(), 2'000'001);
}

}  // namespace
