#include "model/elements/Stop.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDManoeuvre.h"
#include "model/Nombres.h"

TStop::TStop(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TManoeuvre(p, fen, fenListe, liste, CONTRAINTE_DUREE, 100) {}

TStop::TStop(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TStop(p, fen, fenListe, liste) {}

void TStop::Set(int, int contrainte, float t, float duree) {
  SetTempsDuree(contrainte, t, duree);
  if (pBD) pBD->SetContrainteDuree();
}

TElt* TStop::Copie(TListeCV* l, bool Lien) {
  TElt* c = CopieDe<TStop>(l, Lien);
  c->DureeConstante = DureeConstante;
  return c;
}

void TStop::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "STOP   ", decalageFeuille, decalageTemps);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, DureeConstante, 6);
  Enregistrer2(Fichier);
}

void TStop::OpenBD() { OuvreBD<TBD_Stop>(); }
