// The undo copy: the elements of the active sheet as they were before the last change, and
// its exchange with them.
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

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

bool EstRetire(const TElt* e, const TFenDessin* feuille) {
  return e->pFen == feuille && e->pListeCV && e->pListeCV->Num < nbCV && e != e->pListeCV->Premier();
}

// A link between an element that undo takes away and one it keeps: the kept one is a start
// point or lies on another sheet. `Num` names the taken element, which its copy keeps.
struct TLienCoupe {
  TElt* Garde;
  bool GardeEstPere;
  int NumRetire;
  int NumSynchro;
};

// Cuts every such link, so that nothing kept points at what goes. The kept father keeps its
// number until the links are tied again.
std::vector<TLienCoupe> CoupeLiens(const TFenDessin* feuille) {
  std::vector<TLienCoupe> coupes;
  for (int k = 0; k < nbCV; ++k)
    PourChaque(k, feuille, [&](TElt* e) {
      if (TElt* pere = e->pPere; pere && !EstRetire(pere, feuille)) {
        for (TElt*& fils : pere->pFils)
          if (fils == e) fils = nullptr;
        e->pPere = nullptr;
        coupes.push_back({pere, true, e->Num, pere->NumSynchro});
      }
      for (TElt*& fils : e->pFils)
        if (fils && !EstRetire(fils, feuille)) {
          if (fils->pPere == e) {
            fils->pPere = nullptr;
            coupes.push_back({fils, false, e->Num, e->NumSynchro});
          }
          fils = nullptr;
        }
    });
  return coupes;
}

TElt* EltDeNum(int num, const TFenDessin* feuille) {
  TElt* trouve = nullptr;
  for (int k = 0; k < nbCV && !trouve; ++k)
    PourChaque(k, feuille, [&](TElt* e) {
      if (!trouve && e->Num == num) trouve = e;
    });
  return trouve;
}

// A kept child goes back to the father the sheet now holds under the same number, on the
// father's label, or becomes a time anchor when that father is gone. The links of a kept
// father were tied again by the copies' own notes; one left with no child drops its number.
void RenoueLiens(const std::vector<TLienCoupe>& coupes, const TFenDessin* feuille) {
  for (const TLienCoupe& c : coupes) {
    if (c.GardeEstPere) continue;
    TElt* pere = EltDeNum(c.NumRetire, feuille);
    if (!pere || !c.Garde->Sett2(pere, pere->NumSynchro ? pere->NumSynchro : c.NumSynchro))
      c.Garde->Sett2();
  }
  for (const TLienCoupe& c : coupes)
    if (c.GardeEstPere && std::none_of(std::begin(c.Garde->pFils), std::end(c.Garde->pFils),
                                       [](const TElt* f) { return f != nullptr; }))
      c.Garde->NumSynchro = 0;
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
  const std::vector<TLienCoupe> coupes = CoupeLiens(this);
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
  RenoueLiens(coupes, this);
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
