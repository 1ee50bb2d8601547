#include "model/Outils.h"

#include <cmath>
#include <cstdint>

int Tronque(double v) {
  if (std::isnan(v)) return 0;
  if (v >= static_cast<double>(std::numeric_limits<int>::max())) return std::numeric_limits<int>::max();
  if (v <= static_cast<double>(std::numeric_limits<int>::min())) return std::numeric_limits<int>::min();
  return static_cast<int>(v);
}

namespace {
// The foot of the perpendicular from P on the line through A and B, A and B distinct.
// False when the line's coefficients vanish.
bool Pied(const TPoint& P, const TPoint& A, const TPoint& B, double& hx, double& hy) {
  // 64 bits, so that the far points of a zoomed sheet cannot overflow the product.
  const std::int64_t d = std::int64_t{A.x} * B.y - std::int64_t{B.x} * A.y;
  double a = 0;
  double b = 0;
  if (std::fabs(static_cast<double>(d)) >= EPS) {
    // The line is a x + b y + 1 = 0.
    a = static_cast<double>(A.y - B.y) / static_cast<double>(d);
    b = static_cast<double>(B.x - A.x) / static_cast<double>(d);
  } else if (A.y == 0 && B.y == 0) {
    // Both ends on the top pixel row: the foot is straight above or below the click.
    hx = P.x;
    hy = 0;
    return true;
  } else {
    // The line goes through the device origin.
    a = 1;
    if (A.y != 0) b = -static_cast<double>(A.x) / A.y;
    if (B.y != 0) b = -static_cast<double>(B.x) / B.y;
  }
  const double c = P.y * a - P.x * b;
  const double n = a * a + b * b;
  if (std::fabs(n) < EPS) return false;
  hx = -(b * c + a) / n;
  hy = (a * c - b) / n;
  return true;
}
}  // namespace

int DistPtSeg(const TPoint& P, const TPoint& A, const TPoint& B, TPoint& H) {
  if (A == B) return -1;
  double hx = 0;
  double hy = 0;
  if (!Pied(P, A, B, hx, hy)) return -1;
  const double dist = std::sqrt((P.x - hx) * (P.x - hx) + (P.y - hy) * (P.y - hy));
  H = TPoint(Tronque(hx), Tronque(hy));
  if (B.x == A.x) H.x = A.x;
  if (B.y == A.y) H.y = A.y;
  const std::int64_t px = (std::int64_t{H.x} - B.x) * (std::int64_t{H.x} - A.x);
  const std::int64_t py = (std::int64_t{H.y} - B.y) * (std::int64_t{H.y} - A.y);
  if (px < 1 && py < 1) return Tronque(dist);
  return -1;
}

int AngleModulo2Pi(float Angle) {
  const int i = Tronque(Angle);
  int r = i % 360;
  if (r > 180) r -= 360;
  if (r < -179) r += 360;
  return r;
}
