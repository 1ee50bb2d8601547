#include "model/elements/Axel.h"
#include "demo/CV.h"

#include "editor/bars/BD.h"
#include "model/Nombres.h"

TManoeuvreCote::TManoeuvreCote(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TManoeuvre(p, fen, fenListe, liste, CONTRAINTE_DUREE, 110) {}

void TManoeuvreCote::Set(int, int contrainte, float t, bool gauche, float duree) {
  SetTempsDuree(contrainte, t, duree);
  Gauche = gauche;
  if (pBD) pBD->SetContrainteDroiteGaucheDuree();
}

void TManoeuvreCote::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  TElt::Transforme(Origine, Destination, Mode);
  // The mirrors that swap left and right swap the side of the turn.
  if (Mode == TRANSFORMATION_SYMETRIE_Y || Mode == TRANSFORMATION_SYMETRIE_POINT) {
    Gauche = !Gauche;
    if (pBD) pBD->SetContrainteDroiteGaucheDuree();
  }
}

void TManoeuvreCote::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, NomEnregistrement(), decalageFeuille, decalageTemps);
  Fichier += Gauche ? "\t\t1\t\t" : "\t\t0\t\t";
  AjouteGcvt(Fichier, DureeConstante, 6);
  Enregistrer2(Fichier);
}

// The manoeuvres on the spot read their own stored time, not a father's.
void TAxel::DirectX() {
  CV* cv = GetCV();
  if (!cv) return;
  if (Gauche)
    cv->AxelG(Num, t2.GetParam(), DureeConstante);
  else
    cv->AxelD(Num, t2.GetParam(), DureeConstante);
}

void T540::DirectX() {
  CV* cv = GetCV();
  if (!cv) return;
  if (Gauche)
    cv->Flat540G(Num, t2.GetParam());
  else
    cv->Flat540D(Num, t2.GetParam());
}
