#include "editor/FenCadre2.h"

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

TFenCadre2::TFenCadre2() {
  FichierRoutine[0] = '\0';
  InitialiseNumCoul();
  nbCV = 1;
  AddFeuille();
  pFenDes0 = TabFenDes.front().get();
  pFenDesActive = pFenDes0;
}

TFenCadre2::~TFenCadre2() {
  if (pFenDes0 == GetFeuille(0)) pFenDes0 = nullptr;
}

void TFenCadre2::SetupWindow() { AddFeuille(); }

bool TFenCadre2::AddFeuille() {
  if (nbFeuilles >= NB_FEUILLES_MAX) return false;
  const int num = nbFeuilles + 1;
  TabFenDes.push_back(std::make_unique<TFenDessin>(this, pFenListe, num));
  TabOnglets.push_back(std::to_string(num) + " - ");
  ++nbFeuilles;
  return true;
}

bool TFenCadre2::CanClose() {
  // Nothing tracks unsaved changes: this box is the only guard.
  return Dialogues().MessageBox("Fermeture Définitive ?", "CV", TBoutons::OKAnnuler, TIcone::Question) ==
         TReponse::OK;
}
