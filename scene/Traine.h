#pragma once
// The trail a kite leaves: the points of its key track over the last seconds flown (or, in
// backward play, over the seconds that come after, which it is flying back through), each
// with an opacity that fades from the kite to the trail's far end.
#include <vector>

#include "demo/PistesCles.h"

struct TPointTraine {
  TVecteur3 P;
  float Opacite = 1;  // 1 at the kite, 0 at `duree` from it
};

// The trail at time t (hundredths of a second) of a kite whose positions are `positions`,
// `duree` hundredths long, one point every `pas` hundredths from the kite's own, plus the far
// end. Only the flown part of the track gives points: before its first key or after its last
// the kite stands still and leaves nothing. Empty for an empty track, a duration or step that
// is not above 0.
std::vector<TPointTraine> PointsTraine(const TPistePosition& positions, float t, float duree, bool arriere,
                                       float pas = 2);
