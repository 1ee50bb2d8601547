#pragma once
// The orientation fields of the bars of a kite that flies turned: the angle in degrees,
// which may exceed a turn, and beside it, read-only, the same brought to -179 .. 180.
#include "editor/bars/BD.h"

// Writes angle into field id, with ten digits or truncated, and field 521 from it.
void MontreAngle(TBD& bd, int id, float angle, bool tronque);
// Reads field id into angle, as typed; field 521 follows the truncated value. A text that
// is no number, or an angle beyond the bounds, keeps the angle.
void LitAngle(TBD& bd, int id, float& angle);
