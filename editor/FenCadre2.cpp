#include "editor/FenCadre2.h"

#include <algorithm>

#include "demo/Demonstration.h"

#include "editor/FenDessin.h"
#include "editor/VueCadre2.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/Dialogues.h"
#include "session/Modification.h"

TFenCadre2::TFenCadre2() : FenListe(std::make_unique<TFenListe>(this)) {
  FichierRoutine[0] = '\0';
  InitialiseNumCoul();
  nbCV = 1;
  pFenListe = FenListe.get();
  AddFeuille();
  pFenDes0 = TabFenDes.front().get();
  pFenDesActive = pFenDes0;
}

TFenCadre2::~TFenCadre2() {
  if (pFenDes0 == GetFeuille(0)) pFenDes0 = nullptr;
  if (TFenDessin::Imp.pFenCadre == this) TFenDessin::Imp.pFenCadre = nullptr;
}

void TFenCadre2::SetupWindow() { AddFeuille(); }

void TFenCadre2::SetHauteurs(int barreControle, int onglets, int statut) {
  HauteurBarreControle = barreControle;
  HauteurOnglets = onglets;
  HauteurStatut = statut;
}

void TFenCadre2::EvSize(int cx, int cy) {
  YFeuille = HauteurBarreControle + HauteurOnglets;
  Largeur = cx;
  Hauteur = cy - HauteurStatut - YFeuille;
  for (const auto& f : TabFenDes) f->SetTailleClient(Largeur, Largeur / 2);
  // Wide and low, the strip's height is negative: the view shows none of it.
  FenListe->EvSize(Largeur, Hauteur - Largeur / 2);
  BarresChangees();
  if (pFenDesActive) Invalide(pFenDesActive, TRect(0, 0, Largeur, Largeur / 2));
}

std::unique_ptr<TFenDessin> TFenCadre2::NouvelleFeuille(int num) {
  auto f = std::make_unique<TFenDessin>(this, pFenListe, num);
  f->SetTailleClient(Largeur, Largeur / 2);
  return f;
}

bool TFenCadre2::AddFeuille() {
  if (nbFeuilles >= NB_FEUILLES_MAX) {
    if (pFenDesActive) TFenDessin::MessageErreur("Nombre maximal de feuilles atteint : 200");
    return false;
  }
  const int num = nbFeuilles + 1;
  TabFenDes.push_back(NouvelleFeuille(num));
  TabOnglets.push_back(std::to_string(num) + " - ");
  ++nbFeuilles;
  Onglets();
  return true;
}

void TFenCadre2::Active(TFenDessin* f) {
  pFenDesActive = f;
  if (f) f->SetTailleClient(Largeur, Largeur / 2);
  if (Vue) Vue->FeuilleActive();
  Onglets();
}

bool TFenCadre2::InsereFeuille() {
  if (!pFenDesActive) return false;
  if (nbFeuilles >= NB_FEUILLES_MAX) {
    TFenDessin::MessageErreur("Nombre maximal de feuilles atteint : 200");
    return false;
  }
  TFenDessin* precedente = pFenDesActive;
  const int n = precedente->Num;
  TabFenDes.insert(TabFenDes.begin() + n, NouvelleFeuille(n + 1));
  TabOnglets.insert(TabOnglets.begin() + n, std::to_string(n + 1) + " - ");
  ++nbFeuilles;
  for (int i = n + 1; i < nbFeuilles; ++i) GetFeuille(i)->SetNum(i + 1);
  precedente->CloseBD();
  Active(GetFeuille(n));
  precedente->MetAJourOnglets();
  pFenDesActive->MAJUnDo();
  MarqueModifie();
  return true;
}

void TFenCadre2::TabSelChange(int i) {
  if (i < 0 || i >= nbFeuilles) return;
  if (pFenDesActive) pFenDesActive->CloseBD();
  Active(GetFeuille(i));
  pFenDesActive->OpenBD();
  Focus();
  pFenDesActive->MAJUnDo();
}

void TFenCadre2::SupprFeuille() {
  if (pFenDesActive) SupprFeuille(pFenDesActive->Num);
}

