#include "securite/Controle.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "securite/Echantillonneur.h"

namespace {

long long EnCentiemes(double v) { return std::llround(v * 100.0); }

double Carre(double v) { return v * v; }

// A kite's position is outside the sheet's frame when beyond it by more than the generator's
// arithmetic can put a kite that flies along an edge.
constexpr double MARGE_CADRE = 1e-3;
bool HorsFenetre(const TVecteur3& p) {
  return p.x < -100 - MARGE_CADRE || p.x > 100 + MARGE_CADRE || p.y < -MARGE_CADRE || p.y > 100 + MARGE_CADRE;
}

// A direction's place in its turn, from 0 to 4 (a quarter per quadrant), growing with the angle
// as atan2 does but with one division: cheap enough for every pair at every hundredth, and
// exact where it matters, since the wraps' figures are taken with atan2 at their extremes.
double QuartDeTour(double dx, double dy) {
  if (dy >= 0) return dx >= 0 ? dy / (dx + dy) : 1 - dx / (dy - dx);
  return dx < 0 ? 2 - dy / (-dx - dy) : 3 + dx / (dx - dy);
}

// The angle of a direction in [0, 2π), the origin of QuartDeTour.
double Angle(double dx, double dy) {
  const double a = std::atan2(dy, dx);
  return a < 0 ? a + 2 * std::numbers::pi : a;
}

// A run of consecutive hundredths in one state.
struct TSerie {
  bool Ouverte = false;
  int Debut = 0, Fin = 0;
};

struct TSuiviPaire {
  int K1, K2;
  // Proximity: the run, its smallest squared distance and when.
  TSerie Proche;
  double MinD2 = 0;
  int TMin = 0;
  // The wrap: the direction's whole turns and place in the turn, where it began, and where it
  // went furthest each way (turns, place, direction).
  bool Commence = false;
  long long Tours = 0;
  double Quart = 0;
  double Angle0 = 0;
  long long ToursMax = 0, ToursMin = 0;
  double QuartMax = 0, QuartMin = 0;
  double DxMax = 0, DyMax = 0, DxMin = 0, DyMin = 0;
  double DxFin = 0, DyFin = 0;
  int DernierCommun = -1;
};

struct TSuiviKite {
  TSerie Dehors;
  TSerie Rapide;
  double MaxPas2 = 0;  // the longest squared step of the run too fast
  std::optional<TVecteur3> Precedente;
  int TPrecedent = 0;
};

// The wrap in turns of a direction `tours` whole turns from where the pair began.
double Enroulement(const TSuiviPaire& s, long long tours, double dx, double dy) {
  return (2 * std::numbers::pi * static_cast<double>(tours) + Angle(dx, dy) - s.Angle0) / (2 * std::numbers::pi);
}

void SuitDirection(TSuiviPaire& s, double dx, double dy, int t) {
  s.DernierCommun = t;
  if (dx == 0 && dy == 0) return;  // one above the other: no direction, the last one holds
  const double q = QuartDeTour(dx, dy);
  if (!s.Commence) {
    s.Commence = true;
    s.Quart = s.QuartMax = s.QuartMin = q;
    s.Angle0 = Angle(dx, dy);
    s.DxMax = s.DxMin = s.DxFin = dx;
    s.DyMax = s.DyMin = s.DyFin = dy;
    return;
  }
  // The shorter way round from one hundredth to the next; a half turn exactly counts forward.
  const double pas = q - s.Quart;
  if (pas <= -2)
    ++s.Tours;
  else if (pas > 2)
    --s.Tours;
  s.Quart = q;
  s.DxFin = dx;
  s.DyFin = dy;
  const double ici = 4.0 * static_cast<double>(s.Tours) + q;
  if (ici > 4.0 * static_cast<double>(s.ToursMax) + s.QuartMax) {
    s.ToursMax = s.Tours, s.QuartMax = q, s.DxMax = dx, s.DyMax = dy;
  } else if (ici < 4.0 * static_cast<double>(s.ToursMin) + s.QuartMin) {
    s.ToursMin = s.Tours, s.QuartMin = q, s.DxMin = dx, s.DyMin = dy;
  }
}

}  // namespace

