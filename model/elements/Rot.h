#pragma once
// A rotation of the kite on the spot to a given orientation.
#include "model/elements/Manoeuvre.h"

class TRot : public TManoeuvre {
public:
  TRot(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle);
  TRot(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t, float duree, float angle);
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  // The kite turns in place: the flight goes on as before.
  TVect GetVDir() override { return DirectionPrecedente(); }
  int GetAngle() override;
  bool IsCalculV() const override { return true; }
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  float Angle;  // the orientation the kite takes, degrees

protected:
  bool DelegueVDir() override { return true; }
};
