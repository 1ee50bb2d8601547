// How the class family of model/elements/Pt.h draws on a sheet.
#include "model/elements/Pt.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TPt::Paint(TDC& dc, int Feuille, bool) {
  // A start point is drawn as first of its list, and filled only when it is current: it is
  // never part of a selected range.
  if (!pFen || pFen->Num != Feuille) return;
  const TPoint d = pFen->LPtoDP(Getp2());
  const int e3 = Pixels(3);
  ModePixels(dc);
  DebutSymbole(dc, *this, this == TFenDessin::pEltCourant);
  dc.Rectangle(Autour(d, e3, e3, e3, e3));
  FinSymbole(dc);
  pFen->SetEchelle(dc);
}

TRect TPt::GetRectEcran(TDC&) { return pFen ? Autour(pFen->LPtoDP(Getp2Param()), 5, 5, 5, 5) : TRect(); }
