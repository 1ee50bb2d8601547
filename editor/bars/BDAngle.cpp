#include "editor/bars/BDAngle.h"

#include <cstdio>

#include "model/Outils.h"

namespace {
void MontreCumule(TBD& bd, float degres) {
  bd.SetDlgItemText(IDC_ANGLE_CUMULE, TexteBD(AngleModulo2Pi(degres)));
}
}  // namespace

void MontreAngle(TBD& bd, int id, float angle, bool tronque) {
  bd.SetDlgItemText(id, tronque ? EntierBD(angle) : TexteBD(angle));
  MontreCumule(bd, tronque ? static_cast<float>(Tronque(angle)) : angle);
}

void LitAngle(TBD& bd, int id, float& angle) {
  float lu = 0;
  if (std::sscanf(bd.GetDlgItemText(id).substr(0, LONGUEUR_SAISIE_BD).c_str(), "%f", &lu) == 1 && AngleSaisiAdmis(lu))
    angle = lu;
  MontreCumule(bd, static_cast<float>(Tronque(angle)));
}
