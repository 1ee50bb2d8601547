// The property bars as logic objects: their colours in the strip and typing during a load.
// Which fields take typing under each constraint, and a synchronised child's time, are replay
// cases (tests/data/replay/barre_lecture_seule, barre_synchro).
#include <gtest/gtest.h>

#include <string>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"
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
