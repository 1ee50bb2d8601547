#pragma once
// The start point of a kite's track: the first element of every non-empty track.
#include "model/Elt.h"

class TPt : public TElt {
public:
  TPt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TPt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t);

  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  void Translate(int, int, bool) override {}
  TVect GetVDir() override { return TVect(0, 1); }  // a kite starts straight up
  // A start point is caught by its end point only.
  bool Clic(TDC&, int, const TPoint&) override { return false; }
  float CalculLongueur() override { return 0; }
  float GetDureeConstante() const override { return 0; }
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;
};
