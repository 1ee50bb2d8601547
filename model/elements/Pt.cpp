#include "model/elements/Pt.h"

#include "editor/bars/BDPt.h"
TPt::TPt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_TEMPS;
}

TPt::TPt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TPt(p, fen, fenListe, liste) {}

void TPt::Set(int, int contrainte, float t) {
  Contrainte = contrainte;
  Sett2(t);
}

TElt* TPt::Copie(TListeCV* l, bool Lien) { return CopieDe<TPt>(l, Lien); }

void TPt::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "POINT   ", decalageFeuille, decalageTemps);
  Enregistrer2(Fichier);
}

void TPt::OpenBD() { OuvreBD<TBD_Pt>(); }
