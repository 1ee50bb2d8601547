// How the class family of model/elements/Figure.h draws on a sheet: one line with a box that
// holds the first two letters of the figure's name. The inner elements are never drawn.
#include "model/elements/Figure.h"

#include <cstdlib>
#include <string>

#include "editor/FenDessin.h"
#include "editor/peinture/Peinture.h"
#include "model/Outils.h"

namespace {
// The first two characters of a name, whole: a name read as UTF-8 is not cut inside a
// character.
std::string DeuxPremiers(const char* nom) {
  std::string texte;
  int caracteres = 0;
  for (const char* c = nom; *c; ++c) {
    const bool suite = (static_cast<unsigned char>(*c) & 0xC0) == 0x80;
    if (!suite && caracteres++ == 2) break;
    texte += *c;
  }
  return texte;
}
}  // namespace

void TFigure::Paint(TDC& dc, int Feuille, bool Selection) {
  const bool surligne = Surligne(*this, Selection);
  const bool courant = this == TFenDessin::pEltCourant;
  // A figure whose end lies near its start has no handle: the box would cover it. The test
  // compares logical units with the box's size in pixels.
  const bool poignee = courant && (std::abs(Tronque(dx)) > 18 || std::abs(Tronque(dy)) > 16);
  PaintLigne(*this, dc, Feuille, PlumeLigne(*this, surligne), poignee, [&](TDC& d, TPoint m) {
    const int e8 = Pixels(8);
    const int e10 = Pixels(10);
    DebutSymbole(d, *this, surligne);
    d.Polygon({TPoint(m.x - e10, m.y - e8), TPoint(m.x + e8, m.y - e8), TPoint(m.x + e8, m.y + e8),
               TPoint(m.x - e10, m.y + e8)});
    const TColor couleur = GetCouleur();
    d.SelectObject(TFont{"Arial", Pixels(14), 400, 1});
    d.SetTextAlign(TA_CENTER | TA_TOP);
    d.SetBkColor(courant ? couleur : TColor::White);
    d.SetTextColor(courant ? Complement(couleur) : couleur);
    d.TextOut(TPoint(m.x, m.y - Pixels(7)), DeuxPremiers(Nom));
    d.SetBkColor(TColor::White);
    FinSymbole(d);
  });
}

TRect TFigure::GetRectEcran(TDC&) { return BoiteLigne(*this, Getp2(), 11, 9, 9, 9); }
