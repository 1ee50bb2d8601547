// The undo copy: the elements of the active sheet as they were before the last change.
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/Dialogues.h"

void TFenDessin::MAJUnDo() {
  for (int k = 0; k < nbCV; ++k) {
    TListeCV& copie = AncTabLElt[k];
    copie.Vide();
    // A kite's start point is never part of it.
    const TNoeud* premier = TabLElt[k].Premier();
    for (TNoeud* n = premier ? premier->GetSuivant() : nullptr; n; n = n->GetSuivant())
      if (auto* e = static_cast<TElt*>(n); e->pFen == this) copie.Append(e->Copie(&TabLElt[k], true));
  }
}

void TFenDessin::Undo() { Dialogues().MessageStatut("- Commande pas encore disponible dans cette version -"); }
