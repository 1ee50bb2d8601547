// How the class family of model/elements/Segment.h draws on a sheet.
#include "model/elements/Segment.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TSegment::Paint(TDC& dc, int Feuille, bool Selection) {
  const bool courant = this == TFenDessin::pEltCourant;
  PaintLigne(*this, dc, Feuille, PlumeLigne(*this, Surligne(*this, Selection)), courant, nullptr);
}

TRect TSegment::GetRectEcran(TDC&) { return BoiteLigne(*this, Getp2Param(), 7, 7, 7, 9); }

void TSegRevo::Paint(TDC& dc, int Feuille, bool Selection) {
  const bool courant = this == TFenDessin::pEltCourant;
  // The kite's outline marks the current one only: a chain of them would be unreadable.
  PaintLigne(*this, dc, Feuille, PlumeLigne(*this, Surligne(*this, Selection)), courant,
             [&](TDC& d, TPoint milieu) {
               if (!courant) return;
               DebutSymbole(d, *this, true);
               ContourCV(d, milieu);
               FinSymbole(d);
             });
}
