// Copy and paste of a selected range. The copy keeps the shape and the times of the range;
// the paste puts it after the current element, moved or mirrored as the dialog says.
#include <utility>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "platform/Dialogues.h"

namespace {
// Fresh copies, without links, of the elements from `premier` to `dernier`, into `liste`.
void CopiePlage(TListeCV& liste, TElt* premier, TElt* dernier) {
  liste.Vide();
  for (TElt* e = premier; e; e = e == dernier ? nullptr : e->GetEltSuivant()) liste.Append(e->Copie(&liste, false));
}
}  // namespace

void TFenDessin::Copier() {
  if (!pEltCourant2 || !pEltCourant) {
    MessageErreur("Sélection Vide");
    return;
  }
  CopiePlage(*Tampon, pEltCourant2, pEltCourant);
  // A range never starts at a track's first element, so there is always one before it.
  if (TElt* avant = pEltCourant2->GetEltPrecedent()) PointDebutTampon = avant->Getp2Param();
  const int n = Tampon->nbNoeud();
  Dialogues().MessageStatut(n == 1 ? "1 élément copié" : std::to_string(n) + " éléments copiés");
}

void TFenDessin::Coller() {
  if (Tampon->IsVide()) {
    MessageErreur("Coller impossible : Tampon vide");
    return;
  }
  if (!pEltCourant) {
    MessageErreur("Coller impossible : pas d'élément sélectionné");
    return;
  }
  MAJUnDo();
  TBD_Coller bd(&ParamColler);
  bd.SetupWindow();
  bd.TempsDebut = static_cast<TElt*>(Tampon->Premier())->Gett2Param();
  if (!Dialogues().Execute(bd)) return;
  ColleTampon(pEltCourant, pEltCourant->pFen, ParamColler.Mode, ParamColler.Decalage);
  MiseAJourVTotale();
  RetraceTout();
}

void TFenDessin::ColleTampon(TElt* apres, TFenDessin* feuille, int mode, int decalage) {
  // The range lands on the given sheet, in the track of `apres`, whatever its source. This
  // is done before the spare copy is taken, because the sheet the range was
  // copied from may have been removed since.
  for (TNoeud* n = Tampon->Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    e->pListeCV = apres->pListeCV;
    e->SetpFen(feuille);
  }
  CopiePlage(*Tampon2, static_cast<TElt*>(Tampon->Premier()), static_cast<TElt*>(Tampon->Dernier()));
  auto* premier = static_cast<TElt*>(Tampon->Premier());
  auto* dernier = static_cast<TElt*>(Tampon->Dernier());
  const TPointf c = apres->Getp2Param();
  // The first pasted element anchors the range in time; the others keep their constraints.
  premier->Contrainte = CONTRAINTE_TEMPS;
  premier->Sett2Param(static_cast<float>(Tronque(premier->Gett2Param() + static_cast<float>(decalage))));
  apres->pListeCV->InsereListe(*Tampon, apres->GetSuivant());
  for (TElt* e = premier; e; e = e == dernier ? nullptr : e->GetEltSuivant()) e->Transforme(PointDebutTampon, c, mode);
  for (TElt* e = premier; e; e = e == dernier ? nullptr : e->GetEltSuivant()) e->OpenBD();
  std::swap(Tampon, Tampon2);
  pEltCourant2 = premier;
  pEltCourant = dernier;
}
