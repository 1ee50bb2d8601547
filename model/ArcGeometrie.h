#pragma once
// The four ways of fixing an arc that leaves p1 tangent to the direction v, and the box of
// a circle in pixels. Plain functions without state, in y-up logical units except for
// GetRectCercleInscrit.
//
// A sweep is in radians, positive for a turn to the right of the flight (clockwise with y
// up); it may exceed a half turn. Sens is true when the end lies to the left of v.
// The results are 1 on success and a negative code otherwise; only CalculArc4 beeps.
#include "model/Types.h"

inline constexpr float TOUR_COMPLET = 6.2831855f;
inline constexpr float QUART_DE_TOUR = 1.5707964f;
inline constexpr float DEMI_TOUR = 3.1415927f;

// The circle tangent to v at p1 through p2. -1: p2 is p1; -2: p2 lies straight ahead of
// (or behind) p1, the circle is a line.
int CalculArc1(TVect v, const TPointf& p1, const TPointf& p2, TPointf* Centre, bool* Sens);

// The end from a radius and a sweep. -1: no radius, no direction; -3: no sweep, the end is p1.
int CalculArc2(TVect v, const TPointf& p1, float Rayon, float Angle, TPointf* Centre, TPointf* p2, bool* Sens);

// The sweep from a radius and a wanted end, which is brought back onto the circle along the
// ray from the centre. -1: no radius, no direction, or a point on the centre; -4: no sweep.
int CalculArc3(TVect v, const TPointf& p1, const TPointf& p2, float Rayon, float* Angle, TPointf* Centre,
               TPointf* p2Arc, bool* Sens);

// The radius from a wanted end, at the sweep *Angle; the end is the point of the circle at
// that sweep. -1 on any failure, with a beep when the circle itself cannot be found.
int CalculArc4(TVect v, const TPointf& p1, const TPointf& p2, float* Angle, float* Rayon, TPointf* Centre,
               TPointf* p2Arc, bool* Sens);

// The box of the circle of centre Centre through p, device pixels, right and bottom excluded.
TRect GetRectCercleInscrit(TPoint Centre, TPoint p);
