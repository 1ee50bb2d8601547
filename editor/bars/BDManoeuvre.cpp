#include "editor/bars/BDManoeuvre.h"

#include <cstdio>

#include "editor/DCClient.h"
#include "editor/FenDessin.h"
#include "editor/bars/BDAngle.h"
#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"

namespace {
// The duration typed: stored as it reads, then t is taken again, which solves.
void ChangeDuree(TBD& bd) {
  float lu = 0;
  if (std::sscanf(bd.GetDlgItemText(IDC_DUREE).substr(0, LONGUEUR_SAISIE_BD).c_str(), "%f", &lu) == 1 &&
      TempsSaisiAdmis(lu))
    bd.pElt->DureeConstante = lu;
  bd.TBD::TrtChanget2();
}

const char* LibelleCote(bool gauche) { return gauche ? "Gauche" : "Droite"; }

const char* LibellePose(int type) {
  switch (type) {
    case POSE_POINTE_DROITE: return "p. droite";
    case POSE_POINTE_GAUCHE: return "p. gauche";
    default: return "2 pointes";
  }
}
}  // namespace

TBD_Axel::TBD_Axel(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteBouton(IDC_GAUCHE, "DroiteGauche");
  AjouteEdit(IDC_DUREE);
}

std::string TBD_Axel::Libelle() const { return "Axel " + std::to_string(pElt->Num); }
std::string TBD_540::Libelle() const { return "540 " + std::to_string(pElt->Num); }

void TBD_Axel::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, Libelle());
  SetContrainteDroiteGaucheDuree();
}

void TBD_Axel::SetContrainteDroiteGaucheDuree() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree");
  PointLectureSeule();
  SetDlgItemText(IDC_GAUCHE, LibelleCote(static_cast<TManoeuvreCote*>(pElt)->Gauche));
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  MiseAJourContrainte();
}

void TBD_Axel::TrtChangeDuree() { ChangeDuree(*this); }

void TBD_Axel::PerteFocus(int id) {
  if (id == IDC_DUREE)
    TrtChangeDuree();
  else
    TBD::PerteFocus(id);
}

void TBD_Axel::AutreEvCommand(int id) {
  if (id != IDC_DUREE) return;
  Bip();
  TrtChangeDuree();
}

void TBD_Axel::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE) {
    BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree", false);
  } else if (id == IDC_GAUCHE) {
    // Only the flight changes side: the symbol on the sheet stays as it is.
    Bip();
    auto* m = static_cast<TManoeuvreCote*>(pElt);
    m->Gauche = !m->Gauche;
    SetDlgItemText(IDC_GAUCHE, LibelleCote(m->Gauche));
  }
}

TBD_Rot::TBD_Rot(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteEdit(IDC_DUREE);
  AjouteEdit(IDC_ANGLE);
  AjouteEdit(IDC_ANGLE_CUMULE);
  SetLectureSeule(IDC_ANGLE_CUMULE, true);
}

void TBD_Rot::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, "Rotat " + std::to_string(pElt->Num));
  SetContrainteDureeAngle();
}

void TBD_Rot::SetContrainteDureeAngle() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree");
  PointLectureSeule();
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  MontreAngle(*this, IDC_ANGLE, static_cast<TRot*>(pElt)->Angle, true);
  MiseAJourContrainte();
}

void TBD_Rot::PerteFocus(int id) {
  if (id == IDC_DUREE)
    ChangeDuree(*this);
  else if (id == IDC_ANGLE)
    LitAngle(*this, IDC_ANGLE, static_cast<TRot*>(pElt)->Angle);
  else
    TBD::PerteFocus(id);
}

void TBD_Rot::AutreEvCommand(int id) {
  if (id == IDC_DUREE) {
    Bip();
    ChangeDuree(*this);
  } else if (id == IDC_ANGLE) {
    LitAngle(*this, IDC_ANGLE, static_cast<TRot*>(pElt)->Angle);
  }
}

void TBD_Rot::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE) BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree", false);
}

TBD_Stop::TBD_Stop(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteEdit(IDC_DUREE);
}

void TBD_Stop::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, "Stop " + std::to_string(pElt->Num));
  SetDlgItemText(IDC_DUREE, TexteBD(pElt->DureeConstante));
  SetContrainteDuree();
}

void TBD_Stop::SetContrainteDuree() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree");
  PointLectureSeule();
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  MiseAJourContrainte();
}

void TBD_Stop::PerteFocus(int id) {
  if (id == IDC_DUREE)
    ChangeDuree(*this);
  else
    TBD::PerteFocus(id);
}

void TBD_Stop::AutreEvCommand(int id) {
  if (id != IDC_DUREE) return;
  Bip();
  ChangeDuree(*this);
}

void TBD_Stop::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE) BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree", false);
}

TBD_Pose::TBD_Pose(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteBouton(IDC_TYPE_POSE, "TypePosé");
  AjouteEdit(IDC_V);
  AjouteEdit(IDC_DUREE);
}

void TBD_Pose::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, "Posé " + std::to_string(pElt->Num));
  SetDlgItemText(IDC_V, TexteBD(pElt->GetV()));
  SetContrainteDureeType();
}

void TBD_Pose::SetContrainteDureeType() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante");
  SetLectureSeule(IDC_V, true);
  PointLectureSeule();
  SetDlgItemText(IDC_DUREE, TexteBD(pElt->DureeConstante));
  SetDlgItemText(IDC_TYPE_POSE, LibellePose(static_cast<TPose*>(pElt)->TypePose));
  MiseAJourContrainte();
}

void TBD_Pose::TrtChangeDuree() {
  // A landing's duration is not set here: the field only ever shows the stored one.
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  TBD::TrtChanget2();
}

void TBD_Pose::TrtChangeTypePose() {
  Bip();
  auto* p = static_cast<TPose*>(pElt);
  p->TypePose = p->TypePose == POSE_DEUX_POINTES    ? POSE_POINTE_DROITE
                : p->TypePose == POSE_POINTE_DROITE ? POSE_POINTE_GAUCHE
                                                    : POSE_DEUX_POINTES;
  SetDlgItemText(IDC_TYPE_POSE, LibellePose(p->TypePose));
  if (!p->pFen) return;
  TDCClient dc(*p->pFen);
  p->pFen->SetEchelle(dc);
  p->Invalid(dc, false, 0);
}

void TBD_Pose::PerteFocus(int id) {
  if (id == IDC_DUREE)
    TrtChangeDuree();
  else
    TBD::PerteFocus(id);
}

void TBD_Pose::AutreEvCommand(int id) {
  if (id != IDC_DUREE) return;
  Bip();
  TrtChangeDuree();
}

void TBD_Pose::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE)
    BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_VCONSTANTE, "v.constante", false);
  else if (id == IDC_TYPE_POSE)
    TrtChangeTypePose();
}
