#include "securite/Constat.h"

#include <cstdlib>
#include <tuple>

bool AvantConstat(const TConstat& a, const TConstat& b) {
  return std::tie(a.T1, a.Genre, a.K1, a.K2) < std::tie(b.T1, b.Genre, b.K1, b.K2);
}

std::string Centiemes(long long valeur, char separateur) {
  const long long absolu = std::llabs(valeur);
  std::string fraction = std::to_string(absolu % 100);
  if (fraction.size() < 2) fraction.insert(0, "0");
  return (valeur < 0 ? "-" : "") + std::to_string(absolu / 100) + separateur + fraction;
}

int TempsMontre(const TConstat& c) { return c.Genre == TGenreConstat::Proximite ? c.TMin : c.T1; }

std::string LigneConstat(const TConstat& c) {
  const auto n = [](long long v) { return std::to_string(v); };
  switch (c.Genre) {
    case TGenreConstat::Proximite:
      return "PROXIMITE " + n(c.K1) + " " + n(c.K2) + " " + n(c.T1) + " " + n(c.T2) + " " + n(c.TMin) + " " +
             Centiemes(c.Valeur);
    case TGenreConstat::Enroulement:
      return "ENROULEMENT " + n(c.K1) + " " + n(c.K2) + " " + n(c.T2) + " " + Centiemes(c.Valeur) + " " +
             Centiemes(c.Max);
    case TGenreConstat::Fenetre:
      return "FENETRE " + n(c.K1) + " " + n(c.T1) + " " + n(c.T2);
    case TGenreConstat::Vitesse:
      return "VITESSE " + n(c.K1) + " " + n(c.T1) + " " + n(c.T2) + " " + Centiemes(c.Valeur);
  }
  return {};
}

std::string PhraseConstat(const TConstat& c) {
  const auto cv = [](int k) { return "CV " + std::to_string(k + 1); };
  const auto s = [](long long t) { return Centiemes(t, ',') + " s"; };
  switch (c.Genre) {
    case TGenreConstat::Proximite:
      return cv(c.K1) + " et " + cv(c.K2) + " à " + Centiemes(c.Valeur, ',') + " m à " + s(c.TMin);
    case TGenreConstat::Enroulement:
      return "Lignes de " + cv(c.K1) + " et " + cv(c.K2) + " enroulées de " + Centiemes(c.Max, ',') +
             " tour, " + Centiemes(c.Valeur, ',') + " à la fin";
    case TGenreConstat::Fenetre:
      return cv(c.K1) + " hors de la fenêtre de " + s(c.T1) + " à " + s(c.T2);
    case TGenreConstat::Vitesse:
      return cv(c.K1) + " à " + Centiemes(c.Valeur, ',') + " m/s de " + s(c.T1) + " à " + s(c.T2);
  }
  return {};
}
