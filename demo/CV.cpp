#include "demo/CV.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "editor/FenDessin.h"
#include "model/Bornes.h"
#include "model/Outils.h"

namespace {

// Headings go through the C library in double: with a float pi, sin(180) comes out below
// zero and a kite pointing straight down would read as -179.
constexpr double PI = 3.14159265358979323846;
constexpr float TOUR = 6.2831855f;
const TOrientation ATTITUDE_N{{0, 0, 1}, {0, 1, 0}};
// The loops that lay keys are counted, so that they end whatever the values. An arc within
// the bounds has a key a tenth of a second at most, a turn to an admissible angle a key a
// quarter turn, from a heading within half a turn of 0.
constexpr int CLES_ARC_MAX = static_cast<int>(TEMPS_MAX / 10.0f) + 10;
constexpr int QUARTS_MAX = static_cast<int>((ANGLE_MAX + 180.0f) / 90.0f) + 1;

double Radians(double degres) { return degres * PI / 180.0; }

// A report on the status line. An element inside a figure has a negative number: the texts
// that have a figure variant show it made positive, the others as it is.
void Signale(const char* texte, const char* texteFigure, int Num) {
  char ligne[256];
  if (Num < 0 && texteFigure)
    std::snprintf(ligne, sizeof ligne, texteFigure, -Num);
  else
    std::snprintf(ligne, sizeof ligne, texte, Num);
  if (!CV::Muet) TFenDessin::MessageErreur(std::string(ligne));
}

}  // namespace

bool CV::Muet = false;

void CV::ClePosition(float t, float x, float y, float z) {
  if (pTrajectoire) pTrajectoire->PosePosition(t, {x, y, z});
}

void CV::CleOrientation(float t, const TOrientation& o) {
  if (pTrajectoire) pTrajectoire->PoseOrientation(t, o);
}

void CV::SetOrientation(const TOrientation& o) {
  xZ = o.Z.x;
  yZ = o.Z.y;
  zZ = o.Z.z;
  xY = o.Y.x;
  yY = o.Y.y;
  zY = o.Y.z;
}

bool CV::TesteBorne(int Num, float t) {
  if (TempsAdmis(t) && (!Depart || TempsAdmis(t - *Depart))) return true;
  Signale("Élément N°%d : temps hors limites!!!", "Élément de la Figure N°%d : temps hors limites!!!", Num);
  return false;
}

bool CV::TesteTemps(int Num, float t, const char* texte, const char* texteFigure) {
  if (!TesteBorne(Num, t)) return false;
  // Strict: an element that ends when the one before it ended lays nothing.
  if (t > T) return true;
  Signale(texte, texteFigure, Num);
  return false;
}

bool CV::TesteLongueur(int Num, float x, float y, const char* texte, const char* texteFigure) {
  if (x != X || y != Y) return true;
  Signale(texte, texteFigure, Num);
  return false;
}

void CV::Arrive(float t, float x, float y) {
  T = t;
  X = x;
  Y = y;
  ClePosition(t);
  CleOrientation(t);
}

void CV::Point(int Num, float t, float x, float y) {
  if (!TesteBorne(Num, t)) return;
  Depart = t;
  T = t;
  X = x;
  Y = y;
  Z = 0.0f;
  SetOrientation(ATTITUDE_N);
  ClePosition(t);
}

void CV::Va(int Num, float t, float x, float y, float z, float xZ_, float yZ_, float zZ_, float xY_, float yY_,
            float zY_) {
  if (!TesteTemps(Num, t, "Fonction Aller A N°%d : durée <= 0!!!", "Fonction Aller A fe la figure N°%d : durée <= 0!!!")) return;
  Z = z;
  SetOrientation({{xZ_, yZ_, zZ_}, {xY_, yY_, zY_}});
  Arrive(t, x, y);
}

