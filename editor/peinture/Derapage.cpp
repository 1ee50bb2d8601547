// How the class family of model/elements/Derapage.h draws on a sheet.
#include "model/elements/Derapage.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TDerapage::Paint(TDC& dc, int Feuille, bool Selection) {
  const bool surligne = Surligne(*this, Selection);
  PaintLigne(*this, dc, Feuille, PlumeLigne(*this, surligne), this == TFenDessin::pEltCourant,
             [&](TDC& d, TPoint m) {
               const int e5 = Pixels(5);
               const int e10 = Pixels(10);
               DebutSymbole(d, *this, surligne);
               d.Polygon({TPoint(m.x - e10, m.y + e5), TPoint(m.x, m.y - e5), TPoint(m.x + e10, m.y + e5)});
               FinSymbole(d);
             });
}

TRect TDerapage::GetRectEcran(TDC&) { return BoiteLigne(*this, Getp2Param(), 10, 7, 10, 8); }
