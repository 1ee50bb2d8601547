#include "equipe/Notation.h"

#include "model/Outils.h"

std::string NotationPilote(const TPointf& p) {
  // The side is read after truncation, so that a point a hair left of the centre is on it.
  const int x = Tronque(p.x);
  const char* cote = x < 0 ? "<" : x > 0 ? ">" : "<>";
  // In 64 bits: the far end of int has no positive counterpart in it.
  const long long distance = x < 0 ? -static_cast<long long>(x) : x;
  return cote + std::to_string(distance) + " ^" + std::to_string(Tronque(p.y));
}
