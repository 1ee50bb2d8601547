// How the class family of model/elements/AllerA.h draws on a sheet.
#include "model/elements/AllerA.h"

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"

void TAllerA::Paint(TDC& dc, int Feuille, bool Selection) {
  // A go-to leaves the plane of the sheet: its line is thicker than a segment's.
  const bool surligne = Surligne(*this, Selection);
  TPen plume = PlumeLigne(*this, surligne);
  if (EnImpression())
    plume.Largeur = 8;
  else if (!surligne)
    plume.Largeur = 2;
  PaintLigne(*this, dc, Feuille, plume, this == TFenDessin::pEltCourant, nullptr);
}

TRect TAllerA::GetRectEcran(TDC&) { return BoiteLigne(*this, Getp2Param(), 6, 6, 6, 8); }
