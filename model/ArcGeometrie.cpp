#include "model/ArcGeometrie.h"

#include <cmath>

#include "model/Outils.h"
#include "platform/Dialogues.h"

// The points are taken by value on entry: callers pass the same point as wanted end and as
// result, and an input must not change while it is still being read.

namespace {
bool Confondus(const TPointf& a, const TPointf& b) {
  return std::fabs(a.x - b.x) <= EPS && std::fabs(a.y - b.y) <= EPS;
}

// Positive when p2 lies to the left of v seen from p1.
double Cote(TVect v, const TPointf& p1, const TPointf& p2) {
  return (static_cast<double>(p2.y) - p1.y) * v.x - (static_cast<double>(p2.x) - p1.x) * v.y;
}

bool Nul(TVect v) { return v.x == 0 && v.y == 0; }
}  // namespace

int CalculArc1(TVect v, const TPointf& p1_, const TPointf& p2_, TPointf* Centre, bool* Sens) {
  const TPointf p1 = p1_;
  const TPointf p2 = p2_;
  if (Confondus(p1, p2)) return -1;
  // The centre is where the line through p1 perpendicular to v, v.x X + v.y Y + c1 = 0,
  // meets the perpendicular bisector of p1 p2, b X - a Y + c2 = 0.
  const double c1 = -static_cast<double>(v.x) * p1.x - static_cast<double>(v.y) * p1.y;
  const double d = static_cast<double>(p1.x) * p2.y - static_cast<double>(p2.x) * p1.y;
  double a = 0;
  double b = 0;
  if (std::fabs(d) >= EPS) {
    // The line p1 p2 is a X + b Y + 1 = 0.
    a = (static_cast<double>(p1.y) - p2.y) / d;
    b = (static_cast<double>(p2.x) - p1.x) / d;
  } else {
    // The line p1 p2 goes through the origin.
    a = -p2.y;
    b = p2.x;
  }
  const double c2 = a * (static_cast<double>(p1.y) + p2.y) * 0.5 - b * (static_cast<double>(p1.x) + p2.x) * 0.5;
  const double den = -v.x * a - v.y * b;
  if (std::fabs(den) < EPS) return -2;
  *Centre = TPointf(static_cast<float>((a * c1 + v.y * c2) / den), static_cast<float>((b * c1 - v.x * c2) / den));
  *Sens = Cote(v, p1, p2) > 0;
  return 1;
}

int CalculArc2(TVect v, const TPointf& p1_, float Rayon, float Angle, TPointf* Centre, TPointf* p2, bool* Sens) {
  const TPointf p1 = p1_;
  if (Rayon < EPS) return -1;
  if (std::fabs(Angle) < EPS) {
    *p2 = p1;
    *Sens = true;
    return -3;
  }
  if (Nul(v)) return -1;
  const double g = std::atan2(-static_cast<double>(v.y), static_cast<double>(v.x));
  // A turn to the right has its centre on the right of v.
  const double sens = Angle >= 0 ? -1.0 : 1.0;
  const TPointf c(static_cast<float>(p1.x + sens * std::sin(g) * Rayon),
                  static_cast<float>(p1.y + sens * std::cos(g) * Rayon));
  *Centre = c;
  if (Confondus(p1, c)) return -1;
  const double h = std::atan2(static_cast<double>(p1.y) - c.y, static_cast<double>(p1.x) - c.x);
  const TPointf fin(static_cast<float>(c.x + std::cos(h - Angle) * Rayon),
                    static_cast<float>(c.y + std::sin(h - Angle) * Rayon));
  *p2 = fin;
  *Sens = Cote(v, p1, fin) > 0;
  return 1;
}

int CalculArc3(TVect v, const TPointf& p1_, const TPointf& p2_, float Rayon, float* Angle, TPointf* Centre,
               TPointf* p2Arc, bool* Sens) {
  const TPointf p1 = p1_;
  const TPointf p2 = p2_;
  if (Rayon < EPS || Nul(v)) return -1;
  const double g = std::atan2(-static_cast<double>(v.y), static_cast<double>(v.x));
  // The side of the wanted end chooses the side of the centre.
  const bool gauche = Cote(v, p1, p2) >= 0;
  const double sens = gauche ? 1.0 : -1.0;
  const TPointf c(static_cast<float>(p1.x + sens * std::sin(g) * Rayon),
                  static_cast<float>(p1.y + sens * std::cos(g) * Rayon));
  *Centre = c;
  *Sens = gauche;
  if (Confondus(p1, c) || Confondus(p2, c)) return -1;
  const double h1 = std::atan2(static_cast<double>(p1.y) - c.y, static_cast<double>(p1.x) - c.x);
  const double h2 = std::atan2(static_cast<double>(p2.y) - c.y, static_cast<double>(p2.x) - c.x);
  float a = static_cast<float>(h1 - h2);
  // A turn to the left sweeps a negative angle, one to the right a positive one.
  if (!gauche && a < 0) a += TOUR_COMPLET;
  if (gauche && a > 0) a -= TOUR_COMPLET;
  *Angle = a;
  if (std::fabs(a) < EPS) {
    *p2Arc = p1;
    *Sens = true;
    return -4;
  }
  *p2Arc = TPointf(static_cast<float>(c.x + std::cos(h2) * Rayon), static_cast<float>(c.y + std::sin(h2) * Rayon));
  return 1;
}

int CalculArc4(TVect v, const TPointf& p1_, const TPointf& p2_, float* Angle, float* Rayon, TPointf* Centre,
               TPointf* p2Arc, bool* Sens) {
  const TPointf p1 = p1_;
  const TPointf p2 = p2_;
  const float angle = *Angle;
  if (std::fabs(angle) < EPS) return -1;
  if (CalculArc1(v, p1, p2, Centre, Sens) != 1) {
    Dialogues().MessageBeep(0xFFFF);
    return -1;
  }
  const TPointf c = *Centre;
  const float r = static_cast<float>(std::hypot(static_cast<double>(p1.x) - c.x, static_cast<double>(p1.y) - c.y));
  *Rayon = r;
  if (Nul(v)) return -1;
  const double g = std::atan2(-static_cast<double>(v.y), static_cast<double>(v.x));
  // h is the angle, measured clockwise, of p1 seen from a centre on the side of the turn.
  const double h = angle >= 0 ? g - QUART_DE_TOUR : g + QUART_DE_TOUR;
  *p2Arc = TPointf(static_cast<float>(c.x + std::cos(h + angle) * r), static_cast<float>(c.y - std::sin(h + angle) * r));
  return 1;
}

TRect GetRectCercleInscrit(TPoint Centre, TPoint p) {
  const double dx = static_cast<double>(p.x) - Centre.x;
  const double dy = static_cast<double>(p.y) - Centre.y;
  const double R = std::sqrt(dx * dx + dy * dy);
  return TRect(Tronque(Centre.x - R), Tronque(Centre.y - R), Tronque(Centre.x + R + 1), Tronque(Centre.y + R + 1));
}
