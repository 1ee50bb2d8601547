#include "editor/bars/BDArc.h"

#include <cstdio>

#include "editor/DCClient.h"
#include "editor/FenDessin.h"
#include "editor/bars/BDAngle.h"
#include "model/ArcGeometrie.h"
#include "model/Outils.h"
#include "model/elements/Arc.h"

TBD_Arc::TBD_Arc(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteBouton(IDC_TYPE_ARC, "TypeArc");
  AjouteEdit(IDC_V);
  AjouteEdit(IDC_RAYON);
  AjouteEdit(IDC_ANGLE);
}

TArc* TBD_Arc::Element() const { return static_cast<TArc*>(pElt); }

std::string TBD_Arc::Bulle(int id) const {
  if (id == IDC_RAYON) return "Rayon de l'arc";
  if (id == IDC_ANGLE) return "Angle balayé par l'arc, en degrés";
  return TBD::Bulle(id);
}

std::string TBD_Arc::Libelle() const { return "Arc " + std::to_string(pElt->Num); }

void TBD_Arc::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, Libelle());
  SetDlgItemText(IDC_V, TexteBD(pElt->GetV()));
  SetDlgItemText(IDC_RAYON, TexteBD(Element()->Rayon));
  SetDlgItemText(IDC_ANGLE, TexteBD(Element()->Angle / DEMI_TOUR * 180));
  SetContrainte();
  // Read-only until the first toggle or the next refresh, even under "temps".
  SetLectureSeule(IDC_V, true);
  SetLectureSeule(IDC_T, true);
  MontreTypeArc();
  PointLectureSeule();
}

void TBD_Arc::SetContrainte() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante");
  SetLectureSeule(IDC_V, true);
  MiseAJourContrainte();
}

void TBD_Arc::MontreTypeArc() {
  switch (Element()->TypeArc) {
    case TYPE_ARC_RAYON:
      SetDlgItemText(IDC_TYPE_ARC, "Rayon");
      SetLectureSeule(IDC_ANGLE, true);
      SetLectureSeule(IDC_RAYON, false);
      break;
    case TYPE_ARC_ANGLE:
      SetDlgItemText(IDC_TYPE_ARC, "Angle");
      SetLectureSeule(IDC_ANGLE, false);
      SetLectureSeule(IDC_RAYON, true);
      break;
    default:
      SetDlgItemText(IDC_TYPE_ARC, "Rayon-Angle");
      SetLectureSeule(IDC_ANGLE, false);
      SetLectureSeule(IDC_RAYON, false);
      break;
  }
}

void TBD_Arc::Trt_Contrainte() {
  // The element stays where the solver had it, now at a fixed time.
  BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante", true);
}

void TBD_Arc::Trt_TypeArc() {
  // Only what the next edit or drag keeps changes: nothing is recalculated.
  TArc* a = Element();
  a->TypeArc = a->TypeArc == TYPE_ARC_RAYON ? TYPE_ARC_ANGLE
               : a->TypeArc == TYPE_ARC_ANGLE ? TYPE_ARC_RAYON_ANGLE
                                              : TYPE_ARC_RAYON;
  MontreTypeArc();
  PointLectureSeule();
}

namespace {
// A radius or sweep typed: the end follows, and the bar shows what the arc now is.
template <class Change>
void ChangeArc(TArc* a, const std::string& texte, Change change) {
  if (!a->pFen) return;
  TDCClient dc(*a->pFen);
  a->pFen->SetEchelle(dc);
  a->Invalid(dc, true, 0);
  float lu = 0;
  if (std::sscanf(texte.c_str(), "%f", &lu) == 1) change(lu);
  a->EtatArc = a->Calculp2();
  a->SetTBDParam(a->Getp2Param(), a->Rayon, a->Angle);
  a->Invalid(dc, true, 0);
}
}  // namespace

void TBD_Arc::TrtChangeRayon() {
  TArc* a = Element();
  ChangeArc(a, Lit(IDC_RAYON), [a](float r) { a->Rayon = r; });
}

void TBD_Arc::TrtChangeAngle() {
  TArc* a = Element();
  ChangeArc(a, Lit(IDC_ANGLE), [a](float deg) { a->Angle = deg * DEMI_TOUR * (1.0f / 180); });
}

void TBD_Arc::PerteFocus(int id) {
  switch (id) {
    case IDC_V: Bip(); break;
    case IDC_RAYON: TrtChangeRayon(); break;
    case IDC_ANGLE: TrtChangeAngle(); break;
    default: TBD::PerteFocus(id); break;
  }
}

void TBD_Arc::AutreEvCommand(int id) {
  if (id == IDC_RAYON) {
    Bip();
    TrtChangeRayon();
  } else if (id == IDC_ANGLE) {
    Bip();
    TrtChangeAngle();
  }
}

void TBD_Arc::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE)
    Trt_Contrainte();
  else if (id == IDC_TYPE_ARC)
    Trt_TypeArc();
}

TBD_ArcRevo::TBD_ArcRevo(TElt* elt) : TBD_Arc(elt) {
  AjouteEdit(IDC_ANGLE_REVO);
  AjouteEdit(IDC_ANGLE_CUMULE);
  SetLectureSeule(IDC_ANGLE_CUMULE, true);
}

TArcRevo* TBD_ArcRevo::ElementRevo() const { return static_cast<TArcRevo*>(pElt); }

std::string TBD_ArcRevo::Libelle() const { return "ArcRev " + std::to_string(pElt->Num); }

void TBD_ArcRevo::SetupWindow() {
  TBD_Arc::SetupWindow();
  MontreAngle(*this, IDC_ANGLE_REVO, ElementRevo()->AngleRevo, false);
  // Unlike the plain arc, t follows the constraint from the start.
  SetContrainte();
}

void TBD_ArcRevo::SetContrainteAngle() {
  MontreAngle(*this, IDC_ANGLE_REVO, ElementRevo()->AngleRevo, true);
  SetContrainte();
}

void TBD_ArcRevo::TrtChangeAngleRevo() { LitAngle(*this, IDC_ANGLE_REVO, ElementRevo()->AngleRevo); }

void TBD_ArcRevo::PerteFocus(int id) {
  if (id == IDC_ANGLE_REVO)
    TrtChangeAngleRevo();
  else
    TBD_Arc::PerteFocus(id);
}

void TBD_ArcRevo::AutreEvCommand(int id) {
  if (id == IDC_ANGLE_REVO)
    TrtChangeAngleRevo();
  else
    TBD_Arc::AutreEvCommand(id);
}
