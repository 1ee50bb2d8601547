#include "editor/bars/BD.h"

#include <cstdio>
#include <string>

#include "editor/DCClient.h"
#include "editor/FenDessin.h"
#include "frise/Battements.h"
#include "model/Bornes.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Nombres.h"
#include "model/Outils.h"
#include "platform/Dialogues.h"

std::string TexteBD(double valeur) { return Gcvt(valeur, 10); }
std::string EntierBD(double valeur) { return std::to_string(Tronque(valeur)); }

namespace {
bool Refuse(const char* quoi, float borne, const char* unite) {
  const std::string n = std::to_string(static_cast<long>(borne));
  TFenDessin::MessageErreur(std::string("Valeur refusée : ") + quoi + " va de -" + n + " à " + n + " " + unite);
  return false;
}
}  // namespace

bool TempsSaisiAdmis(float t) { return TempsAdmis(t) || Refuse("un temps", TEMPS_MAX, "centièmes"); }
bool AngleSaisiAdmis(float degres) { return AngleAdmis(degres) || Refuse("un angle", ANGLE_MAX, "degrés"); }

TBD::TBD(TElt* elt) : pElt(elt) {
  Edits = {IDC_X, IDC_Y, IDC_T};
  Textes[IDC_NOM] = "Nom :";
}

// The widget goes with the bar, never after it.
TBD::~TBD() {
  if (Vue) Vue->Detruite();
}

std::string TBD::GetDlgItemText(int id) const {
  const auto i = Textes.find(id);
  return i == Textes.end() ? std::string() : i->second;
}

void TBD::SetLectureSeule(int id, bool oui) {
  if (oui)
    LectureSeule.insert(id);
  else
    LectureSeule.erase(id);
  Signale(id);
}

void TBD::SetActif(int id, bool oui) {
  if (oui)
    Inactifs.erase(id);
  else
    Inactifs.insert(id);
  Signale(id);
}

std::set<int> TBD::Controles() const {
  std::set<int> c = Edits;
  c.insert(Boutons.begin(), Boutons.end());
  c.insert(IDC_NOM);
  return c;
}

void TBD::AjouteBouton(int id, const std::string& libelle) {
  Boutons.insert(id);
  Textes[id] = libelle;
}

TColor TBD::CouleurNom() const {
  const TColor c = pElt ? pElt->GetCouleur() : TColor::Black;
  return c == TColor::Black ? TColor::Gray : c;
}

void TBD::MAJColor() {
  CouleurLabel = CouleurNom();
  Signale(IDC_NOM);
}

void TBD::SetupWindow() {
  MAJColor();
  const TPointf p = pElt->Getp2Param();
  SetDlgItemText(IDC_X, EntierBD(p.x));
  SetDlgItemText(IDC_Y, EntierBD(p.y));
  SetDlgItemText(IDC_T, EntierBD(pElt->t2.GetParam()));
}

void TBD::MiseAJourContrainte() {
  if (!EstBouton(IDC_CONTRAINTE) || pElt->Contrainte != CONTRAINTE_TEMPS) return;
  if (!pElt->pPere) {
    SetDlgItemText(IDC_CONTRAINTE, "temps");
    SetActif(IDC_CONTRAINTE, true);
    SetLectureSeule(IDC_T, false);
    return;
  }
  SetDlgItemText(IDC_CONTRAINTE, "synchro");
  SetActif(IDC_CONTRAINTE, false);
  SetLectureSeule(IDC_T, true);
  SetDlgItemText(IDC_T, EntierBD(pElt->Gett2Param()) + "- " + std::to_string(pElt->pPere->NumSynchro));
}

void TBD::MontreContrainte(int contrainteLibre, const char* libelleLibre, int contrainteFixe,
                           const char* libelleFixe) {
  if (pElt->Contrainte == contrainteLibre) {
    SetDlgItemText(IDC_CONTRAINTE, libelleLibre);
    SetLectureSeule(IDC_T, false);
  } else if (pElt->Contrainte == contrainteFixe) {
    SetDlgItemText(IDC_CONTRAINTE, libelleFixe);
    SetLectureSeule(IDC_T, true);
  }
}

