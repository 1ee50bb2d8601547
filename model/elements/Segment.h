#pragma once
// Straight flight: TSegment flown nose first, TSegRevo flown with the kite turned to Angle.
#include "model/Elt.h"

class TSegment : public TElt {
public:
  TSegment(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TSegment(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  virtual void Set(int, int contrainte, float t, float v);

  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  void Translate(int dx, int dy, bool AvecDebut) override { TranslateDroit(dx, dy, AvecDebut); }
  TVect GetVDir() override { return GetVDirDroite(); }
  bool Clic(TDC&, int Feuille, const TPoint& p) override { return ClicDroit(Feuille, p); }
  float CalculLongueur() override { return LongueurDroite(); }
  float GetDureeConstante() const override { return 0; }
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

protected:
  bool DelegueVDir() override { return SansLongueur(); }
};

class TSegRevo : public TSegment {
public:
  TSegRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle);
  TSegRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle, bool);
  void OpenBD() override;

  void Set(int n, int contrainte, float t, float v) override;
  virtual void Set(int, int contrainte, float t, float v, float angle);

  void Paint(TDC& dc, int Feuille, bool Selection) override;
  int GetAngle() override;
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  float Angle;  // orientation of the kite along the line, degrees
};
