// The state every element shares: defaults, times of children, copies, transformations,
// the end-point hit test and the property bar link.
#include <gtest/gtest.h>

#include "support/BDEspion.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class EltTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

TEST_F(EltTest, NewElementsStartWithTheirClassDefaults) {
  auto* pt = Ajoute<TPt>(f.fen, 0, 3, 4);
  auto* der = Ajoute<TDerapage>(f.fen, 2, 40, 20);
  EXPECT_EQ(pt->Contrainte, CONTRAINTE_TEMPS);
  EXPECT_EQ(der->Contrainte, CONTRAINTE_VCONSTANTE);
  EXPECT_EQ(Ajoute<TSegRevo>(f.fen, 0, 30, 20, 45.0f)->Contrainte, CONTRAINTE_VCONSTANTE);
  EXPECT_FLOAT_EQ(der->GetV(), 0.4f);
  EXPECT_EQ(der->Gett2Param(), 0.0f);
  EXPECT_EQ(der->GetDureeConstante(), 0.0f);
  EXPECT_EQ(der->NumCVPere, -1);
  EXPECT_EQ(der->IndexPere, -1);
  EXPECT_EQ(pt->Getp2Param(), TPointf(3, 4));
  EXPECT_EQ(pt->Num, 0);  // numbers are handed out in order of construction
  EXPECT_EQ(der->Num, 1);
  EXPECT_EQ(TElt::NbElt, 3);
  EXPECT_EQ(pt->GetCouleur(), TColor::Black);
  EXPECT_EQ(der->GetCouleur(), TColor::LtBlue);
}

TEST_F(EltTest, ChildTakesItsFathersStoredTime) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* pere = Ajoute<TSegment>(f.fen, 0, 10, 10);
  Ajoute<TPt>(f.fen, 1, 0, 5);
  auto* fils = Ajoute<TSegment>(f.fen, 1, 10, 15);
  pere->Sett2Param(250);
  fils->Sett2Param(999);
  fils->pPere = pere;
  EXPECT_EQ(fils->Gett2Param(), 250.0f);
  fils->pPere = nullptr;
  EXPECT_EQ(fils->Gett2Param(), 999.0f);
}

TEST_F(EltTest, CopyWithoutLinkTakesANewNumberAndDropsSynchronisation) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* pere = Ajoute<TSegment>(f.fen, 0, 10, 10);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* fils = Ajoute<TSegRevo>(f.fen, 1, 0, 0, 30.0f);
  fils->Setp2Param(TPointf(10.7f, -3.9f));
  fils->Sett2Param(120);
  fils->SetV(0.25f);
  fils->Contrainte = CONTRAINTE_TEMPS;
  fils->pPere = pere;
  pere->pFils[0] = fils;
  pere->NumSynchro = 2;

  const int avant = TElt::NbElt;
  TElt* c = fils->Copie(Tampon, false);
  EXPECT_EQ(TElt::NbElt, avant + 1);
  EXPECT_EQ(c->Num, avant);
  auto* revo = dynamic_cast<TSegRevo*>(c);
  ASSERT_NE(revo, nullptr);
  EXPECT_EQ(revo->Angle, 30.0f);
  EXPECT_EQ(c->Getp2Param(), TPointf(10, -3));  // truncated towards zero
  EXPECT_EQ(c->Contrainte, CONTRAINTE_TEMPS);
  EXPECT_EQ(c->t2.GetParam(), 120.0f);  // its own stored time, not the father's
  EXPECT_EQ(c->GetV(), 0.25f);
  EXPECT_EQ(c->pPere, nullptr);
  EXPECT_EQ(c->NumCVPere, -1);
  EXPECT_EQ(c->IndexPere, -1);
  EXPECT_EQ(c->pListeCV, Tampon);
  EXPECT_EQ(c->GetpListe(), nullptr);  // not yet listed
  delete c;

  TElt* cp = pere->Copie(Tampon, false);
  EXPECT_EQ(cp->NumSynchro, 0);
  delete cp;
}

TEST_F(EltTest, CopyWithLinkKeepsNumberAndFatherByPosition) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 5, 5);
  auto* pere = Ajoute<TSegment>(f.fen, 0, 10, 10);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* fils = Ajoute<TDerapage>(f.fen, 1, 0, 0);
  fils->pPere = pere;
  pere->pFils[3] = fils;
  pere->NumSynchro = 4;

  const int avant = TElt::NbElt;
  TElt* cf = fils->Copie(AncTabLElt + 1, true);
  EXPECT_EQ(TElt::NbElt, avant);
  EXPECT_EQ(cf->Num, fils->Num);
  EXPECT_NE(dynamic_cast<TDerapage*>(cf), nullptr);
  EXPECT_EQ(cf->NumCVPere, 0);
  EXPECT_EQ(cf->IndexPere, 2);
  EXPECT_EQ(cf->pPere, nullptr);  // held by number until relinked

  TElt* cp = pere->Copie(AncTabLElt, true);
  EXPECT_EQ(cp->NumSynchro, 4);
  for (TElt* e : cp->pFils) EXPECT_EQ(e, nullptr);
  EXPECT_EQ(cp->NumCVPere, -1);
  delete cf;
  delete cp;
}

