#pragma once
// Logical points and directions of the sheets.
#include "platform/Types.h"

// A point in logical units of the sheet, y upward.
struct TPointf {
  float x = 0;
  float y = 0;
  constexpr TPointf() = default;
  constexpr TPointf(float x_, float y_) : x(x_), y(y_) {}
  constexpr explicit TPointf(const TPoint& p) : x(static_cast<float>(p.x)), y(static_cast<float>(p.y)) {}
  friend constexpr bool operator==(const TPointf&, const TPointf&) = default;
};

// A direction of flight in whole logical units, not normalised.
struct TVect {
  int x = 0;
  int y = 0;
  constexpr TVect() = default;
  constexpr TVect(int x_, int y_) : x(x_), y(y_) {}
  friend constexpr bool operator==(const TVect&, const TVect&) = default;
};
