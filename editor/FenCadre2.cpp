#include "editor/FenCadre2.h"

#include "demo/Demonstration.h"

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
  if (TFenDessin::Imp.pFenCadre == this) TFenDessin::Imp.pFenCadre = nullptr;
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

bool TFenCadre2::InsereFeuille() {
  if (nbFeuilles >= NB_FEUILLES_MAX || !pFenDesActive) return false;
  const int n = pFenDesActive->Num;
  TabFenDes.insert(TabFenDes.begin() + n, std::make_unique<TFenDessin>(this, pFenListe, n + 1));
  TabOnglets.insert(TabOnglets.begin() + n, std::to_string(n + 1) + " - ");
  ++nbFeuilles;
  for (int i = n + 1; i < nbFeuilles; ++i) {
    TabFenDes[static_cast<std::size_t>(i)]->SetNum(i + 1);
    TabOnglets[static_cast<std::size_t>(i)] = std::to_string(i + 1) + " - ";
  }
  pFenDesActive = GetFeuille(n);
  return true;
}

bool TFenCadre2::CanClose() {
  // Nothing tracks unsaved changes: this box is the only guard.
  if (Dialogues().MessageBox("Fermeture Définitive ?", "CV", TBoutons::OKAnnuler, TIcone::Question) !=
      TReponse::OK)
    return false;
  FermeDemo();  // the music and the scene end with the editor
  return true;
}
