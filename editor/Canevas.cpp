// The canvas of a sheet: the mapping of the wind window onto pixels, on the screen and on
// paper, the sheet's background, and the order in which a sheet is painted.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "platform/DC.h"

namespace {
// The sheet shows 220 by 110 logical units, from x -112 and y 102 at its top left: the wind
// window with 12 units of margin on the left and 8 below for the labels, 8 right, 2 above.
constexpr int LARGEUR_LOGIQUE = 220;
constexpr int HAUTEUR_LOGIQUE = 110;
constexpr TPoint ORIGINE_ECRAN{-112, 102};
// On paper, rows of sheets stand 1.2 sheet heights apart: 110 * 1.2.
constexpr float PAS_RANGEE = 132.0f;
// Labels need more than 400 pixels, and the grid of dots more than 500.
constexpr int LARGEUR_MIN_LEGENDES = 400;
constexpr int LARGEUR_MIN_GRILLE = 500;

// Truncated, then brought within the canvas's bounds.
int Borne(float v) {
  return std::clamp(Tronque(v), -TFenDessin::LIMITE_COORDONNEES, TFenDessin::LIMITE_COORDONNEES);
}

void Ligne(TDC& dc, int x1, int y1, int x2, int y2) {
  dc.MoveToEx(TPoint(x1, y1));
  dc.LineTo(TPoint(x2, y2));
}
}  // namespace

void TFenDessin::SetEchelle(TDC& dc) {
  const bool papier = Imp.blImpression;
  const int w = papier ? Imp.Lf : TailleClient.cx;
  const int h = papier ? Imp.Hf : TailleClient.cy;
  dc.SetMapMode(TMapMode::Anisotrope);
  dc.SetWindowExt(TSize{LARGEUR_LOGIQUE, -HAUTEUR_LOGIQUE});
  dc.SetViewportExt(TSize{w, h});
  if (papier) {
    // The place of this sheet on its page, by its number.
    const int parPage = std::max(Imp.NbParPage, 1);
    const int k = (Num - 1) % parPage;
    int colonne = 0;
    int rangee = 0;
    if (parPage == 2) {
      rangee = k;
    } else if (parPage > 2) {
      colonne = k % 2;
      rangee = k / 2;
    }
    const float margeX = w > 0 ? static_cast<float>(LARGEUR_LOGIQUE) / static_cast<float>(w) * Imp.Mx : 0.0f;
    const float margeY = h > 0 ? static_cast<float>(HAUTEUR_LOGIQUE) / static_cast<float>(h) * Imp.My : 0.0f;
    Origine.x = Tronque((static_cast<float>(ORIGINE_ECRAN.x) - LARGEUR_LOGIQUE * static_cast<float>(colonne)) - margeX);
    Origine.y = Tronque(static_cast<float>(ORIGINE_ECRAN.y) + PAS_RANGEE * static_cast<float>(rangee) + margeY);
    // Symbols grow with the paper's resolution, by whole steps so that no size is fractional.
    EchIE = std::max(1.0f, static_cast<float>(2 * (w / 1024)));
  } else {
    Origine = ORIGINE_ECRAN;
    EchIE = 1.0f;
  }
  dc.SetWindowOrg(Origine);
  EchelleX = static_cast<float>(w) / static_cast<float>(LARGEUR_LOGIQUE);
  EchelleY = static_cast<float>(h) / static_cast<float>(-HAUTEUR_LOGIQUE);
}

TPoint TFenDessin::LPtoDP(const TPointf& p) const {
  const float dx = (p.x - static_cast<float>(Origine.x)) * EchelleX;
  const float dy = (p.y - static_cast<float>(Origine.y)) * EchelleY;
  return TPoint(Borne(dx), Borne(dy));
}

TPointf TFenDessin::DPtoLP(const TPoint& p) const {
  if (std::fabs(EchelleX) < EPS || std::fabs(EchelleY) < EPS) return TPointf(0, 0);
  const float lx = static_cast<float>(p.x) / EchelleX + static_cast<float>(Origine.x);
  const float ly = static_cast<float>(p.y) / EchelleY + static_cast<float>(Origine.y);
  return TPointf(static_cast<float>(Borne(lx)), static_cast<float>(Borne(ly)));
}

void TFenDessin::DessinAxes(TDC& dc) {
  // The frame of the wind window, in the pen in force.
  dc.MoveToEx(TPoint(-100, 0));
  for (const TPoint p : {TPoint(100, 0), TPoint(100, 100), TPoint(-100, 100), TPoint(-100, 0)}) dc.LineTo(p);

  dc.SelectObject(TPen{TColor::Black, 0, TPen::Style::Pointille});
  Ligne(dc, 0, 0, 0, 100);
  Ligne(dc, -50, 0, -50, 100);
  Ligne(dc, 50, 0, 50, 100);
  Ligne(dc, -100, 50, 100, 50);

  // The widths are those of the window on the screen, also while printing.
  if (TailleClient.cx > LARGEUR_MIN_LEGENDES) {
    dc.SelectObject(TFont{"Arial", 5, 400, 1});
    dc.SetTextColor(TColor::Black);
    dc.SetTextAlign(TA_CENTER | TA_TOP);
    for (int x : {0, 50, 100, -50, -100}) dc.TextOut(TPoint(x, -1), std::to_string(x));
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc.TextOut(TPoint(-101, 0), "0");
    dc.TextOut(TPoint(-101, 50), "50");
    dc.SetTextAlign(TA_RIGHT | TA_TOP);
    dc.TextOut(TPoint(-101, 100), "100");
  }
  if (Imp.blImpression) {
    char texte[64];
    std::snprintf(texte, sizeof texte, "- %d - %d -", Num, TempsFeuille);
    dc.SetTextAlign(TA_CENTER | TA_TOP);
    dc.TextOut(TPoint(0, -10), texte);
  }
  if (TailleClient.cx > LARGEUR_MIN_GRILLE)
    for (int x = -90; x <= 90; x += 10)
      for (int y = 10; y <= 90; y += 10) dc.SetPixel(TPoint(x, y), TColor::Black);
}

void TFenDessin::Paint(TDC& dc, bool, const TRect&) {
  dc.SelectStockObject(TStockObject::BlackPen);
  SetEchelle(dc);
  DessinAxes(dc);
  dc.SelectStockObject(TStockObject::BlackPen);

  // Each element tells for itself whether it lies on this sheet; the later kites cover the
  // earlier ones where they cross.
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->Paint(dc, Num, false);

  // The current element on top of every kite, then the rest of the selection.
  if (pEltCourant) pEltCourant->Paint(dc, Num, false);
  if (pEltCourant2)
    for (TElt* e = pEltCourant2; e && e != pEltCourant; e = e->GetEltSuivant()) e->Paint(dc, Num, true);
}
