#include "editor/bars/BDSegment.h"

#include "editor/bars/BDAngle.h"
#include "model/elements/Segment.h"

TBD_Segment::TBD_Segment(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteEdit(IDC_V);
}

std::string TBD_Segment::Libelle() const { return "Seg " + std::to_string(pElt->Num); }

void TBD_Segment::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, Libelle());
  SetDlgItemText(IDC_V, TexteBD(pElt->GetV()));
  SetContrainte();
}

void TBD_Segment::SetContrainte() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante");
  SetLectureSeule(IDC_V, true);
  MiseAJourContrainte();
}

void TBD_Segment::Trt_Contrainte() {
  // The element stays where the solver had it, now at a fixed time.
  BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante", true);
}

void TBD_Segment::PerteFocus(int id) {
  if (id == IDC_V)
    TrtChangeVitesse();
  else
    TBD::PerteFocus(id);
}

void TBD_Segment::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE) Trt_Contrainte();
}

std::string TBD_Derapage::Libelle() const { return "Derap " + std::to_string(pElt->Num); }

TBD_SegRevo::TBD_SegRevo(TElt* elt) : TBD_Segment(elt) {
  AjouteEdit(IDC_ANGLE);
  AjouteEdit(IDC_ANGLE_CUMULE);
  SetLectureSeule(IDC_ANGLE_CUMULE, true);
}

TSegRevo* TBD_SegRevo::Element() const { return static_cast<TSegRevo*>(pElt); }

std::string TBD_SegRevo::Libelle() const { return "SegRev " + std::to_string(pElt->Num); }

void TBD_SegRevo::SetupWindow() {
  TBD_Segment::SetupWindow();
  MontreAngle(*this, IDC_ANGLE, Element()->Angle, false);
}

void TBD_SegRevo::SetContrainteAngle() {
  MontreAngle(*this, IDC_ANGLE, Element()->Angle, true);
  SetContrainte();
}

void TBD_SegRevo::TrtChangeAngle() { LitAngle(*this, IDC_ANGLE, Element()->Angle); }

void TBD_SegRevo::PerteFocus(int id) {
  if (id == IDC_ANGLE)
    TrtChangeAngle();
  else
    TBD_Segment::PerteFocus(id);
}

void TBD_SegRevo::AutreEvCommand(int id) {
  if (id == IDC_ANGLE) TrtChangeAngle();
}
