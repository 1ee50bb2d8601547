// How the class family of model/elements/Stop.h draws on a sheet: a hexagon at the end of
// the element before it.
#include "model/elements/Stop.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TStop::Paint(TDC& dc, int Feuille, bool Selection) {
  PaintSurPlace(*this, dc, Feuille, Selection, [](TDC& d, TPoint p) {
    const int e4 = Pixels(4);
    const int e6 = Pixels(6);
    const int e8 = Pixels(8);
    d.Polygon({TPoint(p.x - e8, p.y), TPoint(p.x - e4, p.y - e6), TPoint(p.x + e4, p.y - e6), TPoint(p.x + e8, p.y),
               TPoint(p.x + e4, p.y + e6), TPoint(p.x - e4, p.y + e6)});
  });
}

TRect TStop::GetRectEcran(TDC&) { return pFen ? Autour(pFen->LPtoDP(Getp2Param()), 9, 9, 9, 9) : TRect(); }