void CV::Segment(int Num, float t, float x, float y, float DureeVirage) {
  if (!TesteTemps(Num, t, "Fonction Segment N°%d : durée <= 0!!!", "Fonction Segment de la FigureN°%d : durée <= 0!!!")) return;
  if (!TesteLongueur(Num, x, y, "Fonction Segment N°%d: longueur nulle!!!", nullptr)) return;
  const float L = std::sqrt((x - X) * (x - X) + (y - Y) * (y - Y));
  xY = (x - X) / L;
  yY = (y - Y) / L;
  // The kite swings round to its new heading at the start, then flies straight.
  CleOrientation(T + DureeVirage);
  Arrive(t, x, y);
}

void CV::Rotation(float t, float Angle) {
  // An angle no routine can hold turns the kite straight to its final heading.
  if (!AngleAdmis(Angle)) return;
  const float a = static_cast<float>(AngleModulo2Pi(std::atan2(double{xY}, double{yY}) * 180.0 / PI));
  if (std::fabs(Angle - a) < 3.0f) return;
  const float vitesse = (Angle - a) / (t - T);
  const float s = Angle > a ? 1.0f : -1.0f;
  // Whole degrees from a whole heading: each quarter turn is exact in a float.
  for (int k = 1; k <= QUARTS_MAX; ++k) {
    const float cur = a + 90.0f * s * static_cast<float>(k);
    if (s > 0 ? cur > Angle : cur < Angle) break;
    xY = std::sin(Radians(cur));
    yY = std::cos(Radians(cur));
    CleOrientation(T + std::fabs((cur - a) / vitesse), {{0, 0, 1}, {xY, yY, 0}});
  }
}

void CV::SegRevo(int Num, float t, float x, float y, float Angle) {
  if (!TesteTemps(Num, t, "Fonction SegRevo N°%d : durée <= 0!!!", "Fonction SegRevo de la FigureN°%d : durée <= 0!!!")) return;
  if (!TesteLongueur(Num, x, y, "Fonction SegRevo N°%d: longueur nulle!!!", nullptr)) return;
  Rotation(t, Angle);
  xY = std::sin(Radians(Angle));
  yY = std::cos(Radians(Angle));
  Arrive(t, x, y);
}

void CV::Rot(int Num, float t, float Angle) {
  if (!TesteTemps(Num, t, "Fonction Rotation N°%d : durée  <= 0!!!", "Fonction Rotation de la Figureb N°%d : durée  <= 0!!!")) return;
  Rotation(t, Angle);
  xY = std::sin(Radians(Angle));
  yY = std::cos(Radians(Angle));
  SetOrientation({{0, 0, 1}, {xY, yY, 0}});
  ClePosition(t);
  CleOrientation(t);
  T = t;
}

void CV::Axel(int Num, float t, float Duree, bool Gauche) {
  if (!TesteTemps(Num, t, Gauche ? "Fonction AxelG N°%d: Pb Durée Axel!!!" : "Fonction AxelD N°%d: Pb Temps Axel Droite!!!",
                  Gauche ? "Fonction AxelG de la Figure N°%d: Pb Durée Axel!!!"
                         : "Fonction AxelD de la Figure N°%d: Pb Temps Axel Droite!!!"))
    return;
  // Eleven equal parts for the axel itself, and a pause after the first when time is left.
  float d = Duree / 11.0f;
  float p = (t - T) - Duree;
  if (p < 0) {
    p = 0;
    d = (t - T) / 11.0f;
  }
  const float T0 = T;
  const TVecteur3 haut{0, 1, 0};
  CleOrientation(T0 + d, {{0, 0, 1}, haut});
  CleOrientation(T0 + 2 * d + p, {{0, 0, 1}, haut});
  CleOrientation(T0 + 3 * d + p, {Gauche ? TVecteur3{0.24f, 0, 0.97f} : TVecteur3{-0.24f, 0, 0.97f}, haut});
  CleOrientation(T0 + 4 * d + p, {Gauche ? TVecteur3{0, 0, 1} : TVecteur3{0.1f, 0, 0.99f}, haut});
  CleOrientation(T0 + 8 * d + p, {{0, 1, 0}, {0, 0, 1}});
  SetOrientation({{0, 0, 1}, Gauche ? TVecteur3{-1, 0, 0} : TVecteur3{1, 0, 0}});
  ClePosition(T0 + 11 * d + p);
  CleOrientation(T0 + 11 * d + p);
  T = t;
}

