#pragma once
// The flight generator of one kite: one operation per kind of element, each laying
// time-stamped position and orientation keys on the kite's tracks from the state the
// element before it left. Times are in hundredths of a second, angles in degrees.
#include <optional>

#include "demo/Trajectoire.h"

class CV {
public:
  CV() = default;
  // The tracks the keys go to; the scene owns them.
  void Trajectoire(TTrajectoire* trajectoire) { pTrajectoire = trajectoire; }

  void Point(int Num, float t, float x, float y);
  void Va(int Num, float t, float x, float y, float z, float xZ_, float yZ_, float zZ_, float xY_, float yY_, float zY_);
  void Segment(int Num, float t, float x, float y, float DureeVirage);
  void SegRevo(int Num, float t, float x, float y, float Angle);
  void AxelG(int Num, float t, float Duree);
  void AxelD(int Num, float t, float Duree);
  void Rot(int Num, float t, float Angle);
  // The keys of a turn to Angle at an even rate between T and t, a quarter turn apart.
  void Rotation(float t, float Angle);
  void Stop(int Num, float t);
  void Flat540D(int Num, float t);
  void Flat540G(int Num, float t);
  void Arc(int Num, float t, float cx, float cy, float ex, float ey, bool Sens);
  void ArcRevo(int Num, float t, float cx, float cy, float ex, float ey, bool Sens, float Angle);
  void Pose2(int Num, float t1, float t2);
  void PoseGauche(int Num, float t1, float t2);
  void PoseDroite(int Num, float t1, float t2);
  void Derapage(int Num, float t, float x, float y);

  // Reports of a failed test stay unsaid: a flight built for a check, not asked for.
  static bool Muet;

  float T = -1.0f;  // time reached so far
  float X = 0, Y = 0, Z = 0;
  float xZ = 0, yZ = 0, zZ = 1;  // the model's z axis: normal to the sail
  float xY = 0, yY = 1, zY = 0;  // the model's y axis: where the nose points

private:
  // The tests of the operations; false, with the report said, when one fails. The time test
  // begins with the bounds, which the point alone takes: a time that a routine can hold, and
  // no further from the kite's start than a routine can last, so that the keys of a flight
  // are never more than those of the longest routine.
  bool TesteBorne(int Num, float t);
  bool TesteTemps(int Num, float t, const char* texte, const char* texteFigure);
  bool TesteLongueur(int Num, float x, float y, const char* texte, const char* texteFigure);
  // Ends an element at (x, y) at t: the state moves there and a key of each kind is laid.
  void Arrive(float t, float x, float y);
  void ClePosition(float t, float x, float y, float z);
  void ClePosition(float t) { ClePosition(t, X, Y, Z); }  // the stored position, pinned
  void CleOrientation(float t, const TOrientation& o);
  void CleOrientation(float t) { CleOrientation(t, Orientation()); }
  TOrientation Orientation() const { return {{xZ, yZ, zZ}, {xY, yY, zY}}; }
  void SetOrientation(const TOrientation& o);
  void Axel(int Num, float t, float Duree, bool Gauche);
  void Flat540(int Num, float t, bool Droite);
  // The common part of the arcs; false when a test failed. Leaves the last key's point and
  // tangent in kx, ky, ux, uy.
  bool ParcourtArc(int Num, float t, float cx, float cy, float ex, float ey, bool Sens, bool avecCap, float& kx,
                   float& ky, float& ux, float& uy);
  void Pose(int Num, float t1, float t2, const TVecteur3& U, float H, float tg, const char* texte, const char* texteFigure);

  TTrajectoire* pTrajectoire = nullptr;
  std::optional<float> Depart;  // the time of the kite's point, once laid
};