std::string TexteDistanceMini(const TPairePlusProche& paire) {
  return "Distance mini : " + Centiemes(paire.Centimetres, ',') + " m (CV " + std::to_string(paire.K1 + 1) + " – CV " +
         std::to_string(paire.K2 + 1) + ")";
}

bool TropProche(long long centimetres, const TReglagesSecurite& reglages) {
  return centimetres < EnCentiemes(reglages.Distance);
}

std::vector<TConstat> ControleVol(const TPistesVol& pistes, int nbCV, const TReglagesSecurite& reglages) {
  std::vector<TConstat> constats;
  const int n = std::clamp(nbCV, 0, NB_CV_MAX);
  std::vector<TEchantillonneur> kites;
  int fin = -1;
  for (int k = 0; k < n; ++k) {
    kites.emplace_back(pistes[k].Positions);
    if (kites.back().Debut() <= kites.back().Fin()) fin = std::max(fin, kites.back().Fin());
  }
  const double m = reglages.MetresParUnite();
  // The thresholds as squared lengths in units, so that no square root is taken per pair:
  // shown to the centimetre, a distance d is below D when d < D - 0.5 cm, a speed above V
  // when it is at least V + 0.5 cm/s.
  const double seuilProche = (static_cast<double>(EnCentiemes(reglages.Distance)) - 0.5) / 100.0 / m;
  const double seuilProche2 = seuilProche > 0 ? Carre(seuilProche) : -1;
  const double seuilPas2 = Carre((static_cast<double>(EnCentiemes(reglages.Vitesse)) + 0.5) / 100.0 / 100.0 / m);

  std::vector<TSuiviPaire> paires;
  for (int a = 0; a < n; ++a)
    for (int b = a + 1; b < n; ++b) paires.push_back({a, b, {}});
  std::vector<TSuiviKite> suivis(n);
  std::vector<TVecteur3> p(n);
  std::vector<char> present(n);

  const auto fermeProche = [&](TSuiviPaire& s) {
    TConstat c{TGenreConstat::Proximite, s.K1, s.K2, s.Proche.Debut, s.Proche.Fin, s.TMin};
    c.Valeur = EnCentiemes(std::sqrt(s.MinD2) * m);
    constats.push_back(c);
    s.Proche.Ouverte = false;
  };
  const auto fermeDehors = [&](int k) {
    constats.push_back({TGenreConstat::Fenetre, k, -1, suivis[k].Dehors.Debut, suivis[k].Dehors.Fin});
    suivis[k].Dehors.Ouverte = false;
  };
  const auto fermeRapide = [&](int k) {
    TConstat c{TGenreConstat::Vitesse, k, -1, suivis[k].Rapide.Debut, suivis[k].Rapide.Fin};
    c.Valeur = EnCentiemes(std::sqrt(suivis[k].MaxPas2) * m * 100.0);
    constats.push_back(c);
    suivis[k].Rapide.Ouverte = false;
    suivis[k].MaxPas2 = 0;
  };

  for (int t = 0; t <= fin; ++t) {
    for (int k = 0; k < n; ++k) {
      present[k] = kites[k].Present(t);
      TSuiviKite& s = suivis[k];
      if (!present[k]) {
        if (s.Dehors.Ouverte) fermeDehors(k);
        if (s.Rapide.Ouverte) fermeRapide(k);
        s.Precedente.reset();
        continue;
      }
      p[k] = kites[k].Position(t);
      if (HorsFenetre(p[k])) {
        if (!s.Dehors.Ouverte) s.Dehors = {true, t, t};
        s.Dehors.Fin = t;
      } else if (s.Dehors.Ouverte) {
        fermeDehors(k);
      }
      // The step from the hundredth before: too fast over that hundredth.
      bool rapide = false;
      if (s.Precedente && s.TPrecedent == t - 1) {
        const double pas2 = Carre(p[k].x - s.Precedente->x) + Carre(p[k].y - s.Precedente->y) +
                            Carre(p[k].z - s.Precedente->z);
        if (pas2 >= seuilPas2) {
          rapide = true;
          if (!s.Rapide.Ouverte) s.Rapide = {true, t - 1, t};
          s.Rapide.Fin = t;
          s.MaxPas2 = std::max(s.MaxPas2, pas2);
        }
      }
      if (!rapide && s.Rapide.Ouverte) fermeRapide(k);
      s.Precedente = p[k];
      s.TPrecedent = t;
    }
    for (TSuiviPaire& s : paires) {
      if (!present[s.K1] || !present[s.K2]) {
        if (s.Proche.Ouverte) fermeProche(s);
        continue;
      }
      const double dx = static_cast<double>(p[s.K2].x) - p[s.K1].x;
      const double dy = static_cast<double>(p[s.K2].y) - p[s.K1].y;
      const double dz = static_cast<double>(p[s.K2].z) - p[s.K1].z;
      const double d2 = dx * dx + dy * dy + dz * dz;
      if (d2 < seuilProche2) {
        if (!s.Proche.Ouverte) {
          s.Proche = {true, t, t};
          s.MinD2 = d2;
          s.TMin = t;
        }
        s.Proche.Fin = t;
        if (d2 < s.MinD2) s.MinD2 = d2, s.TMin = t;
      } else if (s.Proche.Ouverte) {
        fermeProche(s);
      }
      SuitDirection(s, dx, dy, t);
    }
  }
  for (int k = 0; k < n; ++k) {
    if (suivis[k].Dehors.Ouverte) fermeDehors(k);
    if (suivis[k].Rapide.Ouverte) fermeRapide(k);
  }
  const long long permis = EnCentiemes(reglages.Enroulement);
  for (TSuiviPaire& s : paires) {
    if (s.Proche.Ouverte) fermeProche(s);
    if (!s.Commence) continue;
    const long long final = EnCentiemes(Enroulement(s, s.Tours, s.DxFin, s.DyFin));
    const long long haut = EnCentiemes(Enroulement(s, s.ToursMax, s.DxMax, s.DyMax));
    const long long bas = EnCentiemes(Enroulement(s, s.ToursMin, s.DxMin, s.DyMin));
    const long long max = std::llabs(bas) > std::llabs(haut) ? bas : haut;
    if (std::llabs(final) < 50 && std::llabs(max) < 50) continue;
    TConstat c{TGenreConstat::Enroulement, s.K1, s.K2, s.DernierCommun, s.DernierCommun};
    c.Valeur = final;
    c.Max = max;
    c.Compte = std::llabs(final) >= 50 || std::llabs(max) > permis;
    constats.push_back(c);
  }
  std::sort(constats.begin(), constats.end(), AvantConstat);
  return constats;
}

