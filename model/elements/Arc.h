#pragma once
// Circular flight: TArc leaves the end of the previous element tangent to its direction, so
// a radius and a sweep fix it and its end point is derived from them each time it is read.
// TArcRevo is the same arc flown with the kite turned to AngleRevo.
#include "model/Elt.h"

// What a drag of the end changes. 1 acts as 2; no command sets it.
enum TTypeArc : int {
  TYPE_ARC_RAYON_ANGLE = 2,  // "Rayon-Angle": both
  TYPE_ARC_RAYON = 3,        // "Rayon": the radius, at the stored sweep
  TYPE_ARC_ANGLE = 4,        // "Angle": the sweep, at the stored radius
};

// EtatArc of an arc that has never been calculated; 1 means a valid arc, a negative value
// the code of the calculation that failed.
inline constexpr int ETAT_ARC_NON_CALCULE = 0;

// A sweep in radians as the bars show it: whole degrees, rounded, except that positive
// sweeps under one degree show as 0.
int ArrondiDegres(float Angle);

class TArc : public TElt {
public:
  TArc(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TArc(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  virtual void Set(int, int contrainte, float t, float v, float rayon, float angle);
  // The calculation that a drag of the end calls for, by TypeArc; its result is EtatArc.
  virtual int CalculParamPoignee();
  // Takes p as the end, with the radius and the sweep, and shows them in the open bar.
  virtual void SetTBDParam(TPointf p, float rayon, float angle);
  // Radius and sweep from the stored end.
  virtual int CalculAngleRayon();
  // The end from the radius and the sweep.
  virtual int Calculp2();
  // The sweep from the stored end at the stored radius; the end goes onto the circle.
  virtual int CalculAngle2();
  // The radius from the stored end at the stored sweep; the end goes to that sweep.
  virtual int CalculRayon();

  void Setp2Poignee(const TPointf& p) override;
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  TPointf Getp2() override;
  void Translate(int dx, int dy, bool AvecDebut) override;
  TVect GetVDir() override;
  bool Clic(TDC& dc, int Feuille, const TPoint& p) override;
  bool IsAInvalider() const override { return true; }
  float CalculLongueur() override;
  float GetDureeConstante() const override { return 0; }
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;
  void Transforme(TPointf Origine, TPointf Destination, int Mode) override;

  int TypeArc = TYPE_ARC_RAYON_ANGLE;
  TRect RectCercle;  // box of the whole circle in pixels, for drawing
  int EtatArc = ETAT_ARC_NON_CALCULE;
  bool Sens = true;  // the end lies to the left of the start direction
  TPointf Centre;
  float Rayon = 0;  // logical units
  float Angle = 0;  // sweep, radians, positive to the right of the flight

protected:
  bool DelegueVDir() override { return SansLongueur(); }
  TPropagation PropagationInvalid() const override { return TPropagation::Restreinte; }
  // The end and the direction of the previous element; false in a track that has lost it.
  bool Depart(TPointf& p1, TVect& v) const;
  void MajRectCercle(const TPointf& p);
  // The fields that Copie carries over, besides those of Copie2.
  void CopieChampsArc(TArc* c) const;
};

class TArcRevo : public TArc {
public:
  TArcRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angleRevo);
  TArcRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angleRevo, bool);
  void OpenBD() override;

  void Set(int n, int contrainte, float t, float v, float rayon, float angle) override;
  virtual void Set(int, int contrainte, float t, float v, float rayon, float angle, float angleRevo);

  int GetAngle() override;
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  float AngleRevo;  // orientation of the kite along the arc, degrees
};
