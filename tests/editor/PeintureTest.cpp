// What the cases of tests/data/paint/ cannot show, since the companion paints the screen
// only: sheets placed on paper, symbols grown and kites shifted there, and the rectangles that
// elements declare for repainting.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/ArcGeometrie.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Figure.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "model/elements/Stop.h"
#include "platform/DCJournal.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class PeintureTest : public DocumentTest {
protected:
  // A print of sheets Lf by Hf device units, pages with the given margins.
  void Papier(int lf, int hf, int mx, int my, int parPage) {
    TFenDessin::Imp = TImpression{true, lf, hf, mx, my, parPage};
  }
  // Where the top left corner of sheet `num` falls on its page.
  TPoint CoinSurLaPage(int num) {
    TFenDessin fen(nullptr, nullptr, num);
    fen.SetEchelle(dc);
    return fen.LPtoDP(TPointf(-112, 102));
  }
  bool Trace(const std::string& ligne) const {
    return std::find(dc.Lignes.begin(), dc.Lignes.end(), ligne) != dc.Lignes.end();
  }
  std::vector<TRect> Rects() const {
    std::vector<TRect> r;
    for (const auto& i : dc.Invalidations) {
      EXPECT_TRUE(i.Effacer);
      r.push_back(i.Rect);
    }
    return r;
  }

  TFeuilleTest f;  // 880 by 440: 4 pixels a unit, the logical origin at pixel (448, 408)
  TDCJournal dc;
};

TEST_F(PeintureTest, SheetsStandOnThePageByTheirNumber) {
  // 2200 by 1100 units a sheet: 10 units a logical unit; margins of 100 and 300.
  Papier(2200, 1100, 100, 300, 2);
  EXPECT_EQ(CoinSurLaPage(1), TPoint(100, 300));
  EXPECT_EQ(CoinSurLaPage(2), TPoint(100, 300 + 1320));  // rows 1.2 sheet heights apart
  EXPECT_EQ(CoinSurLaPage(3), TPoint(100, 300));         // the top of the next page
  EXPECT_EQ(dc.GetViewportExt(), (TSize{2200, 1100}));
  EXPECT_EQ(dc.OrigineFenetre, TPoint(-122, 132));
  EXPECT_EQ(dc.Mode, TMapMode::Anisotrope);

  Papier(2200, 1100, 100, 300, 4);
  EXPECT_EQ(CoinSurLaPage(1), TPoint(100, 300));
  EXPECT_EQ(CoinSurLaPage(2), TPoint(2300, 300));  // columns one sheet width apart
  EXPECT_EQ(CoinSurLaPage(3), TPoint(100, 1620));
  EXPECT_EQ(CoinSurLaPage(4), TPoint(2300, 1620));
  EXPECT_EQ(CoinSurLaPage(5), TPoint(100, 300));

  Papier(2200, 1100, 100, 300, 8);
  EXPECT_EQ(CoinSurLaPage(8), TPoint(2300, 300 + 3 * 1320));
  Papier(2200, 1100, 100, 300, 1);
  EXPECT_EQ(CoinSurLaPage(2), TPoint(100, 300));

  // Back on the screen the sheet takes the screen's values again.
  TFenDessin::Imp.blImpression = false;
  f.fen.SetEchelle(dc);
  EXPECT_EQ(f.fen.Origine, TPoint(-112, 102));
  EXPECT_EQ(TFenDessin::EchIE, 1.0f);
}

TEST_F(PeintureTest, SymbolsGrowByWholeStepsOfThePapersWidth) {
  for (const auto& [lf, e] : std::vector<std::pair<int, float>>{{1000, 1}, {2047, 2}, {2048, 4}, {3072, 6}}) {
    Papier(lf, lf / 2, 0, 0, 1);
    CoinSurLaPage(1);
    EXPECT_EQ(TFenDessin::EchIE, e) << lf;
  }
}

TEST_F(PeintureTest, OnPaperAStopOfKite3IsSixTimesLargerAndShifted) {
  Papier(3300, 1650, 0, 0, 1);  // 15 units a logical unit, e = 6
  nbCV = 4;
  Ajoute<TPt>(f.fen, 3, 0, 50);
  Ajoute<TStop>(f.fen, 3, 0, 0);
  f.fen.Paint(dc, false, TRect());
  // (0, 50) is (1680, 780); the centre 6 units right and below, 96 wide.
  EXPECT_TRUE(Trace("D polygon 6 1638 786 1662 750 1710 750 1734 786 1710 822 1662 822 #00ff00/0/solid #ffffff"));
  // A start point is not shifted.
  EXPECT_TRUE(Trace("D rect 1662 762 1698 798 #00ff00/0/solid #ffffff"));
}