bool PairePlusProche(const TTrajectoire* pistes, int nbCV, float t, const TReglagesSecurite& reglages,
                     TPairePlusProche& paire) {
  const int n = std::clamp(nbCV, 0, NB_CV_MAX);
  TVecteur3 p[NB_CV_MAX];
  bool present[NB_CV_MAX] = {};
  for (int k = 0; k < n; ++k) {
    const auto& cles = pistes[k].Positions.GetCles();
    present[k] = !cles.empty() && t >= cles.front().first && t <= cles.back().first;
    if (present[k]) p[k] = pistes[k].Positions.Echantillonne(t);
  }
  double min2 = -1;
  for (int a = 0; a < n; ++a)
    for (int b = a + 1; b < n; ++b) {
      if (!present[a] || !present[b]) continue;
      const double d2 = Carre(static_cast<double>(p[b].x) - p[a].x) + Carre(static_cast<double>(p[b].y) - p[a].y) +
                        Carre(static_cast<double>(p[b].z) - p[a].z);
      if (min2 < 0 || d2 < min2) {
        min2 = d2;
        paire.K1 = a, paire.K2 = b, paire.P1 = p[a], paire.P2 = p[b];
      }
    }
  if (min2 < 0) return false;
  paire.Metres = std::sqrt(min2) * reglages.MetresParUnite();
  paire.Centimetres = EnCentiemes(paire.Metres);
  return true;
}
