#include "editor/bars/BDFigure.h"

#include "editor/DCClient.h"
#include "editor/FenDessin.h"
#include "model/elements/Figure.h"

namespace {
// The captions of a refresh; the last three end with a blank, unlike the cycle's.
const char* LibelleTransformation(int t) {
  switch (t) {
    case TRANSFORMATION_SYMETRIE_X: return "Symétrie/x ";
    case TRANSFORMATION_SYMETRIE_Y: return "Symétrie/y ";
    case TRANSFORMATION_SYMETRIE_POINT: return "Symétrie/point ";
    case TRANSFORMATION_PARALLELE: return "Parallèle";
    default: return nullptr;  // the button keeps the caption it has
  }
}
}  // namespace

TBD_Figure::TBD_Figure(TElt* elt) : TBD(elt) {
  AjouteBouton(IDC_CONTRAINTE, "Contrainte");
  AjouteBouton(IDC_TRANSFORMATION, "Transformation");
  AjouteEdit(IDC_DUREE);
}

void TBD_Figure::SetupWindow() {
  TBD::SetupWindow();
  auto* f = static_cast<TFigure*>(pElt);
  SetDlgItemText(IDC_NOM, std::string(f->Nom) + " " + std::to_string(f->Num));
  SetContrainte();
}

void TBD_Figure::SetContrainte() {
  MontreContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree");
  PointLectureSeule();
  // The duration is the file's: shown, never taken.
  SetLectureSeule(IDC_DUREE, true);
  SetDlgItemText(IDC_DUREE, EntierBD(pElt->DureeConstante));
  if (const char* libelle = LibelleTransformation(static_cast<TFigure*>(pElt)->Transformation))
    SetDlgItemText(IDC_TRANSFORMATION, libelle);
  MiseAJourContrainte();
}

void TBD_Figure::TrtChangeTransformation() {
  Bip();
  auto* f = static_cast<TFigure*>(pElt);
  if (!f->pFen) return;
  TDCClient dc(*f->pFen);
  f->pFen->SetEchelle(dc);
  f->Invalid(dc, true, 1);
  f->ChangeTransformation();
  switch (f->Transformation) {
    case TRANSFORMATION_SYMETRIE_X: SetDlgItemText(IDC_TRANSFORMATION, "Symétrie/x"); break;
    case TRANSFORMATION_SYMETRIE_Y: SetDlgItemText(IDC_TRANSFORMATION, "Symétrie/y "); break;
    case TRANSFORMATION_SYMETRIE_POINT: SetDlgItemText(IDC_TRANSFORMATION, "Symétrie/point "); break;
    default: SetDlgItemText(IDC_TRANSFORMATION, "Parallèle"); break;
  }
  f->Invalid(dc, true, 1);
}

void TBD_Figure::TrtBouton(int id) {
  if (id == IDC_CONTRAINTE)
    BasculeContrainte(CONTRAINTE_TEMPS, "temps", CONTRAINTE_DUREE, "Duree", false);
  else if (id == IDC_TRANSFORMATION)
    TrtChangeTransformation();
}
