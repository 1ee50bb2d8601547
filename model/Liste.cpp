#include "model/Liste.h"

TListe::TListe() : pDebut(&Debut), pFin(&Fin), pCourant(&Fin) {
  Debut.pSuivant = &Fin;
  Fin.pPrecedent = &Debut;
}

TListe::~TListe() { Vide(); }

// Links n in before `avant`, which is a node of this list or the tail sentinel.
void TListe::Lie(TNoeud* n, TNoeud* avant) {
  n->pPrecedent = avant->pPrecedent;
  n->pSuivant = avant;
  avant->pPrecedent->pSuivant = n;
  avant->pPrecedent = n;
  n->pListe = this;
  ++nbElements;
  IndexValide = false;
}

TNoeud* TListe::Init() {
  pCourant = pDebut->pSuivant;
  return IsFin() ? nullptr : pCourant;
}

TNoeud* TListe::VaFin() {
  pCourant = pFin->pPrecedent;
  return pCourant;
}

TNoeud* TListe::Suivant() {
  if (IsFin()) return nullptr;
  pCourant = pCourant->pSuivant;
  return pCourant;
}

TNoeud* TListe::Precedent() {
  if (IsDebut()) return nullptr;
  pCourant = pCourant->pPrecedent;
  return pCourant;
}

TNoeud* TListe::Suivant(TNoeud* n) {
  if (!Existe(n)) return nullptr;
  Suivant();
  return IsFin() ? nullptr : pCourant;
}

TNoeud* TListe::Precedent(TNoeud* n) {
  if (!Existe(n)) return nullptr;
  Precedent();
  return IsDebut() ? nullptr : pCourant;
}

bool TListe::Existe(const TNoeud* n) {
  for (pCourant = pDebut->pSuivant; pCourant != pFin; pCourant = pCourant->pSuivant)
    if (pCourant == n) return true;
  return false;
}

void TListe::Insere(TNoeud* n) {
  // Nothing can stand before the head sentinel: a cursor resting there inserts at the head.
  Lie(n, pCourant == pDebut ? pDebut->pSuivant : pCourant);
}

bool TListe::Insere(TNoeud* n, TNoeud* pos) {
  if (pos == pFin) {
    pCourant = pFin;
  } else if (!Existe(pos)) {
    return false;
  }
  Insere(n);
  return true;
}

void TListe::InsereAvant(TNoeud* n, TNoeud* pos) {
  Lie(n, pos && pos->GetpListe() == this ? pos : pFin);
}

void TListe::Append(TNoeud* n) {
  pCourant = pFin;
  Insere(n);
}

void TListe::Supprime() {
  if (pCourant == pDebut || pCourant == pFin) return;
  TNoeud* n = pCourant;
  n->pPrecedent->pSuivant = n->pSuivant;
  n->pSuivant->pPrecedent = n->pPrecedent;
  pCourant = n->pPrecedent;
  --nbElements;
  IndexValide = false;
  delete n;
}

void TListe::Supprime(TNoeud* n) {
  // A node knows its list, so a long track is not walked to find it.
  if (!n || n == pDebut || n == pFin || n->GetpListe() != this) return;
  pCourant = n;
  Supprime();
}

void TListe::Vide() {
  TNoeud* n = pDebut->pSuivant;
  while (n != pFin) {
    TNoeud* suivant = n->pSuivant;
    delete n;
    n = suivant;
  }
  Debut.pSuivant = &Fin;
  Fin.pPrecedent = &Debut;
  pCourant = pFin;
  nbElements = 0;
  IndexValide = false;
}

TNoeud* TListe::GetPt(int i) const {
  if (i < 0 || i >= nbElements) return nullptr;
  TNoeud* n = pDebut->pSuivant;
  while (i-- > 0) n = n->pSuivant;
  return n;
}

int TListe::GetIndex(const TNoeud* n) {
  if (IndexValide) return n->Index;
  if (IsVide()) return -1;
  int trouve = -1;
  int i = 0;
  for (TNoeud* p = pDebut->pSuivant; p != pFin; p = p->pSuivant, ++i) {
    p->Index = i;
    if (p == n) trouve = i;
  }
  IndexValide = true;
  return trouve;
}

void TListe::Ajoute(TNoeud* n) { Lie(n, pDebut->pSuivant); }

bool TListe::InsereListe(TListe& l, TNoeud* pos) {
  if (l.IsVide()) return false;
  if (pos == nullptr) pos = pFin;
  TNoeud* premier = l.pDebut->pSuivant;
  TNoeud* dernier = l.pFin->pPrecedent;
  for (TNoeud* p = premier; p != l.pFin; p = p->pSuivant) p->pListe = this;
  premier->pPrecedent = pos->pPrecedent;
  dernier->pSuivant = pos;
  pos->pPrecedent->pSuivant = premier;
  pos->pPrecedent = dernier;
  nbElements += l.nbElements;
  IndexValide = false;
  l.Debut.pSuivant = &l.Fin;
  l.Fin.pPrecedent = &l.Debut;
  l.pCourant = l.pFin;
  l.nbElements = 0;
  l.IndexValide = false;
  return true;
}