void TFenCadre2::SupprFeuille(int n) {
  if (n < 1 || n > nbFeuilles) return;
  // The selection is lost even when the sheet stays.
  TFenDessin::pEltCourant = TFenDessin::pEltCourant2 = TFenDessin::pEltSel = nullptr;
  TFenDessin* const feuille = GetFeuille(n - 1);
  for (int k = 0; k < NB_CV_MAX; ++k) {
    const TNoeud* premier = TabLElt[k].Premier();
    if (premier && static_cast<const TElt*>(premier)->pFen == feuille) {
      TFenDessin::MessageErreur("suppression impossible : début de trajectoire");
      return;
    }
  }
  if (nbFeuilles < 2) {
    TFenDessin::MessageErreur("suppression impossible : il faut au moins une feuille");
    return;
  }
  if (TFenDessin::pEltSynchro && TFenDessin::pEltSynchro->pFen == feuille) TFenDessin::pEltSynchro = nullptr;
  for (int k = 0; k < NB_CV_MAX; ++k)
    for (TNoeud* nd = TabLElt[k].Premier(); nd;) {
      auto* e = static_cast<TElt*>(nd);
      nd = nd->GetSuivant();
      if (e->pFen != feuille) continue;
      // A link to an element of another sheet must not outlive the element.
      TFenDessin::Detache(e);
      e->Supprime();
    }

  // The sheet before the active one is shown; when that is the one going, the one after it.
  TFenDessin* montree = GetFeuille(std::max(pFenDesActive ? pFenDesActive->Num - 1 : 1, 1) - 1);
  if (montree == feuille) montree = GetFeuille(n < nbFeuilles ? n : n - 2);
  if (pFenDesActive && pFenDesActive != montree) pFenDesActive->CloseBD();
  const bool ouvrir = pFenDesActive != montree;

  TabFenDes.erase(TabFenDes.begin() + (n - 1));
  TabOnglets.erase(TabOnglets.begin() + (n - 1));
  --nbFeuilles;
  for (int i = n - 1; i < nbFeuilles; ++i) GetFeuille(i)->SetNum(i + 1);
  for (int i = n - 1; i < nbFeuilles; ++i) TabOnglets[static_cast<std::size_t>(i)] = std::to_string(i + 1) + " - ";
  pFenDes0 = GetFeuille(0);

  Active(montree);
  if (ouvrir) montree->OpenBD();
  montree->MetAJourOnglets();
  Focus();
  montree->MAJUnDo();
  MarqueModifie();
}

void TFenCadre2::SetClientFenDes() {
  if (pFenDesActive && pFenDesActive != GetFeuille(0)) pFenDesActive->CloseBD();
  Active(GetFeuille(0));
}

void TFenCadre2::SetLabelOnglet(const std::string& texte, int i) {
  if (i < 0 || i >= nbFeuilles) return;
  std::string& label = TabOnglets[static_cast<std::size_t>(i)];
  const std::string nouveau = texte.substr(0, LONGUEUR_ONGLET_MAX);
  if (label == nouveau) return;
  label = nouveau;
  Onglets();
}

void TFenCadre2::NumeroteOnglets(int n) {
  for (int i = std::max(n - 1, 0); i < nbFeuilles; ++i) SetLabelOnglet(std::to_string(i + 1) + " - ", i);
}

int TFenCadre2::GetOngletActif() const {
  for (int i = 0; i < nbFeuilles; ++i)
    if (GetFeuille(i) == pFenDesActive) return i;
  return -1;
}

bool TFenCadre2::ConfirmePerte() {
  if (!DocumentModifie()) return true;
  switch (Dialogues().MessageBox("Enregistrer les modifications de « " + NomDocument() + " » avant de fermer ?",
                                 "Dessin Trajectoires", TBoutons::EnregistrerAbandonnerAnnuler,
                                 TIcone::Avertissement)) {
    case TReponse::Oui:
      // A save that fails, is refused or whose dialog is cancelled leaves the changes unsaved.
      if (pFenDesActive) pFenDesActive->Enregistrer();
      return !DocumentModifie();
    case TReponse::Non: return true;
    default: return false;
  }
}

bool TFenCadre2::CanClose() {
  if (DocumentModifie()) {
    if (!ConfirmePerte()) return false;
  } else if (Dialogues().MessageBox("Fermeture Définitive ?", "CV", TBoutons::OKAnnuler, TIcone::Question) !=
             TReponse::OK) {
    return false;
  }
  FermeDemo();  // the music and the scene end with the editor
  return true;
}

bool TFenCadre2::Quitter() {
  if (!CanClose()) return false;
  if (Vue) Vue->Ferme();
  return true;
}

void TFenCadre2::SetTitre(const std::string& titre) {
  Titre = titre;
  if (Vue) Vue->Textes();
}

void TFenCadre2::SetTextePosition(const std::string& texte) {
  TextePosition = texte;
  if (Vue) Vue->Textes();
}

void TFenCadre2::SetTexteGadgetSynchro(const std::string& texte) {
  TexteGadgetSynchro = texte;
  if (Vue) Vue->Textes();
}

void TFenCadre2::SetCoche(int id, bool coche) {
  Coches[id] = coche;
  if (Vue) Vue->Textes();
}

bool TFenCadre2::GetCoche(int id) const {
  const auto i = Coches.find(id);
  return i != Coches.end() && i->second;
}

void TFenCadre2::Invalide(TFenDessin* feuille, const TRect& r) {
  if (Vue) Vue->Invalide(feuille, r);
}

void TFenCadre2::Focus() {
  if (Vue) Vue->Focus();
}

void TFenCadre2::BarresChangees() {
  if (Vue) Vue->Barres();
}

void TFenCadre2::Onglets() {
  if (Vue) Vue->Onglets();
}
