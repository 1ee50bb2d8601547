#pragma once
// Geometry tools shared by the element classes and the canvas.
#include <limits>

#include "model/Types.h"

// A value counts as zero when its magnitude is no greater than this: a guard against exact
// zeros, not a rounding tolerance.
inline constexpr float EPS = std::numeric_limits<float>::min();

// Truncation towards zero to an int. Values out of the int range are held at its ends and a
// NaN gives 0, so that a wild coordinate from a file cannot make the conversion undefined.
int Tronque(double v);

// Distance in whole pixels from P to the foot H of its perpendicular on the line AB, or -1
// when the foot falls outside the stretch from A to B or when A and B are one pixel.
int DistPtSeg(const TPoint& P, const TPoint& A, const TPoint& B, TPoint& H);

// The orientation in whole degrees brought to -179 .. 180.
int AngleModulo2Pi(float Angle);