TEST_F(PeintureTest, OnPaperLinesAreWideAndShiftedButSelectedSymbolsStayFilled) {
  Papier(2200, 1100, 0, 0, 1);  // e = 4
  f.fen.SetTailleClient(880, 440);
  f.fen.TempsFeuille = 1234;
  nbCV = 2;
  Ajoute<TPt>(f.fen, 1, -50, 50);
  TFenDessin::pEltCourant2 = Ajoute<TSegment>(f.fen, 1, 0, 50);
  TFenDessin::pEltCourant = Ajoute<TDerapage>(f.fen, 1, 50, 50);
  f.fen.Paint(dc, false, TRect());

  EXPECT_TRUE(Trace("L text 0 -10 6 Arial/5/400 #000000 opaque:#ffffff \"- 1 - 1234 -\""));
  // Kite 1 lies 2 units right and below: (620, 520) to (1120, 520) on the sheet.
  EXPECT_TRUE(Trace("D line 622 522 1122 522 #ff0000/4/solid"));
  EXPECT_TRUE(Trace("D line 1122 522 1622 522 #ff0000/4/solid"));
  EXPECT_TRUE(Trace("D polygon 3 1332 542 1372 502 1412 542 #ff0000/0/solid #ff0000"));
  // The handle is for the mouse: neither grown nor shifted.
  EXPECT_TRUE(Trace("D rect 1617 517 1623 523 #ff0000/0/solid #ff0000"));
  for (const std::string& l : dc.Lignes) {
    if (l[0] == 'D') {
      EXPECT_EQ(l.find("/dot"), std::string::npos) << l;
    }
  }
}

TEST_F(PeintureTest, OnPaperTheCircleOfAnArcIsShiftedButNotItsCentre) {
  Papier(2200, 1100, 0, 0, 1);
  Ajoute<TPt>(f.fen, 1, 0, 0);
  auto* a = Ajoute<TArc>(f.fen, 1, 0, 0);
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);  // up, then right: centre (10, 0)
  TFenDessin::pEltCourant = a;
  f.fen.SetEchelle(dc);
  a->Paint(dc, 1, false);
  // Centre (1220, 1020), radius 100: the circle's box and the ends move by 2, the centre
  // does not; the arc turns right, so it is drawn from its end.
  ASSERT_GE(dc.Lignes.size(), 3u);
  EXPECT_EQ(dc.Lignes[0], "D arc 1122 922 1323 1123 1222 922 1122 1022 #ff0000/4/solid");
  EXPECT_EQ(dc.Lignes[1], "D line 1122 1022 1220 1020 #ff0000/4/solid");
  EXPECT_EQ(dc.Lignes[2], "D line 1220 1020 1222 922 #ff0000/4/solid");
}

TEST_F(PeintureTest, AnArcTheSurfaceCannotDrawBecomesALine) {
  struct TSansArc : TDCJournal {
    bool Arc(const TRect& r, const TPoint& a, const TPoint& b) override {
      TDCJournal::Arc(r, a, b);
      return false;
    }
  } sansArc;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  auto* a = Ajoute<TArc>(f.fen, 0, 0, 0);
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);
  a->Paint(sansArc, 1, false);
  ASSERT_GE(sansArc.Lignes.size(), 2u);
  EXPECT_EQ(sansArc.Lignes[1], "D line 448 408 488 368 #000000/0/solid");
  EXPECT_EQ(sansArc.Mode, TMapMode::Anisotrope);
}

TEST_F(PeintureTest, EachClassDeclaresItsRectangle) {
  auto* pt = Ajoute<TPt>(f.fen, 0, -50, 50);  // (248, 208)
  auto* s = Ajoute<TSegment>(f.fen, 0, 0, 50);  // (448, 208)
  auto* ax = Ajoute<TAxel>(f.fen, 0, 0, 50);
  auto* c540 = Ajoute<T540>(f.fen, 0, 0, 50);
  auto* rot = Ajoute<TRot>(f.fen, 0, 0, 50, 90.0f);
  auto* stop = Ajoute<TStop>(f.fen, 0, 0, 50);
  auto* d = Ajoute<TDerapage>(f.fen, 0, 0, 40);  // (448, 248)
  auto* al = Ajoute<TAllerA>(f.fen, 0, 10, 40);  // (488, 248)
  auto* pose = Ajoute<TPose>(f.fen, 0, 0, 0);  // ground (488, 408)
  EXPECT_EQ(pt->GetRectEcran(dc), TRect(243, 203, 253, 213));
  EXPECT_EQ(s->GetRectEcran(dc), TRect(241, 201, 455, 217));
  EXPECT_EQ(ax->GetRectEcran(dc), TRect(437, 201, 459, 215));
  EXPECT_EQ(c540->GetRectEcran(dc), TRect(437, 201, 459, 215));
  EXPECT_EQ(rot->GetRectEcran(dc), TRect(437, 197, 459, 219));
  EXPECT_EQ(stop->GetRectEcran(dc), TRect(439, 199, 457, 217));
  EXPECT_EQ(d->GetRectEcran(dc), TRect(438, 201, 458, 256));
  EXPECT_EQ(al->GetRectEcran(dc), TRect(442, 242, 494, 256));
  EXPECT_EQ(pose->GetRectEcran(dc), TRect(475, 247, 501, 409));

  // A figure reaches from its start to its start plus (dx, dy), whatever it stored.
  auto* fig = new TFigure(TPoint(0, 0), &f.fen, nullptr, &TabLElt[1], "absente.fig", true);
  Ajoute<TPt>(f.fen, 1, 0, 0);  // (448, 408)
  TabLElt[1].Append(fig);
  fig->dx = 10;
  fig->dy = 5;
  EXPECT_EQ(fig->GetRectEcran(dc), TRect(437, 379, 497, 417));

  Ajoute<TPt>(f.fen, 2, 0, 0);
  auto* a = Ajoute<TArc>(f.fen, 2, 0, 0);
  a->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 10, QUART_DE_TOUR);  // circle (448, 368)-(529, 449)
  EXPECT_EQ(a->RectCercle, TRect(448, 368, 529, 449));
  EXPECT_EQ(a->GetRectEcran(dc), TRect(441, 361, 536, 456));
}

