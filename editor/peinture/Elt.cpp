// What every element draws beside its own shape, and how it asks for a repaint.
#include <string>
#include <vector>

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"
#include "model/Elt.h"

void TElt::PaintChangeFeuille(TDC& dc) {
  if (!pFen) return;
  const TElt* prec = GetEltPrecedent();
  if (prec) {
    dc.SelectObject(PlumeCV(*this));
    if (prec->pFen != pFen) {
      const TPoint d = pFen->LPtoDP(prec->Getp2Param());
      const int e4 = Pixels(4);
      ModePixels(dc);
      Trait(dc, TPoint(d.x + e4, d.y + e4), TPoint(d.x - e4, d.y - e4));
      Trait(dc, TPoint(d.x + e4, d.y - e4), TPoint(d.x - e4, d.y + e4));
      pFen->SetEchelle(dc);
    }
  }
  const TElt* suiv = GetEltSuivant();
  if (suiv && suiv->pFen != pFen) {
    // In the pen and brush in force: a highlighted landing fills it in its kite's colour.
    const int e3 = Pixels(3);
    ModePixels(dc);
    dc.Rectangle(Autour(pFen->LPtoDP(Getp2Param()), e3, e3, e3, e3));
    pFen->SetEchelle(dc);
  }
}

void TElt::PaintPoignee(TDC& dc, const TPointf& p) {
  if (!pFen) return;
  // The mouse takes it in pixels: its size does not grow on paper.
  const TPoint d = pFen->LPtoDP(p);
  ModePixels(dc);
  dc.SelectObject(PlumeCV(*this));
  dc.SelectObject(TBrush{GetCouleur()});
  dc.Rectangle(Autour(d, 3, 3, 3, 3));
  dc.SelectStockObject(TStockObject::WhiteBrush);
  pFen->SetEchelle(dc);
}

void TElt::PaintSynchro(TDC& dc) {
  if (!pFen) return;
  // On the end point, without the shift of paper: the same number on every kite that
  // meets there.
  const TPoint d = pFen->LPtoDP(Getp2Param());
  const TPoint ancre(d.x, d.y - Pixels(6));
  const TColor couleur = GetCouleur();
  const bool courant = this == TFenDessin::pEltCourant;
  // Inside a symbol the number lets the symbol show through.
  dc.SetBkMode(SurPlace ? TBkMode::Transparent : TBkMode::Opaque);
  auto numero = [&](int n) {
    ModePixels(dc);
    dc.SelectObject(TFont{"Arial", Pixels(14), 400, 1});
    dc.SetTextAlign(TA_CENTER | TA_TOP);
    dc.TextOut(ancre, std::to_string(n));
    dc.SetBkColor(TColor::White);
  };
  auto couleursNormales = [&] {
    if (courant) {
      dc.SetBkColor(couleur);
      dc.SetTextColor(Complement(couleur));
    } else {
      dc.SetBkColor(TColor::White);
      dc.SetTextColor(couleur);
    }
  };
  if (pPere) {
    couleursNormales();
    if (!courant && pPere == TFenDessin::pEltCourant) {
      // With the current element a father, all its children turn yellow at once.
      dc.SetBkColor(TColor::LtYellow);
      dc.SetBkMode(TBkMode::Opaque);
    }
    numero(pPere->NumSynchro);
    pFen->SetEchelle(dc);
  }
  if (NumSynchro != 0) {
    couleursNormales();
    numero(NumSynchro);
    dc.SetBkMode(TBkMode::Opaque);
    pFen->SetEchelle(dc);
  }
  dc.SetBkMode(TBkMode::Opaque);
}

void TElt::Invalid(TDC& dc, bool etendu, int sens) {
  // A loop over the calls the chain of neighbours would make, served in the same order:
  // a run of manoeuvres or arcs can be as long as the track.
  struct TAppel {
    TElt* Elt;
    bool Etendu;
    int Sens;
  };
  std::vector<TAppel> pile{{this, etendu, sens}};
  while (!pile.empty()) {
    const TAppel a = pile.back();
    pile.pop_back();
    TElt& e = *a.Elt;
    if (!e.EstDansListe()) continue;
    if (e.pFen) dc.InvalidateRect(e.GetRectEcran(dc), true);
    TElt* suiv = e.GetEltSuivant();
    TElt* prec = e.GetEltPrecedent();
    const bool versSuivant = a.Sens == 1 || a.Sens == 2;
    const bool versPrecedent = a.Sens == 0 || a.Sens == 2;
    TAppel suites[3];
    int n = 0;
    const TPropagation propagation = e.PropagationInvalid();
    if (propagation == TPropagation::Base) {
      if (suiv) {
        if (a.Etendu && versSuivant) suites[n++] = {suiv, false, 1};
        // An arc is drawn from the direction of what comes before it.
        if (suiv->IsAInvalider()) suites[n++] = {suiv, false, 1};
      }
      if (prec && a.Etendu && versPrecedent) suites[n++] = {prec, false, 0};
    } else {
      const bool passe = propagation == TPropagation::Etendue;
      if (suiv && versSuivant) suites[n++] = {suiv, passe, 1};
      if (prec && versPrecedent) suites[n++] = {prec, passe, 0};
    }
    while (n > 0) pile.push_back(suites[--n]);
  }
}

void TElt::InvalidSynchro(TDC& dc) {
  TElt* pere = NumSynchro != 0 ? this : pPere;
  if (!pere || !pFen) return;
  auto carre = [&](const TElt& e) { dc.InvalidateRect(Autour(pFen->LPtoDP(e.Getp2Param()), 7, 7, 7, 7), true); };
  carre(*pere);
  for (const TElt* f : pere->pFils)
    if (f) carre(*f);
}
