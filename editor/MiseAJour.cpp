// The sheet's side of solving: local and whole-document updates, and synchronisation links.
#include <string>
#include <vector>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "demo/player/FenApp.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "platform/Dialogues.h"

namespace {
// Numbers the top-level calls of MiseAJourV: an element whose PassageMiseAJourV holds the
// present number has already been a starting point in this call.
unsigned PassageCourant = 0;
}  // namespace

void TFenDessin::MiseAJourV(TElt* e, bool Suivant, bool Precedent) {
  // Calls still to make, the next one on top. Each call may ask for the stretch after its
  // anchor and then for the one before its element; stacking the second before the first
  // keeps the order of a recursion without its depth. An element is a starting point at
  // most once, which bounds the back and forth between two manoeuvres that pass changes on.
  struct Appel {
    TElt* e;
    bool Suivant;
    bool Precedent;
  };
  ++PassageCourant;
  std::vector<Appel> pile{{e, Suivant, Precedent}};
  while (!pile.empty()) {
    const Appel c = pile.back();
    pile.pop_back();
    if (c.e->PassageMiseAJourV == PassageCourant) continue;
    c.e->PassageMiseAJourV = PassageCourant;

    TElt* a = c.e->GetEltT();
    if (!a) {
      Dialogues().MessageBox("pE = NULL", "MiseAJourV");
      continue;
    }
    a->CalculV();
    if (TElt* prec = c.e->GetEltPrecedent(); prec && (c.Precedent || c.e->IsCalculV()))
      pile.push_back({prec, false, false});
    if (TElt* suivant = a->GetEltSuivant();
        suivant && (c.e == a || a->IsCalculV()) && (c.Suivant || a->IsCalculV()))
      pile.push_back({suivant, false, false});
  }
}

void TFenDessin::MiseAJourVTotale() {
  for (int i = 0; i < nbCV; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->MAJFaite = false;
  MiseAJourVTotaleEnCours = true;
  // Kite by kite: a father's kite comes before its children's, so its time is final when
  // a child is reached.
  for (int i = 0; i < nbCV; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) {
      auto* e = static_cast<TElt*>(n);
      if (!e->MAJFaite) MiseAJourV(e, false, false);
    }
  MiseAJourVTotaleEnCours = false;
}

void TFenDessin::Demo() {
  float tMin = 0;
  int premier = 0;  // the kite that ends first
  bool inegales = false;
  for (int i = 0; i < nbCV; ++i) {
    if (TabLElt[i].nbNoeud() <= 1) {
      MessageErreur("Démo impossible : liste  vide");
      return;
    }
    const float t = static_cast<TElt*>(TabLElt[i].Dernier())->Gett2Param();
    if (i > 0 && t != tMin) inegales = true;
    if (i == 0 || t < tMin) {
      tMin = t;
      premier = i;
    }
  }
  // The scene ends with the shortest kite. Made through the player when there is one, so that
  // its bars show the new scene; the command-line companion has none.
  FermeDemo();
  if (pFenAppDemo)
    pFenAppDemo->InitDemo(nbCV, tMin - 1.0f);
  else
    InitDemo(nbCV, tMin - 1.0f);
  // Walked without the lists' cursor, which the elements use themselves.
  for (int i = 0; i < nbCV; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->DirectX();
  MiseAJourVTotale();
  // The flight of the kites that end later is cut short: say where, and by whom.
  if (inegales)
    Dialogues().MessageStatut("Démo : les CV ne finissent pas ensemble, la démonstration s'arrête à T = " +
                              std::to_string(static_cast<long long>(tMin)) + ", à la fin du CV n°" +
                              std::to_string(premier + 1));
}

void TFenDessin::Synchronise(TElt* e, int NumCV, TListeCV* Table, int Index, TFenDessin* pFen) {
  if (NumCV == -1 || !e || !Table || !pFen) return;
  // Numbers come from files and copies: one that names no element makes no link.
  if (NumCV < 0 || NumCV >= NB_CV_MAX) return;
  auto* pere = static_cast<TElt*>(Table[NumCV].GetPt(Index));
  if (!pere) return;
  if (pere->NumSynchro == 0) {
    if (e->Sett2(pere, pFen->NbSynchro + 1)) pere->NumSynchro = ++pFen->NbSynchro;
  } else {
    e->Sett2(pere, pere->NumSynchro);
  }
}

bool TFenDessin::PreleveSynchro() {
  if (!pEltCourant) {
    MessageErreur(" Synchronisation : sélectionnez un élément auparavant");
    return false;
  }
  // All children of a synchronisation hang from one father.
  pEltSynchro = pEltCourant->pPere ? pEltCourant->pPere : pEltCourant;
  if (pFenCadre)
    pFenCadre->SetTexteGadgetSynchro(std::to_string(pEltSynchro->Num) + "/" +
                                     std::to_string(Tronque(pEltSynchro->Gett2Param())));
  return true;
}

void TFenDessin::DetachePere(TElt* e) {
  TElt* pere = e->pPere;
  if (!pere) return;
  int restants = 0;
  for (TElt*& fils : pere->pFils) {
    if (fils == e) fils = nullptr;
    if (fils) ++restants;
  }
  // The father's number goes with its last child.
  if (restants == 0) pere->NumSynchro = 0;
  e->pPere = nullptr;
}

void TFenDessin::SupprSynchro(TElt* e) {
  if (!e || !e->pPere) return;
  DetachePere(e);
  e->Sett2();
}
