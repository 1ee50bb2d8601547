#include "editor/bars/BDAllerA.h"

#include <cstdio>

#include "model/elements/AllerA.h"

TBD_AllerA::TBD_AllerA(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteEdit(IDC_DUREE);
  for (int id = IDC_Z; id <= IDC_VECTEUR_Y + 2; ++id) AjouteEdit(id);
}

float* TBD_AllerA::Champ(int id) const {
  auto* a = static_cast<TAllerA*>(pElt);
  switch (id) {
    case IDC_Z: return &a->z;
    case IDC_VECTEUR_Z: return &a->xZ;
    case IDC_VECTEUR_Z + 1: return &a->yZ;
    case IDC_VECTEUR_Z + 2: return &a->zZ;
    case IDC_VECTEUR_Y: return &a->xY;
    case IDC_VECTEUR_Y + 1: return &a->yY;
    case IDC_VECTEUR_Y + 2: return &a->zY;
    default: return nullptr;
  }
}

void TBD_AllerA::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, "Aller A " + std::to_string(pElt->Num));
  SetContrainte();
}

void TBD_AllerA::SetContrainte() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree");
  // Under "temps" the duration follows from the times; under "Duree" it is the datum.
  SetLectureSeule(IDC_DUREE, pElt->Contrainte != CONTRAINTE_DUREE);
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  for (int id = IDC_Z; id <= IDC_VECTEUR_Y + 2; ++id) SetDlgItemText(id, TexteBD(*Champ(id)));
  MiseAJourContrainte();
}

void TBD_AllerA::PerteFocus(int id) {
  if (id == IDC_DUREE) {
    float lu = 0;
    if (std::sscanf(Lit(IDC_DUREE).c_str(), "%f", &lu) == 1 && TempsSaisiAdmis(lu)) pElt->DureeConstante = lu;
    TBD::TrtChanget2();
  } else if (float* f = Champ(id)) {
    // Taken as typed: nothing keeps the two axes perpendicular or of unit length.
    float lu = 0;
    if (std::sscanf(Lit(id).c_str(), "%f", &lu) == 1) *f = lu;
  } else {
    TBD::PerteFocus(id);
  }
}

void TBD_AllerA::AutreEvCommand(int id) {
  if (id != IDC_DUREE && !Champ(id)) return;
  Bip();
  PerteFocus(id);
}

void TBD_AllerA::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE) {
    BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree", false);
    SetLectureSeule(IDC_DUREE, pElt->Contrainte != CONTRAINTE_DUREE);
  }
}
