#include "securite/Echantillonneur.h"

#include <algorithm>

TEchantillonneur::TEchantillonneur(const TPistePosition& piste) : Cles(piste.GetCles()) {
  if (Cles.empty()) return;
  // Hundredths far outside any routine are not sampled: the generator bounds its times.
  const auto borne = [](double t) { return std::clamp(t, -1e9, 1e9); };
  PremierCentieme = static_cast<int>(std::ceil(borne(Cles.front().first)));
  DernierCentieme = static_cast<int>(std::floor(borne(Cles.back().first)));
}

TVecteur3 TEchantillonneur::Position(int centieme) {
  // As TPisteCles::Echantillonne: before the first key its value, from the last key on its
  // value, at a key its value, between two the interpolation of the track's own.
  const float t = static_cast<float>(centieme);
  if (!(t > Cles.front().first)) return Cles.front().second;
  if (t >= Cles.back().first) return Cles.back().second;
  while (Indice + 1 < Cles.size() && !(t < Cles[Indice + 1].first)) ++Indice;
  const auto& avant = Cles[Indice];
  const auto& apres = Cles[Indice + 1];
  if (avant.first == t) return avant.second;
  return Interpole(avant.second, apres.second, (t - avant.first) / (apres.first - avant.first));
}
