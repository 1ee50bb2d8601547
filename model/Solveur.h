#pragma once
// Constants of the time and speed solver.

inline constexpr float DUREE_VOL_MIN = 1.0f;  // one hundredth of a second
inline constexpr float V_PLANCHER = 1e-05f;   // the float nearest to 1e-05
