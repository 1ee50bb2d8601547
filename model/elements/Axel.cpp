#include "model/elements/Axel.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDManoeuvre.h"
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

void TAxel::OpenBD() { OuvreBD<TBD_Axel>(); }

void T540::OpenBD() { OuvreBD<TBD_540>(); }
