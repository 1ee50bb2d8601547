#include "model/elements/Rot.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDManoeuvre.h"
#include "model/Nombres.h"
#include "model/Outils.h"

TRot::TRot(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle)
    : TManoeuvre(p, fen, fenListe, liste, CONTRAINTE_DUREE, 100), Angle(angle) {}

TRot::TRot(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle, bool)
    : TRot(p, fen, fenListe, liste, angle) {}

void TRot::Set(int, int contrainte, float t, float duree, float angle) {
  SetTempsDuree(contrainte, t, duree);
  Angle = angle;
  if (pBD) pBD->SetContrainteDureeAngle();
}

int TRot::GetAngle() { return AngleModulo2Pi(Angle); }

TElt* TRot::Copie(TListeCV* l, bool Lien) {
  TElt* c = CopieDe<TRot>(l, Lien, Angle);
  c->DureeConstante = DureeConstante;
  return c;
}

void TRot::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "ROT   ", decalageFeuille, decalageTemps);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, DureeConstante, 6);
  Fichier += '\t';
  AjouteGcvt(Fichier, Angle, 6);
  Enregistrer2(Fichier);
}

void TRot::OpenBD() { OuvreBD<TBD_Rot>(); }
