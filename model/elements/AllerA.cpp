#include "model/elements/AllerA.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDAllerA.h"
#include "model/Nombres.h"
#include "model/Outils.h"

TAllerA::TAllerA(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_DUREE;
  DureeConstante = 100;
}

TAllerA::TAllerA(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TAllerA(p, fen, fenListe, liste) {}

void TAllerA::Set(int, int contrainte, float t, float duree, float xZ_, float yZ_, float zZ_, float xY_, float yY_,
                  float zY_, float z_) {
  Contrainte = contrainte;
  Sett2(t);
  DureeConstante = duree;
  xZ = xZ_;
  yZ = yZ_;
  zZ = zZ_;
  xY = xY_;
  yY = yY_;
  zY = zY_;
  z = z_;
  if (pBD) pBD->SetContrainte();
}

TVect TAllerA::GetVDir() { return TVect(Tronque(xY), Tronque(yY)); }

void TAllerA::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  TElt::Transforme(Origine, Destination, Mode);
  // The orientation is mirrored with the point; z and the z components never change.
  const bool miroirY = Mode == TRANSFORMATION_SYMETRIE_X || Mode == TRANSFORMATION_SYMETRIE_POINT;
  const bool miroirX = Mode == TRANSFORMATION_SYMETRIE_Y || Mode == TRANSFORMATION_SYMETRIE_POINT;
  if (miroirY) {
    yZ = -yZ;
    yY = -yY;
  }
  if (miroirX) {
    xZ = -xZ;
    xY = -xY;
  }
  if (pBD) pBD->SetContrainte();
}

TElt* TAllerA::Copie(TListeCV* l, bool Lien) {
  auto* c = static_cast<TAllerA*>(CopieDe<TAllerA>(l, Lien));
  c->DureeConstante = DureeConstante;
  c->z = z;
  c->xZ = xZ;
  c->yZ = yZ;
  c->zZ = zZ;
  c->xY = xY;
  c->yY = yY;
  c->zY = zY;
  return c;
}

void TAllerA::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "ALLERA ", decalageFeuille, decalageTemps);
  // The duration, then the two axes of the kite at the target and its height.
  for (float v : {DureeConstante, xZ, yZ, zZ, xY, yY, zY, z}) {
    Fichier += '\t';
    AjouteGcvt(Fichier, v, 6);
  }
  Enregistrer2(Fichier);
}

void TAllerA::OpenBD() { OuvreBD<TBD_AllerA>(); }
