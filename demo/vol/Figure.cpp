// What the flight generator is handed by the class family of model/elements/Figure.h.
#include "model/elements/Figure.h"

#include "demo/CV.h"

void TFigure::DirectX() {
  auto* premier = static_cast<TElt*>(pListeFig ? pListeFig->Premier() : nullptr);
  TElt* prec = GetEltPrecedent();
  if (!premier || !prec) return;  // nothing read, or a damaged track: nothing to hand over
  const TPointf a = premier->Getp2Param();
  const TPointf b = prec->Getp2Param();
  const float dt = prec->Gett2Param() - premier->Gett2Param();
  for (TNoeud* n = pListeFig->Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    e->Transforme(a, b, TRANSFORMATION_PARALLELE);
    e->Sett2Param(e->Gett2Param() + dt);
  }
  RattacheInterieur();
  for (TNoeud* n = premier->GetSuivant(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->DirectX();
}
