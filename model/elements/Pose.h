#pragma once
// A landing: the kite comes straight down to the ground and stays there a while.
#include "model/elements/Manoeuvre.h"

inline constexpr float HAUTEUR_SOL = 2.7f;  // ground height, logical units

enum TTypePose : int {
  POSE_DEUX_POINTES = 1,  // "2 pointes"
  POSE_POINTE_GAUCHE = 2, // "p. gauche"
  POSE_POINTE_DROITE = 3, // "p. droite"
};

class TPose : public TManoeuvre {
public:
  // The point is built at height 2; its first Getp2 puts it on the ground.
  TPose(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  TPose(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  void OpenBD() override;

  void Set(int, int contrainte, float t, float duree, int typePose);
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  void SetV(float v) override { TElt::SetV(v); }  // the way down is flown at a speed
  TVect GetVDir() override { return TVect(0, 1); }  // a take-off after it starts straight up
  bool Clic(TDC&, int Feuille, const TPoint& p) override { return ClicDroit(Feuille, p); }
  void Translate(int dx, int dy, bool AvecDebut) override;
  float CalculLongueur() override;
  void Transforme(TPointf Origine, TPointf Destination, int Mode) override;
  TElt* Copie(TListeCV* l, bool Lien) override;
  void DirectX() override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  int TypePose = POSE_DEUX_POINTES;

protected:
  TPointf PointDuPrecedent() const override;
  bool RelaiePoint(TPointf& p) override;
};
