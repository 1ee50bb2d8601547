#include "editor/boites/BDFeuille.h"

#include <cstdio>

void TBD_Feuille::SetupWindow() {
  Tout = Param->Tout;
  Feuilles = Param->Feuilles;
  Premiere = std::to_string(Param->Premiere);
  Derniere = std::to_string(Param->Derniere);
}

void TBD_Feuille::TrtFeuille() {
  Feuilles = true;
  Tout = false;
}

bool TBD_Feuille::CloseWindow(int id) {
  if (id != 1) return true;
  Param->Tout = Tout;
  Param->Feuilles = Feuilles;
  int lu;
  if (std::sscanf(Premiere.substr(0, LONGUEUR_SAISIE).c_str(), "%d", &lu) == 1) Param->Premiere = lu;
  if (std::sscanf(Derniere.substr(0, LONGUEUR_SAISIE).c_str(), "%d", &lu) == 1) Param->Derniere = lu;
  return true;
}
