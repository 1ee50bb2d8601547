#include "model/elements/Derapage.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDSegment.h"

TDerapage::TDerapage(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_VCONSTANTE;
}

TDerapage::TDerapage(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TDerapage(p, fen, fenListe, liste) {}

void TDerapage::Set(int, int contrainte, float t, float v) {
  SetValeurs(contrainte, t, v);
  if (pBD) pBD->SetContrainte();
}

TElt* TDerapage::Copie(TListeCV* l, bool Lien) { return CopieDe<TDerapage>(l, Lien); }

void TDerapage::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "DERAPAGE", decalageFeuille, decalageTemps);
  Enregistrer2(Fichier);
}

void TDerapage::OpenBD() { OuvreBD<TBD_Derapage>(); }