TEST_F(EltTest, TransformeMovesTheEndPointInEachMode) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 15, 30);
  auto* bd = new TBDEspion(seg);
  seg->pBD = bd;
  const TPointf origine(10, 10);
  const TPointf destination(50, 20);
  struct Cas {
    int mode;
    TPointf attendu;
  };
  for (const Cas& c : {Cas{TRANSFORMATION_MEMES_POINTS, {15, 30}}, Cas{TRANSFORMATION_PARALLELE, {55, 40}},
                       Cas{TRANSFORMATION_SYMETRIE_X, {55, 0}}, Cas{TRANSFORMATION_SYMETRIE_Y, {45, 40}},
                       Cas{TRANSFORMATION_SYMETRIE_POINT, {45, 0}}}) {
    seg->Setp2Param(TPointf(15, 30));
    bd->Champs.clear();
    seg->Transforme(origine, destination, c.mode);
    EXPECT_EQ(seg->Getp2Param(), c.attendu) << c.mode;
    // Even the identity goes through Setpp2, which shows the point in the open bar.
    EXPECT_EQ(bd->Champs[IDC_X], std::to_string(static_cast<int>(c.attendu.x))) << c.mode;
    EXPECT_EQ(bd->Champs[IDC_Y], std::to_string(static_cast<int>(c.attendu.y))) << c.mode;
  }
  seg->Transforme(origine, destination, 999);
  EXPECT_EQ(seg->Getp2Param(), TPointf(45, 0));
}

TEST_F(EltTest, ValuesAreWrittenIntoTheOpenBar) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 15, 30);
  auto* bd = new TBDEspion(seg);
  seg->pBD = bd;
  seg->Setpp2(TPointf(-3.7f, 12.9f));
  EXPECT_EQ(bd->Champs[IDC_X], "-3");
  EXPECT_EQ(bd->Champs[IDC_Y], "12");
  seg->SetV(0.4f);
  EXPECT_EQ(bd->Champs[IDC_V], "0.400000006");  // ten significant digits of the float
  seg->Sett2(1234.9f);
  EXPECT_EQ(bd->Champs[IDC_T], "1234");
  seg->Set(7, CONTRAINTE_TEMPS, 300, 0.5f);
  EXPECT_EQ(seg->Contrainte, CONTRAINTE_TEMPS);
  EXPECT_EQ(seg->Gett2Param(), 300.0f);
  EXPECT_EQ(seg->GetV(), 0.5f);
  EXPECT_EQ(bd->RafraichisContrainte, 1);
  EXPECT_EQ(bd->Champs[IDC_T], "300");
}

TEST_F(EltTest, Clicp2HitsWithinASquaredDistanceOf25Pixels) {
  auto* pt = Ajoute<TPt>(f.fen, 0, 0, 0);  // pixel (448, 408)
  EXPECT_TRUE(pt->Clicp2(f.dc, 1, TPoint(448, 408)));
  EXPECT_TRUE(pt->Clicp2(f.dc, 1, TPoint(451, 412)));   // 9 + 16 = 25
  EXPECT_TRUE(pt->Clicp2(f.dc, 1, TPoint(443, 408)));   // 25
  EXPECT_FALSE(pt->Clicp2(f.dc, 1, TPoint(449, 413)));  // 1 + 25 = 26
  EXPECT_FALSE(pt->Clicp2(f.dc, 1, TPoint(447, 403)));  // 26
  EXPECT_FALSE(pt->Clicp2(f.dc, 2, TPoint(448, 408)));  // another sheet
  EXPECT_FALSE(pt->Clic(f.dc, 1, TPoint(448, 408)));    // a start point has no body
}

TEST_F(EltTest, MoveBDColoursTheBarByItsPlaceInTheSelection) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  TElt* e[4];
  TBDEspion* bd[4];
  for (int i = 0; i < 4; ++i) {
    e[i] = Ajoute<TSegment>(f.fen, 0, 10 * i, 10);
    bd[i] = new TBDEspion(e[i]);
    e[i]->pBD = bd[i];
  }
  auto* sans = Ajoute<TSegment>(f.fen, 0, 50, 50);
  EXPECT_EQ(sans->MoveBD(40), 0);

  TFenDessin::pEltCourant = e[2];
  TFenDessin::pEltCourant2 = e[1];
  EXPECT_EQ(e[0]->MoveBD(7), 20);
  EXPECT_EQ(bd[0]->Y, 7);
  EXPECT_EQ(bd[0]->Fond, TColor::LtGray);
  e[1]->MoveBD(0);
  e[2]->MoveBD(0);
  e[3]->MoveBD(0);
  EXPECT_EQ(bd[1]->Fond, COULEUR_BD_SELECTION);
  EXPECT_EQ(bd[2]->Fond, COULEUR_BD_COURANT);
  EXPECT_EQ(bd[3]->Fond, TColor::LtGray);

  // Repainted only when the colour changes.
  e[0]->MoveBD(30);
  EXPECT_EQ(bd[0]->Repeints, 1);
  TFenDessin::pEltCourant = e[0];
  TFenDessin::pEltCourant2 = nullptr;
  e[0]->MoveBD(30);
  e[1]->MoveBD(30);
  EXPECT_EQ(bd[0]->Repeints, 2);
  EXPECT_EQ(bd[0]->Fond, COULEUR_BD_COURANT);
  EXPECT_EQ(bd[1]->Fond, TColor::LtGray);
}

TEST_F(EltTest, CloseBDAndSupprimeDestroyTheBar) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TSegment>(f.fen, 0, 10, 10);
  auto* b = Ajoute<TSegment>(f.fen, 0, 20, 10);
  bool detruitA = false;
  bool detruitB = false;
  auto* bdA = new TBDEspion(a, &detruitA);
  a->pBD = bdA;
  b->pBD = new TBDEspion(b, &detruitB);

  a->CloseBD();
  EXPECT_TRUE(detruitA);
  EXPECT_EQ(a->pBD, nullptr);
  a->CloseBD();  // nothing left to close

  b->Supprime();
  EXPECT_TRUE(detruitB);
  EXPECT_EQ(TabLElt[0].nbNoeud(), 2);
  EXPECT_EQ(TabLElt[0].Dernier(), a);
}

}  // namespace
