#pragma once
// What a routine can hold, checked wherever a time or an angle comes in: a file, a property
// bar, the shift of an insertion or of a paste. The flight generator checks again, so that
// no value that slipped through can make it lay keys without end.
#include <cmath>

// Times and durations, in 1/100 s: 25 h, a little more than a day. It stays below 2^24, so
// every whole hundredth up to it is exact in a float and a step of a tenth of a second
// always moves a key on.
inline constexpr float TEMPS_MAX = 9000000.0f;
// Angles of the turns, in degrees: some 280 turns, which a turn laid a quarter at a time
// covers in a little over a thousand keys.
inline constexpr float ANGLE_MAX = 100000.0f;

// False for a value beyond its bound, infinite or not a number.
inline bool TempsAdmis(double t) { return std::fabs(t) <= TEMPS_MAX; }
inline bool AngleAdmis(double degres) { return std::fabs(degres) <= ANGLE_MAX; }
