// The property bars as logic objects: their colours in the strip, and which fields take
// typing under each constraint.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Pt.h"
#include "model/elements/Rot.h"
#include "model/elements/Segment.h"
#include "model/elements/Stop.h"
#include "support/DocumentTest.h"

namespace {

class BarresTest : public DocumentTest {
protected:
  TFenDessin fen{nullptr, nullptr, 1};

  // e appended to kite k's track, its bar open.
  TElt* Ajoute(int k, TElt* e) {
    TabLElt[k].Append(e);
    e->OpenBD();
    return e;
  }
  TElt* Segment(int k, int x) { return Ajoute(k, new TSegment(TPoint(x, 50), &fen, nullptr, &TabLElt[k])); }

  std::set<int> LectureSeule(const TBD& bd) const {
    std::set<int> ro;
    for (int id : bd.Controles())
      if (bd.EstEdit(id) && bd.EstLectureSeule(id)) ro.insert(id);
    return ro;
  }
};

TEST_F(BarresTest, BackgroundSaysCurrentSelectedOrOther) {
  TElt* pt = Ajoute(0, new TPt(TPoint(0, 50), &fen, nullptr, &TabLElt[0]));
  TElt* s1 = Segment(0, 10);
  TElt* s2 = Segment(0, 20);
  TElt* s3 = Segment(0, 30);
  EXPECT_EQ(s1->pBD->Couleur, TColor::LtBlue);  // until the strip first places it
  TFenDessin::pEltCourant2 = s1;
  TFenDessin::pEltCourant = s3;
  for (TElt* e : {pt, s1, s2, s3}) e->MoveBD(0);
  EXPECT_EQ(s3->pBD->Couleur, TColor(250, 250, 180));
  EXPECT_EQ(s1->pBD->Couleur, TColor(250, 250, 220));
  EXPECT_EQ(s2->pBD->Couleur, TColor(250, 250, 220));
  EXPECT_EQ(pt->pBD->Couleur, TColor::LtGray);
  // The selection gone, the rest of the range turns grey.
  TFenDessin::pEltCourant2 = nullptr;
  for (TElt* e : {s1, s2}) e->MoveBD(0);
  EXPECT_EQ(s1->pBD->Couleur, TColor::LtGray);
  EXPECT_EQ(s2->pBD->Couleur, TColor::LtGray);
}

TEST_F(BarresTest, NameLabelIsTheKitesColourButGreyForBlack) {
  ASSERT_EQ(TabLElt[0].Couleur, TColor::Black);
  ASSERT_FALSE(TabLElt[1].Couleur == TColor::Black);
  EXPECT_EQ(Segment(0, 10)->pBD->CouleurLabel, TColor::Gray);
  TElt* autre = Segment(1, 10);
  EXPECT_EQ(autre->pBD->CouleurLabel, TabLElt[1].Couleur);
  // MAJColor takes the kite's colour again.
  TabLElt[1].Couleur = TColor::Black;
  autre->pBD->MAJColor();
  EXPECT_EQ(autre->pBD->CouleurLabel, TColor::Gray);
}

// Caption of 501 ("" for a bar without one) and the read-only edits among x, y, t, v and
// the duration, for each bar under each of its two constraints.
struct TCasContrainte {
  const char* Nom;
  int Contrainte;
  const char* Libelle;
  std::set<int> LectureSeule;
};

TEST_F(BarresTest, ReadOnlyFieldsFollowTheConstraint) {
  using Fabrique = std::function<TElt*(TListeCV*)>;
  const TPoint p(10, 50);
  const std::map<std::string, Fabrique> classes = {
      {"Pt", [&](TListeCV* l) { return new TPt(p, &fen, nullptr, l); }},
      {"Segment", [&](TListeCV* l) { return new TSegment(p, &fen, nullptr, l); }},
      {"Arc", [&](TListeCV* l) { return new TArc(p, &fen, nullptr, l); }},
      {"Axel", [&](TListeCV* l) { return new TAxel(p, &fen, nullptr, l); }},
      {"Rot", [&](TListeCV* l) { return new TRot(p, &fen, nullptr, l, 90); }},
      {"Stop", [&](TListeCV* l) { return new TStop(p, &fen, nullptr, l); }},
      {"Pose", [&](TListeCV* l) { return new TPose(p, &fen, nullptr, l); }},
      {"AllerA", [&](TListeCV* l) { return new TAllerA(p, &fen, nullptr, l); }},
  };
  const TCasContrainte cas[] = {
      {"Pt", 2, "", {}},
      {"Segment", 2, "temps", {505}},
      {"Segment", 3, "v.constante", {504, 505}},
      {"Arc", 2, "temps", {502, 503, 505}},
      {"Arc", 3, "v.constante", {502, 503, 504, 505}},
      {"Axel", 2, "temps", {502, 503}},
      {"Axel", 5, "Duree", {502, 503, 504}},
      {"Rot", 2, "temps", {502, 503, 521}},
      {"Rot", 5, "Duree", {502, 503, 504, 521}},
      {"Stop", 2, "temps", {502, 503}},
      {"Stop", 5, "Duree", {502, 503, 504}},
      {"Pose", 2, "temps", {502, 503, 505}},
      {"Pose", 3, "v.constante", {502, 503, 504, 505}},
      {"AllerA", 2, "temps", {509}},
      {"AllerA", 5, "Duree", {504}},
  };
  for (const TCasContrainte& c : cas) {
    SCOPED_TRACE(std::string(c.Nom) + " " + std::to_string(c.Contrainte));
    TElt* e = Ajoute(0, classes.at(c.Nom)(&TabLElt[0]));
    e->Contrainte = c.Contrainte;
    e->pBD->SetContrainte();
    EXPECT_EQ(e->pBD->EstBouton(IDC_CONTRAINTE), *c.Libelle != 0);
    if (e->pBD->EstBouton(IDC_CONTRAINTE)) {
      EXPECT_EQ(e->pBD->GetDlgItemText(IDC_CONTRAINTE), c.Libelle);
    }
    EXPECT_EQ(LectureSeule(*e->pBD), c.LectureSeule);
  }
}

TEST_F(BarresTest, ASynchronisedChildTakesNoTimeUntilItsLinkGoes) {
  TElt* pere = Segment(0, 10);
  TElt* fils = Segment(1, 10);
  pere->Contrainte = fils->Contrainte = CONTRAINTE_TEMPS;
  pere->t2.SetParam(1234.7f);
  pere->NumSynchro = 3;
  fils->pPere = pere;
  fils->pBD->SetContrainte();
  pere->pBD->SetContrainte();
  EXPECT_EQ(fils->pBD->GetDlgItemText(IDC_T), "1234- 3");
  EXPECT_EQ(fils->pBD->GetDlgItemText(IDC_CONTRAINTE), "synchro");
  EXPECT_FALSE(fils->pBD->EstActif(IDC_CONTRAINTE));
  EXPECT_TRUE(fils->pBD->EstLectureSeule(IDC_T));
  EXPECT_TRUE(pere->pBD->EstActif(IDC_CONTRAINTE));
  EXPECT_FALSE(pere->pBD->EstLectureSeule(IDC_T));
  // A click on a disabled button does nothing.
  fils->pBD->Clic(IDC_CONTRAINTE);
  EXPECT_EQ(fils->Contrainte, CONTRAINTE_TEMPS);
  fils->pPere = nullptr;
  fils->pBD->MiseAJourContrainte();
  EXPECT_EQ(fils->pBD->GetDlgItemText(IDC_CONTRAINTE), "temps");
  EXPECT_TRUE(fils->pBD->EstActif(IDC_CONTRAINTE));
  EXPECT_FALSE(fils->pBD->EstLectureSeule(IDC_T));
}

TEST_F(BarresTest, WhileAFileLoadsTypingShowsButTouchesNoElement) {
  TElt* s = Segment(0, 10);
  ChargementFichierEnCours = true;
  s->pBD->Tape(IDC_X, "42");
  ChargementFichierEnCours = false;
  EXPECT_EQ(s->pBD->GetDlgItemText(IDC_X), "42");
  EXPECT_EQ(s->Getp2Param().x, 10.0f);
  // Once loaded, the same typing moves the end point.
  s->pBD->Tape(IDC_X, "42");
  EXPECT_EQ(s->Getp2Param().x, 42.0f);
}

}  // namespace
