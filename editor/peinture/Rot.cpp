// How the class family of model/elements/Rot.h draws on a sheet: a circle at the end of the
// element before it.
#include "model/elements/Rot.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TRot::Paint(TDC& dc, int Feuille, bool Selection) {
  PaintSurPlace(*this, dc, Feuille, Selection, [](TDC& d, TPoint p) {
    const int e8 = Pixels(8);
    d.Ellipse(Autour(p, e8, e8, e8, e8));
  });
}

TRect TRot::GetRectEcran(TDC&) { return pFen ? Autour(pFen->LPtoDP(Getp2Param()), 11, 11, 11, 11) : TRect(); }
