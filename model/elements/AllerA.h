#pragma once
// A go-to: the kite reaches a full 3D pose, a point and an orientation, in a given time.
// On the sheet it is a line to its end point; for the solver, a duration with no length.
#include "model/Elt.h"

class TAllerA : public TElt {
public:
  TAllerA(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TAllerA(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t, float duree, float xZ_, float yZ_, float zZ_, float xY_, float yY_,
           float zY_, float z_);
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  void SetV(float) override {}
  float GetDureeConstante() const override { return DureeConstante; }
  float CalculLongueur() override { return 0; }
  // The next element starts along the kite's y axis.
  TVect GetVDir() override;
  bool Clic(TDC&, int Feuille, const TPoint& p) override { return ClicDroit(Feuille, p); }
  void Translate(int dx, int dy, bool AvecDebut) override { TranslateDroit(dx, dy, AvecDebut); }
  void Transforme(TPointf Origine, TPointf Destination, int Mode) override;
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  float z = 0;
  float xZ = 0, yZ = 0, zZ = 1;  // the kite's z axis at the target
  float xY = 0, yY = 1, zY = 0;  // the kite's y axis at the target
};
