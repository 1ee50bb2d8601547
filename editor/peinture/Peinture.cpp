#include "editor/peinture/Peinture.h"

#include <algorithm>

#include "editor/FenDessin.h"
#include "model/Elt.h"
#include "model/Outils.h"

int Pixels(int px) { return Tronque(static_cast<float>(px) * TFenDessin::EchIE); }

bool EnImpression() { return TFenDessin::Imp.blImpression; }

bool Surligne(const TElt& e, bool selection) { return selection || &e == TFenDessin::pEltCourant; }

TPen PlumeLigne(const TElt& e, bool surligne) {
  if (EnImpression()) {
    // A pilot's own track stands out on his sheet.
    const bool pilote = e.pListeCV && e.pListeCV->Num == TFenDessin::Imp.Pilote;
    return TPen{e.GetCouleur(), pilote ? 8 : 4, TPen::Style::Plein};
  }
  return TPen{e.GetCouleur(), 0, surligne ? TPen::Style::Pointille : TPen::Style::Plein};
}

TPen PlumeCV(const TElt& e) { return TPen{e.GetCouleur(), 0, TPen::Style::Plein}; }

TColor Complement(TColor c) { return TColor(~c.GetValue() & 0x00FFFFFFu); }

TPoint Decale(const TElt& e, TPoint p) {
  if (!EnImpression() || !e.pListeCV) return p;
  const int k = 2 * e.pListeCV->Num;
  return TPoint(p.x + k, p.y + k);
}

void ModePixels(TDC& dc) { dc.SetMapMode(TMapMode::Texte); }

void Trait(TDC& dc, TPoint a, TPoint b) {
  dc.MoveToEx(a);
  dc.LineTo(b);
}

TPoint Milieu(TPoint a, TPoint b) { return TPoint((a.x + b.x) / 2, (a.y + b.y) / 2); }

TRect Autour(TPoint p, int g, int h, int d, int b) { return TRect(p.x - g, p.y - h, p.x + d, p.y + b); }

TRect BoiteLigne(const TElt& e, const TPointf& fin, int g, int h, int d, int b) {
  if (!e.pFen) return TRect();
  const TPoint q = e.pFen->LPtoDP(fin);
  const TElt* prec = e.GetEltPrecedent();
  const TPoint p = prec ? e.pFen->LPtoDP(prec->Getp2Param()) : q;
  return TRect(std::min(p.x, q.x) - g, std::min(p.y, q.y) - h, std::max(p.x, q.x) + d, std::max(p.y, q.y) + b);
}

void DebutSymbole(TDC& dc, const TElt& e, bool plein) {
  dc.SelectObject(PlumeCV(e));
  dc.SelectObject(TBrush{plein ? e.GetCouleur() : TColor::White});
}

void FinSymbole(TDC& dc) { dc.SelectStockObject(TStockObject::WhiteBrush); }

void ContourCV(TDC& dc, TPoint p) {
  const int e = Pixels(1);
  const int e5 = Pixels(5);
  const int e7 = Pixels(7);
  dc.Polygon({TPoint(p.x - e7, p.y - e), TPoint(p.x + e7, p.y - e), TPoint(p.x + e5, p.y + e5), TPoint(p.x, p.y + e),
              TPoint(p.x - e5, p.y + e5)});
}

void PaintLigne(TElt& e, TDC& dc, int Feuille, const TPen& plume, bool poignee, const TSymbole& symbole) {
  TElt* prec = e.GetEltPrecedent();
  if (!e.pFen || e.pFen->Num != Feuille || !prec) return;
  dc.SelectObject(plume);
  const TPointf p1 = prec->Getp2Param();
  const TPointf p2 = e.Getp2();
  const TPoint d1 = Decale(e, e.pFen->LPtoDP(p1));
  const TPoint d2 = Decale(e, e.pFen->LPtoDP(p2));
  ModePixels(dc);
  Trait(dc, d1, d2);
  if (symbole) symbole(dc, Milieu(d1, d2));
  e.pFen->SetEchelle(dc);
  if (poignee) e.PaintPoignee(dc, p2);
  dc.SelectObject(PlumeCV(e));
  e.PaintSynchro(dc);
  e.PaintChangeFeuille(dc);
}

void PaintSurPlace(TElt& e, TDC& dc, int Feuille, bool selection, const TSymbole& symbole) {
  if (!e.pFen || e.pFen->Num != Feuille || !e.GetEltPrecedent()) return;
  const TPoint d = Decale(e, e.pFen->LPtoDP(e.Getp2()));
  ModePixels(dc);
  DebutSymbole(dc, e, Surligne(e, selection));
  symbole(dc, d);
  FinSymbole(dc);
  e.pFen->SetEchelle(dc);
  e.PaintSynchro(dc);
}
