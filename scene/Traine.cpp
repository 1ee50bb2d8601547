#include "scene/Traine.h"

#include <algorithm>
#include <cmath>

std::vector<TPointTraine> PointsTraine(const TPistePosition& positions, float t, float duree, bool arriere,
                                       float pas) {
  std::vector<TPointTraine> points;
  if (positions.IsVide() || !(duree > 0) || !(pas > 0) || !std::isfinite(t)) return points;
  const float premier = positions.GetCles().front().first, dernier = positions.GetCles().back().first;
  // From the kite towards the past (or, backwards, the future), within the keys.
  const float sens = arriere ? 1.0f : -1.0f;
  const float debut = std::clamp(t, premier, dernier);
  const float fin = std::clamp(t + sens * duree, premier, dernier);
  const float longueur = std::abs(fin - debut);
  if (!(longueur > 0)) return points;
  const auto n = static_cast<int>(std::ceil(longueur / pas));
  points.reserve(static_cast<std::size_t>(n) + 1);
  for (int i = 0; i <= n; ++i) {
    const float ti = i == n ? fin : debut + sens * pas * static_cast<float>(i);
    points.push_back({positions.Echantillonne(ti), std::max(0.0f, 1.0f - std::abs(ti - t) / duree)});
  }
  return points;
}
