#include "editor/boites/BDColler.h"

#include <cstdio>

#include "model/Bornes.h"
#include "platform/Dialogues.h"

void TBD_Coller::SetupWindow() {
  for (int id = ID_PREMIER_MODE; id <= ID_DERNIER_MODE; ++id) Coche[id - ID_PREMIER_MODE] = id == Param->Mode;
  Decalage = std::to_string(Param->Decalage);
}

bool TBD_Coller::CloseWindow(int id) {
  if (id != 1) return true;
  int lu;
  if (std::sscanf(Decalage.substr(0, LONGUEUR_DECALAGE).c_str(), "%d", &lu) != 1) lu = Param->Decalage;
  if (!TempsAdmis(static_cast<double>(TempsDebut) + lu)) {
    Dialogues().MessageBox("Décalage hors limites !!!", "Pb Coller");
    return false;
  }
  Param->Decalage = lu;
  for (int m = ID_PREMIER_MODE; m <= ID_DERNIER_MODE; ++m)
    if (Coche[m - ID_PREMIER_MODE]) {
      Param->Mode = m;
      break;
    }
  return true;
}

const char* TBD_Coller::TexteMode(int id) {
  static const char* const textes[] = {"Mêmes points (Ex : poursuite)", "Trajectoires parallèles",
                                       "Trajectoires symétriques / x", "Trajectoires symétriques / y",
                                       "Trajectoires symétriques / point"};
  return id >= ID_PREMIER_MODE && id <= ID_DERNIER_MODE ? textes[id - ID_PREMIER_MODE] : "";
}
