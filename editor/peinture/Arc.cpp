// How the class family of model/elements/Arc.h draws on a sheet: the arc of its circle, its
// radii when current, and for TArcRevo the kite's outline at the centre.
#include "model/elements/Arc.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

namespace {
void PaintArc(TArc& a, TDC& dc, int Feuille, bool Selection, bool contour) {
  TElt* prec = a.GetEltPrecedent();
  if (!a.pFen || a.pFen->Num != Feuille || !prec) return;
  // Getp2 calculates the arc again, for the mapping in force: screen or paper.
  const TPointf p2 = a.Getp2();
  const TPointf p1 = prec->Getp2Param();
  const bool surligne = Surligne(a, Selection);
  dc.SelectObject(PlumeLigne(a, surligne));
  const TPoint d1 = Decale(a, a.pFen->LPtoDP(p1));
  const TPoint d2 = Decale(a, a.pFen->LPtoDP(p2));
  const TPoint c = a.pFen->LPtoDP(a.Centre);
  // The circle takes the shift of paper with the ends, the centre does not. A copy, so that
  // the rectangle of the arc stays that of its calculation.
  const TPoint k = Decale(a, TPoint(0, 0));
  const TRect cercle(a.RectCercle.left + k.x, a.RectCercle.top + k.y, a.RectCercle.right + k.x,
                     a.RectCercle.bottom + k.y);
  ModePixels(dc);
  if (a.EtatArc != 1) {
    // No arc: a straight line, and the surface stays in device mode.
    Trait(dc, d1, d2);
    return;
  }
  // Drawn counter-clockwise on the screen, from the end that makes it go that way.
  const bool trace = a.Sens ? dc.Arc(cercle, d1, d2) : dc.Arc(cercle, d2, d1);
  if (!trace) Trait(dc, d1, d2);
  const bool courant = &a == TFenDessin::pEltCourant;
  if (courant) {
    Trait(dc, d1, c);
    Trait(dc, c, d2);
  }
  if (contour && surligne) {
    DebutSymbole(dc, a, true);
    ContourCV(dc, c);
    FinSymbole(dc);
  }
  a.pFen->SetEchelle(dc);
  if (courant) a.PaintPoignee(dc, p2);
  a.PaintSynchro(dc);
  a.PaintChangeFeuille(dc);
}
}  // namespace

void TArc::Paint(TDC& dc, int Feuille, bool Selection) { PaintArc(*this, dc, Feuille, Selection, false); }

void TArcRevo::Paint(TDC& dc, int Feuille, bool Selection) { PaintArc(*this, dc, Feuille, Selection, true); }

TRect TArc::GetRectEcran(TDC&) {
  return TRect(RectCercle.left - 7, RectCercle.top - 7, RectCercle.right + 7, RectCercle.bottom + 7);
}