void CV::AxelG(int Num, float t, float Duree) { Axel(Num, t, Duree, true); }

void CV::AxelD(int Num, float t, float Duree) { Axel(Num, t, Duree, false); }

void CV::Stop(int Num, float t) {
  if (!TesteTemps(Num, t, "Fonction Stop N°%d : durée  <= 0!!!", "Fonction Stop de la Figureb N°%d : durée  <= 0!!!")) return;
  CleOrientation(T + 10.0f, ATTITUDE_N);
  SetOrientation(ATTITUDE_N);
  ClePosition(t);
  CleOrientation(t);
  T = t;
}

void CV::Flat540(int Num, float t, bool Droite) {
  if (!TesteTemps(Num, t, Droite ? "Fonction 540D N°%d: Pb Temps 540 Droite!!!" : "Fonction 540 N°%d: Pb Temps 540 Gauche!!!",
                  Droite ? "Fonction 540D de la Figure  N°%d: Pb Temps 540 Droite!!!"
                         : "Fonction 540 de la Figure N°%d: Pb Temps 540 Gauche!!!"))
    return;
  // Lying flat, sail up, the nose turns in the horizontal plane.
  const float d = (t - T) / 9.0f;
  const float T0 = T;
  const float sx = Droite ? 1.0f : -1.0f;
  const TVecteur3 plat{0, 1, 0};
  CleOrientation(T0 + 2 * d, {plat, {0.5f * sx, 0, 1}});
  CleOrientation(T0 + 3 * d, {plat, {sx, 0, 0}});
  CleOrientation(T0 + 6 * d, {plat, {-sx, 0, 0}});
  CleOrientation(T0 + 7 * d, {plat, {0, 0, 1}});
  SetOrientation({{0, 0, 1}, {sx, 0, 0}});
  ClePosition(T0 + 9 * d);
  CleOrientation(T0 + 9 * d);
  T = T0 + 9 * d;
}

void CV::Flat540D(int Num, float t) { Flat540(Num, t, true); }

void CV::Flat540G(int Num, float t) { Flat540(Num, t, false); }

bool CV::ParcourtArc(int Num, float t, float cx, float cy, float ex, float ey, bool Sens, bool avecCap, float& kx,
                     float& ky, float& ux, float& uy) {
  if (!TesteTemps(Num, t, avecCap ? "Fonction Arc N°%d : durée <= 0!!!" : "Fonction ArcRevo N°%d : durée <= 0!!!",
                  avecCap ? "Fonction Arc de la Figure N°%d : durée <= 0!!!"
                          : "Fonction ArcREvo de la Figure N°%d : durée <= 0!!!"))
    return false;
  if ((X == cx && Y == cy) || (ex == cx && ey == cy)) {
    Signale(avecCap ? "Fonction Arc N°%d : rayon nul!!!" : "Fonction ArcRevo N°%d : rayon nul!!!", nullptr, Num);
    return false;
  }
  float a0 = std::atan2(Y - cy, X - cx);
  float a1 = std::atan2(ey - cy, ex - cx);
  if (Sens && a1 <= a0) a1 += TOUR;
  if (!Sens && a0 <= a1) a0 += TOUR;
  const float T0 = T;
  const float w = (a1 - a0) / (t - T0);
  const float r = std::sqrt((ex - cx) * (ex - cx) + (ey - cy) * (ey - cy));
  // A key every tenth of a second, and one at the end unless it falls within 1.0 of the last.
  // Between admissible times the sum always moves on; the count ends the loop all the same.
  float tk = T0 + 10.0f;
  for (int n = 0; n < CLES_ARC_MAX; ++n) {
    const float a = (tk - T0) * w + a0;
    kx = r * std::cos(a) + cx;
    ky = r * std::sin(a) + cy;
    ClePosition(tk, kx, ky, Z);
    if (avecCap) {
      ux = Sens ? -(ky - cy) : ky - cy;
      uy = Sens ? kx - cx : -(kx - cx);
      const float n = std::sqrt(ux * ux + uy * uy);
      ux /= n;
      uy /= n;
      CleOrientation(tk, {{0, 0, 1}, {ux, uy, 0}});
    }
    tk += 10.0f;
    if (t + 9.0f <= tk) break;
    if (tk > t) tk = t;
  }
  return true;
}