TEST_F(PeintureTest, InvalidationGoesAsFarAsTheNeighboursWhosePictureDependsOnIt) {
  auto* pt = Ajoute<TPt>(f.fen, 0, -50, 50);
  auto* s1 = Ajoute<TSegment>(f.fen, 0, 0, 50);
  auto* ax1 = Ajoute<TAxel>(f.fen, 0, 0, 0);
  auto* ax2 = Ajoute<TAxel>(f.fen, 0, 0, 0);
  auto* s2 = Ajoute<TSegment>(f.fen, 0, 50, 50);
  auto* arc = Ajoute<TArc>(f.fen, 0, 0, 0);
  arc->Set(0, CONTRAINTE_VCONSTANTE, 0, V_DEFAUT, 25, QUART_DE_TOUR);
  auto* s3 = Ajoute<TSegment>(f.fen, 0, 100, 25);
  auto r = [&](TElt* e) { return e->GetRectEcran(dc); };

  // etendu reaches one element on each side; the axels pass it on as far as a line, whose
  // arc is repainted twice, once as its neighbour and once as depending on it.
  s1->Invalid(dc, true, 2);
  EXPECT_EQ(Rects(), (std::vector<TRect>{r(s1), r(ax1), r(ax2), r(s2), r(arc), r(s3), r(arc), r(s3), r(pt)}));

  // An arc passes on by sens alone, without etendu; the line before it still repaints the
  // arc that depends on it, whichever way the call came.
  dc.Invalidations.clear();
  arc->Invalid(dc, true, 0);
  EXPECT_EQ(Rects(), (std::vector<TRect>{r(arc), r(s2), r(arc), r(s3)}));

  // Without etendu a line repaints itself, and the arc after it.
  dc.Invalidations.clear();
  s2->Invalid(dc, false, 2);
  EXPECT_EQ(Rects(), (std::vector<TRect>{r(s2), r(arc), r(s3)}));

  // An axel passes etendu on whatever it received.
  dc.Invalidations.clear();
  ax2->Invalid(dc, false, 0);
  EXPECT_EQ(Rects(), (std::vector<TRect>{r(ax2), r(ax1), r(s1), r(pt)}));

  // An element out of its list asks for nothing.
  dc.Invalidations.clear();
  TSegment seul(TPoint(0, 0), &f.fen, nullptr, &TabLElt[0]);
  seul.Invalid(dc, true, 2);
  EXPECT_TRUE(dc.Invalidations.empty());
}

TEST_F(PeintureTest, ALongRunOfManoeuvresIsInvalidatedWithoutDeepRecursion) {
  Ajoute<TPt>(f.fen, 0, 0, 0);
  TElt* premier = Ajoute<TSegment>(f.fen, 0, 10, 10);
  for (int i = 0; i < 200000; ++i) Ajoute<TStop>(f.fen, 0, 0, 0);
  premier->Invalid(dc, true, 1);
  EXPECT_EQ(dc.Invalidations.size(), 200001u);
}

TEST_F(PeintureTest, InvalidSynchroRepaintsTheFathersNumberAndEveryChilds) {
  auto* pere = Ajoute<TSegment>(f.fen, 0, 0, 50);  // (448, 208)
  auto* fils = Ajoute<TSegment>(f.fen, 1, 10, 40);  // (488, 248)
  auto* autre = Ajoute<TSegment>(f.fen, 2, -10, 40);  // (408, 248)
  pere->NumSynchro = 1;
  pere->pFils[3] = fils;  // the slots may have holes
  fils->pPere = pere;
  const std::vector<TRect> carres{TRect(441, 201, 455, 215), TRect(481, 241, 495, 255)};
  fils->InvalidSynchro(dc);
  EXPECT_EQ(Rects(), carres);
  dc.Invalidations.clear();
  pere->InvalidSynchro(dc);
  EXPECT_EQ(Rects(), carres);
  dc.Invalidations.clear();
  autre->InvalidSynchro(dc);
  EXPECT_TRUE(dc.Invalidations.empty());
}

}  // namespace
