// How the class family of model/elements/Axel.h draws on a sheet: an axel is an ellipse at
// the end of the element before it, a flat 540 the same ellipse crossed by a line. Neither
// marks a change of sheet.
#include "model/elements/Axel.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

namespace {
void EllipseAxel(TDC& dc, TPoint p) { dc.Ellipse(Autour(p, Pixels(8), Pixels(6), Pixels(8), Pixels(6))); }
}  // namespace

void TAxel::Paint(TDC& dc, int Feuille, bool Selection) {
  PaintSurPlace(*this, dc, Feuille, Selection, EllipseAxel);
}

void T540::Paint(TDC& dc, int Feuille, bool Selection) {
  PaintSurPlace(*this, dc, Feuille, Selection, [](TDC& d, TPoint p) {
    EllipseAxel(d, p);
    Trait(d, TPoint(p.x - Pixels(8), p.y), TPoint(p.x + Pixels(8), p.y));
  });
}

TRect TManoeuvreCote::GetRectEcran(TDC&) { return pFen ? Autour(pFen->LPtoDP(Getp2Param()), 11, 7, 11, 7) : TRect(); }
