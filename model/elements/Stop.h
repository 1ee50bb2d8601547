#pragma once
// A stop: the kite holds still, nose up.
#include "model/elements/Manoeuvre.h"

class TStop : public TManoeuvre {
public:
  TStop(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TStop(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t, float duree);
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  TVect GetVDir() override { return TVect(0, 1); }
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;
};
