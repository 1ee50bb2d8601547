#pragma once
// A slide: the kite moves sideways along a straight line.
#include "model/Elt.h"

class TDerapage : public TElt {
public:
  TDerapage(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TDerapage(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t, float v);

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
