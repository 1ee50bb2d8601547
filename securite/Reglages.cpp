#include "securite/Reglages.h"

#include <cmath>
#include <numbers>

#include "files/Lignes.h"
#include "model/Nombres.h"

TReglagesSecurite ReglagesSecurite;

double TReglagesSecurite::MetresParUnite() const { return Ligne * std::numbers::pi / 200.0; }

bool TReglagesSecurite::Valides() const {
  // Bounds far beyond any kite, so that no product of them overflows or loses all precision.
  auto dans = [](double v, double bas, double haut) { return std::isfinite(v) && v >= bas && v <= haut; };
  return dans(Ligne, 0.1, 10000) && dans(Distance, 0, 10000) && dans(Enroulement, 0, 1000) &&
         dans(Vitesse, 0, 100000) && dans(Espacement, 0, 1000) && Ligne > 0;
}

bool LitLigneSecurite(TLecteurChamps& champs) {
  float l = 0, d = 0, w = 0, v = 0;
  if (!champs.Reel(l) || !champs.Reel(d) || !champs.Reel(w) || !champs.Reel(v)) return false;
  TReglagesSecurite r;
  r.Ligne = l;
  r.Distance = d;
  r.Enroulement = w;
  r.Vitesse = v;
  // The spacing came later than the four others: a line without it keeps the default.
  float e = 0;
  if (champs.Reel(e)) r.Espacement = e;
  if (!r.Valides()) return false;
  ReglagesSecurite = r;
  return true;
}

void AjouteLigneSecurite(std::string& texte) {
  const TReglagesSecurite& r = ReglagesSecurite;
  const TReglagesSecurite defaut;
  if (r == defaut) return;
  texte += "SECURITE ";
  for (double v : {r.Ligne, r.Distance, r.Enroulement, r.Vitesse}) {
    AjouteGcvt(texte, v, 6);
    texte += ' ';
  }
  if (r.Espacement != defaut.Espacement) {
    AjouteGcvt(texte, r.Espacement, 6);
    texte += ' ';
  }
  texte += '\n';
}
