#pragma once
// The key tracks of a kite: its positions and its orientations, each a list of keys by time,
// sampled at any time. They stand in for an interpolator of the platform.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "platform/Rendu.h"

TVecteur3 Interpole(const TVecteur3& a, const TVecteur3& b, float f);
// Turns from a to b by the shorter way, as a fraction f of the turn; unit vectors come out.
TOrientation Interpole(const TOrientation& a, const TOrientation& b, float f);

// Keys ordered by time, whatever order they are laid in; a key laid at the time of another
// takes its place, and one at a time that is not a number, which has no place in that order,
// is not kept. A sample between two keys is interpolated linearly between them, one before
// the first key or after the last is that key's value, and a search finds the two keys by
// bisection.
template <class V>
class TPisteCles {
public:
  void Ajoute(float t, const V& v) {
    if (std::isnan(t)) return;
    if (Cles.empty() || Cles.back().first < t) {  // the usual case: keys come in order
      Cles.emplace_back(t, v);
      return;
    }
    const auto place = std::lower_bound(Cles.begin(), Cles.end(), t, [](const auto& c, float u) { return c.first < u; });
    if (place != Cles.end() && place->first == t)
      place->second = v;
    else
      Cles.insert(place, {t, v});
  }

  // An empty track gives the value of a default V, a time that is not a number the first key.
  V Echantillonne(float t) const {
    if (Cles.empty()) return V{};
    if (!(t > Cles.front().first)) return Cles.front().second;
    if (t >= Cles.back().first) return Cles.back().second;
    const auto apres = std::upper_bound(Cles.begin(), Cles.end(), t, [](float u, const auto& c) { return u < c.first; });
    const auto avant = std::prev(apres);
    if (avant->first == t) return avant->second;
    return Interpole(avant->second, apres->second, (t - avant->first) / (apres->first - avant->first));
  }

  bool IsVide() const { return Cles.empty(); }
  std::size_t nbCles() const { return Cles.size(); }
  const std::vector<std::pair<float, V>>& GetCles() const { return Cles; }
  void Vide() { Cles.clear(); }

private:
  std::vector<std::pair<float, V>> Cles;
};

using TPistePosition = TPisteCles<TVecteur3>;
using TPisteOrientation = TPisteCles<TOrientation>;
