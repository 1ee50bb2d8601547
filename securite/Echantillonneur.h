#pragma once
// A kite's position at each whole hundredth, in increasing order, walked along its key track
// rather than searched: the same values as the track's own sampling, in linear time.
#include <cmath>
#include <cstddef>

#include "demo/PistesCles.h"

class TEchantillonneur {
public:
  explicit TEchantillonneur(const TPistePosition& piste);
  // The first and last hundredths the kite has a track at; Debut > Fin when it has none.
  int Debut() const { return PremierCentieme; }
  int Fin() const { return DernierCentieme; }
  bool Present(int t) const { return t >= PremierCentieme && t <= DernierCentieme; }
  // The position at hundredth t; t must not go down from one call to the next.
  TVecteur3 Position(int t);

private:
  const std::vector<std::pair<float, TVecteur3>>& Cles;
  std::size_t Indice = 0;  // the last key at or before the time last asked
  int PremierCentieme = 1, DernierCentieme = 0;
};
