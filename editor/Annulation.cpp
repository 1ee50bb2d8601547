// The undo copy: the elements of the active sheet as they were before the last change, and
// its exchange with them.
#include <utility>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "model/Document.h"
#include "model/Elt.h"

namespace {
// The elements of `feuille` in track k, its start point left out: a kite's start point is
// never part of the copy.
template <class Action>
void PourChaque(int k, const TFenDessin* feuille, Action action) {
  const TNoeud* premier = TabLElt[k].Premier();
  for (TNoeud* n = premier ? premier->GetSuivant() : nullptr; n;) {
    TNoeud* suivant = n->GetSuivant();
    if (auto* e = static_cast<TElt*>(n); e->pFen == feuille) action(e);
    n = suivant;
  }
}

// Copies of the elements of `feuille`, per kite, into `table`, with their links noted.
void Copie(TListeCV* table, const TFenDessin* feuille) {
  for (int k = 0; k < nbCV; ++k) {
    table[k].Vide();
    PourChaque(k, feuille, [&](TElt* e) { table[k].Append(e->Copie(&TabLElt[k], true)); });
  }
}
}  // namespace

void TFenDessin::MAJUnDo() { Copie(AncTabLElt, this); }

void TFenDessin::Undo() {
  if (AncTabLElt[0].IsVide()) {
    MessageErreur("Aucune action mémorisée");
    return;
  }
  Copie(TLE, this);
  // A link reaches another sheet only if an element was carried off; it is cut first, so
  // that nothing is left pointing at what goes.
  for (int k = 0; k < nbCV; ++k)
    PourChaque(k, this, [&](TElt* e) {
      if (e->pPere && e->pPere->pFen != this) DetachePere(e);
      for (TElt*& fils : e->pFils)
        if (fils && fils->pFen != this) {
          fils->pPere = nullptr;
          fils->Sett2();
          fils = nullptr;
        }
    });
  TNoeud* apres[NB_CV_MAX] = {};
  for (int k = 0; k < nbCV; ++k)
    PourChaque(k, this, [&](TElt* e) {
      apres[k] = e->GetSuivant();
      if (e == pEltSynchro) pEltSynchro = nullptr;
      e->Supprime();
    });
  TNoeud* premiers[NB_CV_MAX] = {};
  TNoeud* derniers[NB_CV_MAX] = {};
  for (int k = 0; k < nbCV; ++k) {
    premiers[k] = AncTabLElt[k].Premier();
    derniers[k] = AncTabLElt[k].Dernier();
  }
  for (int k = 0; k < nbCV; ++k) TabLElt[k].InsereListe(AncTabLElt[k], apres[k]);
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = premiers[k]; n; n = n == derniers[k] ? nullptr : n->GetSuivant())
      static_cast<TElt*>(n)->OpenBD();
  // Fathers keep their numbers, so each child goes back on the same one.
  for (int k = 0; k < nbCV; ++k)
    PourChaque(k, this, [&](TElt* e) { Synchronise(e, e->NumCVPere, TabLElt, e->IndexPere, this); });
  std::swap(AncTabLElt, TLE);
  Fonction = FONCTION_MODIFICATION;
  Etape = 1;
  pEltCourant = pEltCourant2 = pEltSel = nullptr;
  RetraceTout();
  SetCurseur(TCurseur::Fleche);
  if (pFenCadre) pFenCadre->Focus();
}

void TFenDessin::RetraceTout() {
  if (pFenCadre) pFenCadre->Invalide(this, TRect(0, 0, TailleClient.cx, TailleClient.cy));
  if (pFenListe) pFenListe->RetraceBD();
  MetAJourOnglets();
}
