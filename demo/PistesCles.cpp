#include "demo/PistesCles.h"

#include <array>
#include <cmath>

namespace {

using TQuaternion = std::array<double, 4>;  // w, x, y, z

struct TRepere {
  double x[3], y[3], z[3];  // the model's axes, as unit vectors, in the world
};

double Norme(const double v[3]) { return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]); }

// The orthonormal frame of an orientation: z from Z, y from the part of Y across it, x = y ^ z.
// False when the vectors give no frame: one of them nil, or Y along Z.
bool Repere(const TOrientation& o, TRepere& r) {
  double z[3] = {o.Z.x, o.Z.y, o.Z.z};
  const double nz = Norme(z);
  if (nz < 1e-12) return false;
  for (double& c : z) c /= nz;
  double y[3] = {o.Y.x, o.Y.y, o.Y.z};
  const double d = y[0] * z[0] + y[1] * z[1] + y[2] * z[2];
  for (int i = 0; i < 3; ++i) y[i] -= d * z[i];
  const double ny = Norme(y);
  if (ny < 1e-12) return false;
  for (double& c : y) c /= ny;
  const double x[3] = {y[1] * z[2] - y[2] * z[1], y[2] * z[0] - y[0] * z[2], y[0] * z[1] - y[1] * z[0]};
  for (int i = 0; i < 3; ++i) {
    r.x[i] = x[i];
    r.y[i] = y[i];
    r.z[i] = z[i];
  }
  return true;
}

TQuaternion Quaternion(const TRepere& r) {
  // Columns x, y, z of the rotation matrix m[row][col].
  const double m[3][3] = {{r.x[0], r.y[0], r.z[0]}, {r.x[1], r.y[1], r.z[1]}, {r.x[2], r.y[2], r.z[2]}};
  const double trace = m[0][0] + m[1][1] + m[2][2];
  TQuaternion q;
  if (trace > 0) {
    const double s = std::sqrt(trace + 1.0) * 2;
    q = {0.25 * s, (m[2][1] - m[1][2]) / s, (m[0][2] - m[2][0]) / s, (m[1][0] - m[0][1]) / s};
  } else if (m[0][0] > m[1][1] && m[0][0] > m[2][2]) {
    const double s = std::sqrt(1.0 + m[0][0] - m[1][1] - m[2][2]) * 2;
    q = {(m[2][1] - m[1][2]) / s, 0.25 * s, (m[0][1] + m[1][0]) / s, (m[0][2] + m[2][0]) / s};
  } else if (m[1][1] > m[2][2]) {
    const double s = std::sqrt(1.0 + m[1][1] - m[0][0] - m[2][2]) * 2;
    q = {(m[0][2] - m[2][0]) / s, (m[0][1] + m[1][0]) / s, 0.25 * s, (m[1][2] + m[2][1]) / s};
  } else {
    const double s = std::sqrt(1.0 + m[2][2] - m[0][0] - m[1][1]) * 2;
    q = {(m[1][0] - m[0][1]) / s, (m[0][2] + m[2][0]) / s, (m[1][2] + m[2][1]) / s, 0.25 * s};
  }
  return q;
}

// The image of the unit vector v by the rotation q.
TVecteur3 Tourne(const TQuaternion& q, double vx, double vy, double vz) {
  const double w = q[0], x = q[1], y = q[2], z = q[3];
  const double m[3][3] = {{1 - 2 * (y * y + z * z), 2 * (x * y - w * z), 2 * (x * z + w * y)},
                          {2 * (x * y + w * z), 1 - 2 * (x * x + z * z), 2 * (y * z - w * x)},
                          {2 * (x * z - w * y), 2 * (y * z + w * x), 1 - 2 * (x * x + y * y)}};
  return TVecteur3{static_cast<float>(m[0][0] * vx + m[0][1] * vy + m[0][2] * vz),
                   static_cast<float>(m[1][0] * vx + m[1][1] * vy + m[1][2] * vz),
                   static_cast<float>(m[2][0] * vx + m[2][1] * vy + m[2][2] * vz)};
}

}  // namespace

TVecteur3 Interpole(const TVecteur3& a, const TVecteur3& b, float f) {
  return TVecteur3{a.x + (b.x - a.x) * f, a.y + (b.y - a.y) * f, a.z + (b.z - a.z) * f};
}

TOrientation Interpole(const TOrientation& a, const TOrientation& b, float f) {
  TRepere ra;
  TRepere rb;
  // Vectors that give no frame cannot be turned: the nearer key holds.
  if (!Repere(a, ra) || !Repere(b, rb)) return f < 0.5f ? a : b;
  const TQuaternion qa = Quaternion(ra);
  TQuaternion qb = Quaternion(rb);
  double c = qa[0] * qb[0] + qa[1] * qb[1] + qa[2] * qb[2] + qa[3] * qb[3];
  if (c < 0) {  // the shorter way round
    for (double& v : qb) v = -v;
    c = -c;
  }
  double ka = 1 - f;
  double kb = f;
  if (c < 0.9995) {
    const double angle = std::acos(c);
    ka = std::sin((1 - f) * angle) / std::sin(angle);
    kb = std::sin(f * angle) / std::sin(angle);
  }
  TQuaternion q;
  double n = 0;
  for (int i = 0; i < 4; ++i) {
    q[static_cast<std::size_t>(i)] = ka * qa[static_cast<std::size_t>(i)] + kb * qb[static_cast<std::size_t>(i)];
    n += q[static_cast<std::size_t>(i)] * q[static_cast<std::size_t>(i)];
  }
  n = std::sqrt(n);
  for (double& v : q) v /= n;
  return TOrientation{Tourne(q, 0, 0, 1), Tourne(q, 0, 1, 0)};
}
