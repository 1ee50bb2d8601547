// How the class family of model/elements/Pose.h draws on a sheet: the way down to the ground
// and, on the ground, a triangle that says which tips the kite lands on.
#include "model/elements/Pose.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

namespace {
// The ground point: below the end point, which stands at the height of the number.
TPoint PointSol(TPose& p) { return p.pFen->LPtoDP(TPointf(p.Getp2().x, 0)); }
}  // namespace

void TPose::Paint(TDC& dc, int Feuille, bool Selection) {
  if (!pFen || pFen->Num != Feuille) return;
  const bool surligne = Surligne(*this, Selection);
  const TPoint g = Decale(*this, PointSol(*this));
  if (const TElt* prec = GetEltPrecedent()) {
    dc.SelectObject(PlumeLigne(*this, surligne));
    const TPoint d1 = Decale(*this, pFen->LPtoDP(prec->Getp2Param()));
    ModePixels(dc);
    Trait(dc, d1, TPoint(g.x, g.y - Pixels(10)));
  }
  ModePixels(dc);
  DebutSymbole(dc, *this, surligne);
  const int e7 = Pixels(7);
  const int e13 = Pixels(13);
  const int e26 = Pixels(26);
  switch (TypePose) {
    case POSE_POINTE_GAUCHE:
      dc.Polygon({TPoint(g.x + e7, g.y), TPoint(g.x - e7, g.y - e13), TPoint(g.x + e7, g.y - e26)});
      break;
    case POSE_POINTE_DROITE:
      dc.Polygon({TPoint(g.x - e7, g.y), TPoint(g.x + e7, g.y - e13), TPoint(g.x - e7, g.y - e26)});
      break;
    default:  // on both tips, and any type a damaged file may hold
      dc.Polygon({TPoint(g.x - e13, g.y), TPoint(g.x, g.y - Pixels(14)), TPoint(g.x + e13, g.y)});
      break;
  }
  // The mark of a change of sheet takes the triangle's brush.
  PaintChangeFeuille(dc);
  FinSymbole(dc);
  pFen->SetEchelle(dc);
  PaintSynchro(dc);
}

TRect TPose::GetRectEcran(TDC&) {
  if (!pFen) return TRect();
  const TPoint g = PointSol(*this);
  const TElt* prec = GetEltPrecedent();
  const TPoint d1 = prec ? pFen->LPtoDP(prec->Getp2Param()) : g;
  return TRect(d1.x - 13, d1.y - 1, g.x + 13, g.y + 1);
}