void CV::Arc(int Num, float t, float cx, float cy, float ex, float ey, bool Sens) {
  float kx = 0, ky = 0, ux = 0, uy = 0;
  if (!ParcourtArc(Num, t, cx, cy, ex, ey, Sens, true, kx, ky, ux, uy)) return;
  T = t;
  X = kx;
  Y = ky;
  SetOrientation({{0, 0, 1}, {ux, uy, 0}});
}

void CV::ArcRevo(int Num, float t, float cx, float cy, float ex, float ey, bool Sens, float Angle) {
  float kx = 0, ky = 0, ux = 0, uy = 0;
  if (!ParcourtArc(Num, t, cx, cy, ex, ey, Sens, false, kx, ky, ux, uy)) return;
  // The heading turns on its own, whatever the curve.
  Rotation(t, Angle);
  xY = std::sin(Radians(Angle));
  yY = std::cos(Radians(Angle));
  Arrive(t, kx, ky);
}

void CV::Pose(int Num, float t1, float t2, const TVecteur3& U, float H, float tg, const char* texte,
              const char* texteFigure) {
  if (!TesteBorne(Num, t1) || !TesteBorne(Num, t2)) return;
  if (!(t2 > T) || !(t1 >= T)) {
    Signale(texte, texteFigure, Num);
    return;
  }
  const TOrientation attitude{{0, 0, 1}, U};
  if (T + 20.0f < t1) {
    ClePosition(T + 20.0f);
    CleOrientation(T + 20.0f, attitude);
  }
  ClePosition(tg, X, H, Z);
  CleOrientation(tg, attitude);
  ClePosition(t2, X, H, Z);
  CleOrientation(t2, attitude);
  T = t2;
  Y = H;
  SetOrientation(attitude);
}

void CV::Pose2(int Num, float t1, float t2) {
  Pose(Num, t1, t2, {0, 1, 0}, 2.7f, t1 + 1.0f, "Fonction Posé2 N°%d : durée trop faible!!!",
       "Fonction Posé2 de la Figure N°%d : durée trop faible!!!");
}

void CV::PoseGauche(int Num, float t1, float t2) {
  Pose(Num, t1, t2, {-1, 0.5f, 0}, 5.0f, t1, "Fonction Posé Gauche N°%d : durée trop faible!!!",
       "Fonction Posé Gauche de la Figure N°%d : durée trop faible!!!");
}

void CV::PoseDroite(int Num, float t1, float t2) {
  Pose(Num, t1, t2, {1, 0.5f, 0}, 5.0f, t1, "Fonction Posé Droite N°%d : durée trop faible!!!",
       "Fonction Posé Droite de la Figure N°%d : durée trop faible!!!");
}

void CV::Derapage(int Num, float t, float x, float y) {
  if (!TesteTemps(Num, t, "Fonction Dérapage N°%d : durée <= 0!!!", "Fonction Dérapage de la Figure N°%d : durée <= 0!!!")) return;
  if (!TesteLongueur(Num, x, y, "Fonction Dérapage N°%d: longueur nulle!!!", "Fonction Dérapage de la Figure N°%d: longueur nulle!!!")) return;
  CleOrientation(T + 20.0f, ATTITUDE_N);
  SetOrientation(ATTITUDE_N);
  Arrive(t, x, y);
}
