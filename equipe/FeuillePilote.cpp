#include "equipe/FeuillePilote.h"

#include <cstdio>

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"
#include "equipe/Notation.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/DC.h"

std::string EntetePilote(int k) { return " - CV " + std::to_string(k + 1); }

TCouleursPilote::TCouleursPilote(int k) {
  if (k < 0) return;
  for (int i = 0; i < nbCV; ++i) {
    Avant.push_back(TabLElt[i].Couleur);
    if (i != k) TabLElt[i].Couleur = TColor::LtGray;
  }
}

TCouleursPilote::~TCouleursPilote() {
  for (std::size_t i = 0; i < Avant.size(); ++i) TabLElt[i].Couleur = Avant[i];
}

std::string EtiquettePilote(float x, float y, float t) {
  // Seconds with one decimal, written the French way.
  char secondes[32];
  std::snprintf(secondes, sizeof secondes, "%.1f", static_cast<double>(t) / 100.0);
  std::string s = secondes;
  if (const auto point = s.find('.'); point != std::string::npos) s[point] = ',';
  return NotationPilote({x, y}) + "  " + s + " s";
}

void EtiquettesPilote(TDC& dc, TFenDessin& feuille, int k) {
  if (k < 0 || k >= nbCV) return;
  ModePixels(dc);
  dc.SelectObject(TFont{"Arial", Pixels(11), 400, 1});
  dc.SetBkMode(TBkMode::Transparent);
  dc.SetTextColor(TColor::Black);
  // Above and below the track by turns, so that the labels of two close ends stay apart.
  bool dessus = true;
  for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    if (e->pFen != &feuille) continue;
    const TPointf p = e->Getp2Param();
    const TPoint d = feuille.LPtoDP(p);
    dc.SetTextAlign(TA_LEFT | (dessus ? TA_BOTTOM : TA_TOP));
    dc.TextOut(TPoint(d.x + Pixels(5), d.y + (dessus ? -Pixels(3) : Pixels(3))), EtiquettePilote(p.x, p.y, e->Gett2Param()));
    dessus = !dessus;
  }
  dc.SetBkMode(TBkMode::Opaque);
  dc.SetTextAlign(TA_LEFT | TA_TOP);
  feuille.SetEchelle(dc);
}
