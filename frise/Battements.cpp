#include "frise/Battements.h"

#include <cmath>

std::vector<TBattement> Battements(const TTempo& tempo, double debut, double fin, std::size_t max) {
  std::vector<TBattement> b;
  if (!tempo.Defini() || !(fin >= debut)) return b;
  const double periode = tempo.Periode();
  const double premier = std::ceil((debut - tempo.T0) / periode - 1e-9);
  const double dernier = std::floor((fin - tempo.T0) / periode + 1e-9);
  if (!std::isfinite(premier) || !std::isfinite(dernier) || dernier - premier + 1 > static_cast<double>(max)) return b;
  for (auto n = static_cast<long long>(premier); n <= static_cast<long long>(dernier); ++n) {
    const long long m = ((n % 4) + 4) % 4;
    // The product first, then the division: whole beats of a whole tempo fall on whole hundredths.
    b.push_back({tempo.T0 + static_cast<double>(n) * 6000.0 / tempo.Bpm, n, m == 0});
  }
  return b;
}

bool TTapeur::Tape(double t, TTempo& tempo) {
  if (!Tapes.empty()) {
    const double ecart = t - Tapes.back();
    if (ecart <= 0 || ecart > ECART_MAX) {
      Tapes.clear();
    } else if (Tapes.size() >= 2) {
      // Out of the rhythm by more than a third of it: the hand started again.
      const double moyenne = (Tapes.back() - Tapes.front()) / static_cast<double>(Tapes.size() - 1);
      if (std::fabs(ecart - moyenne) > moyenne / 3) Tapes.erase(Tapes.begin(), Tapes.end() - 1);
    }
  }
  Tapes.push_back(t);
  if (Tapes.size() < static_cast<std::size_t>(TAPES_MIN)) return false;
  const double periode = (Tapes.back() - Tapes.front()) / static_cast<double>(Tapes.size() - 1);
  const double bpm = 6000.0 / periode;
  if (!TempoAdmis(bpm)) return false;
  tempo.Bpm = bpm;
  // The grid goes on before the taps: its first beat is the earliest one at or after 0.
  tempo.T0 = Tapes.front() - std::floor(Tapes.front() / periode) * periode;
  return true;
}

double Aligne(double t, const TTempo& tempo, const std::vector<TRepere>& reperes, double pixelsParCentieme,
              double tolerance) {
  if (!(pixelsParCentieme > 0)) return t;
  const double portee = tolerance / pixelsParCentieme;
  double meilleur = t, ecartMin = portee;
  bool trouve = false;
  auto essaie = [&](double c) {
    const double e = std::fabs(c - t);
    if (e <= ecartMin) {
      ecartMin = e;
      meilleur = c;
      trouve = true;
    }
  };
  // Marks first: at the same distance a mark wins over a beat.
  for (const TRepere& r : reperes) essaie(r.T);
  if (tempo.Defini()) {
    const double p = tempo.Periode();
    const double n = std::round((t - tempo.T0) / p);
    if (const double c = tempo.T0 + n * p; std::fabs(c - t) < ecartMin) essaie(c);
  }
  return trouve ? meilleur : t;
}

TAlignement Alignement;

float TempsAligne(float t) {
  if (!Alignement.Actif) return t;
  return static_cast<float>(Aligne(t, Tempo, Reperes, Alignement.PixelsParCentieme));
}