void TBD::BasculeContrainte(int contrainteLibre, const char* libelleLibre, int contrainteFixe,
                             const char* libelleFixe, bool relitTemps) {
  Bip();
  if (pElt->Contrainte == contrainteLibre) {
    pElt->Contrainte = contrainteFixe;
  } else if (pElt->Contrainte == contrainteFixe) {
    pElt->Contrainte = contrainteLibre;
    int t = 0;
    if (relitTemps && std::sscanf(GetDlgItemText(IDC_T).c_str(), "%d", &t) == 1) pElt->Sett2(static_cast<float>(t));
  }
  MontreContrainte(contrainteLibre, libelleLibre, contrainteFixe, libelleFixe);
  MiseAJourV();
}

void TBD::PointLectureSeule() {
  SetLectureSeule(IDC_X, true);
  SetLectureSeule(IDC_Y, true);
}

void TBD::Bip() { Dialogues().MessageBeep(-1); }

std::string TBD::Lit(int id) const { return GetDlgItemText(id).substr(0, LONGUEUR_SAISIE_BD); }

namespace {
// One coordinate typed into its field: a text that is no number keeps the stored one.
void ChangeCoordonnee(TBD& bd, int id, bool enX) {
  TElt* e = bd.pElt;
  if (!e->pFen) return;
  TDCClient dc(*e->pFen);
  e->pFen->SetEchelle(dc);
  TPointf p = e->Getp2Param();
  float lu = 0;
  if (std::sscanf(bd.GetDlgItemText(id).substr(0, LONGUEUR_SAISIE_BD).c_str(), "%f", &lu) == 1)
    (enX ? p.x : p.y) = lu;
  if (ChargementFichierEnCours) return;
  // What a drag of the end point does, so that typing and dragging repaint alike.
  e->pFen->ModifElt(dc, e, p);
  e->Invalid(dc, true, 0);
}
}  // namespace

void TBD::TrtChangep2x() { ChangeCoordonnee(*this, IDC_X, true); }
void TBD::TrtChangep2y() { ChangeCoordonnee(*this, IDC_Y, false); }

void TBD::TrtChanget2() {
  // A child shows "1234- 3", which reads as 1234: leaving its field keeps the time. A text
  // that is no number, or a time beyond the bounds, keeps the stored time.
  int t = 0;
  if (std::sscanf(Lit(IDC_T).c_str(), "%d", &t) == 1 && TempsSaisiAdmis(static_cast<float>(t)))
    pElt->Sett2(TempsAligne(static_cast<float>(t)));
  else
    pElt->Sett2(pElt->t2.GetParam());
  MiseAJourV();
}

void TBD::MiseAJourV() {
  if (ChargementFichierEnCours) return;
  pElt->CalculV();
  if (TElt* suivant = pElt->GetEltSuivant())
    if (TElt* e = suivant->GetEltT()) e->CalculV();
}

void TBD::PerteFocus(int id) {
  switch (id) {
    case IDC_X: TrtChangep2x(); break;
    case IDC_Y: TrtChangep2y(); break;
    case IDC_T: TrtChanget2(); break;
    default: break;
  }
}

void TBD::Tape(int id, const std::string& texte) {
  if (!EstLectureSeule(id)) SetDlgItemText(id, texte.substr(0, LONGUEUR_SAISIE_BD));
  Focus = 0;
  PerteFocus(id);
}

void TBD::Entree(int id, const std::string& texte) {
  if (!EstLectureSeule(id)) SetDlgItemText(id, texte.substr(0, LONGUEUR_SAISIE_BD));
  Focus = id;
  if (id == IDC_X)
    TrtChangep2x();
  else if (id == IDC_Y)
    TrtChangep2y();
  else if (id == IDC_T)
    TrtChanget2();
  AutreEvCommand(id);
  // With a drawing tool, Enter in the current bar appends the next element under it, for
  // the user to type in; with the selection tool CreerElt does nothing.
  if (pElt == TFenDessin::pEltCourant && pElt->pFen) {
    const TPointf p = pElt->Getp2Param();
    pElt->pFen->CreerElt(TPoint(Tronque(p.x), -5));
  }
}

void TBD::Clic(int bouton) {
  if (EstBouton(bouton) && EstActif(bouton)) TrtBouton(bouton);
}

void TBD::ClicFond(bool shift) {
  if (!pElt->pFen) return;
  TDCClient dc(*pElt->pFen);
  pElt->pFen->SetEchelle(dc);
  if (pElt->pFen->ModifieSelection(dc, shift ? MK_SHIFT : 0, pElt)) Focus = PremierChamp();
}

void TBD::Echap() {
  if (pElt->pFen) pElt->pFen->Echap();
}
