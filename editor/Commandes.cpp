// The editor's menu: every command arrives at Trt_Menu of the active sheet.
#include <array>
#include <string>

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "editor/MenuEditeur.h"
#include "equipe/BDSuivre.h"
#include "equipe/Modeles.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "model/elements/AllerA.h"
#include "model/elements/Axel.h"
#include "model/elements/Figure.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "model/elements/Stop.h"
#include "platform/Dialogues.h"
#include "securite/BDSecurite.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"

namespace {
void Statut(const std::string& texte) { Dialogues().MessageStatut(texte); }

// Each file dialog remembers its own last file from one use to the next.
TDialogueFichier DialogueFigure{"Ouvrir Fichier Figure", "fichiers figures FIG | *.fig", "fig", {}};
}  // namespace

void TFenDessin::Trt_Menu(unsigned id) {
  TDCClient dc(*this);
  SetEchelle(dc);
  if (pFenCadre) pFenCadre->Focus();
  switch (id) {
    case 249: EnregistrerSous(); break;
    case 250: Enregistrer(); break;
    case 251: Ouvrir(); break;
    case 252: OuvrirMusique(); break;
    case 254: EnregistrerSelection(); break;
    case 255:
      if (Printer) Printer->Setup();
      break;
    case 256:
    case 257:
    case 258:
    case 259:
      if (Printer) {
        static constexpr std::array<int, 4> parPage{1, 2, 4, 8};
        Imp.SetNbParPage(parPage[id - 256]);
        if (Printer->Print(Imp, true)) {
          const int n = Printer->GetPagesImprimees();
          Statut("Impression envoyée : " + std::to_string(n) + (n == 1 ? " page" : " pages"));
        }
      }
      break;
    case CM_NOUVEAU: Nouveau(); break;
    case CM_QUITTER:
      if (pFenCadre) pFenCadre->Quitter();
      break;
    case CM_EFFACER_RECENTS: FichiersRecents().Efface(); break;
    case CM_SUPPRIMER: Suppr(); break;
    case CM_SECURITE: ReglerSecurite(); break;
    case 260: EnregistrerFeuille(); break;
    case 261: OuvrirFeuille(); break;
    case 333: Undo(); break;
    case 336: Copier(); break;
    case 337: Coller(); break;
    case CM_SUIVRE_MENEUR:
      if (SuivreLeMeneur()) RetraceTout();
      break;
    case CM_IMPRIMER_CHAQUE_PILOTE:
      Imp.ChaquePilote = !Imp.ChaquePilote;
      if (pFenCadre) pFenCadre->SetCoche(CM_IMPRIMER_CHAQUE_PILOTE, Imp.ChaquePilote);
      break;
    case CM_NOUVEAU_MODELE: NouveauModele(*this); break;
    case 301: CommandeDessin(id, "- Segment -"); break;
    case 305: CommandeDessin(id, "- Arc -"); break;
    case 309: CommandeDessin(id, "- Dérapage -"); break;
    case 311: CommandeDessin(id, "- Arc Révo-"); break;
    case 312: CommandeDessin(id, "- Segment Révo-"); break;
    case 253:
    case 304:
    case 306:
    case 307:
    case 308:
    case 310:
    case 320: CommandeInsertion(dc, id); break;
    case 302: AjoutCV(dc); break;
    case 303:
      Statut("- Relance Démonstration -");
      Demo();
      break;
    case 330:
      Echap();
      if (PreleveSynchro()) {
        SetCurseur(TCurseur::Carre);
        Statut("- Synchronisation - Cliquez les éléments à synchroniser");
        Fonction = FONCTION_AJOUT_SYNCHRO;
      }
      break;
    case 331:
      SetCurseur(TCurseur::CarreCroix);
      Statut("- Cliquez les synchronisations à supprimer");
      Fonction = FONCTION_SUPPR_SYNCHRO;
      break;
    case 332:
    case 334: {
      // At most one of the two is on; turning one on turns the other off.
      bool& option = id == 332 ? MAJPermanente : MAJUp;
      bool& autre = id == 332 ? MAJUp : MAJPermanente;
      if (!option) autre = false;
      option = !option;
      if (pFenCadre) {
        pFenCadre->SetCoche(332, MAJPermanente);
        pFenCadre->SetCoche(334, MAJUp);
      }
      Dialogues().MessageBeep(-1);
      break;
    }
    case 335:
      MiseAJourVTotale();
      Dialogues().MessageBeep(-1);
      break;
    case 338:
      if (pFenCadre) pFenCadre->InsereFeuille();
      break;
    case 339:
      if (pFenCadre &&
          Dialogues().MessageBox("Supprimer la feuille active avec tous ses éléments ? \n ATTENTION : Annulation impossible",
                                 "Suppression feuille", TBoutons::OKAnnuler, TIcone::Question) == TReponse::OK)
        pFenCadre->SupprFeuille();
      break;
    default:
      if (id >= CM_PREMIER_RECENT && id < CM_PREMIER_RECENT + NB_FICHIERS_RECENTS) OuvrirRecent(id - CM_PREMIER_RECENT);
      break;
  }
}

bool TFenDessin::AbandonneEnCours(TDC& dc, bool retracePrecedent) {
  if (!EstFonctionDessin(Fonction) || Etape != 3 || !pEltCourant) return false;
  // Detache clears every pointer that names the element, pEltCourant among them.
  TElt* const enCours = pEltCourant;
  enCours->Invalid(dc, true, 2);
  TElt* precedent = enCours->GetEltPrecedent();
  Detache(enCours);
  enCours->Supprime();
  pEltCourant = nullptr;
  pEltSel = precedent;
  if (precedent && retracePrecedent) precedent->Invalid(dc, true, 2);
  if (pFenListe) pFenListe->RetraceBD();
  return true;
}

void TFenDessin::CommandeDessin(unsigned id, const char* statut) {
  SetCurseur(TCurseur::Croix);
  Statut(statut);
  TDCClient dc(*this);
  SetEchelle(dc);
  // Another tool in the middle of an element goes on from the end of the last one fixed.
  Etape = AbandonneEnCours(dc) ? 2 : 1;
  Fonction = static_cast<int>(id);
}

void TFenDessin::CommandeInsertion(TDC& dc, unsigned id) {
  if (!pEltCourant) return;
  TElt* avant = pEltCourant->GetEltPrecedent();
  // The start point of a track has no end before it to build on.
  if (!avant) return;
  MAJUnDo();
  pEltCourant->Invalid(dc, true, 2);
  const TPointf q = avant->Getp2Param();
  const TPoint p(Tronque(q.x), Tronque(q.y));
  TListeCV* liste = pEltCourant->pListeCV;
  TElt* e = nullptr;
  switch (id) {
    case 304: e = new TAxel(p, this, pFenListe, liste); break;
    case 306: e = new TStop(p, this, pFenListe, liste); break;
    case 307: e = new TPose(p, this, pFenListe, liste); break;
    case 308: e = new T540(p, this, pFenListe, liste); break;
    case 310: e = new TRot(p, this, pFenListe, liste, static_cast<float>(avant->GetAngle())); break;
    case 320: e = new TAllerA(p, this, pFenListe, liste); break;
    default: {
      const std::optional<std::string> fichier = Dialogues().FichierAOuvrir(DialogueFigure);
      if (!fichier) return;
      e = new TFigure(p, this, pFenListe, liste, fichier->c_str(), true);
      break;
    }
  }
  liste->InsereAvant(e, pEltCourant);
  e->Invalid(dc, true, 2);
  e->OpenBD();
  if (pFenListe) pFenListe->RetraceBD();
  for (int k = 0; k < NB_CV_MAX; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->MAJFaite = false;
  if (TElt* a = e->GetEltT()) a->CalculV();
}

void TFenDessin::AjoutCV(TDC& dc) {
  if (nbCV >= NB_CV_MAX) {
    Dialogues().MessageBeep(-1);
    return;
  }
  if (Dialogues().MessageBox("Créer un élément en zone graphique", "Ajout du CV n°" + std::to_string(nbCV + 1),
                             TBoutons::OKAnnuler) != TReponse::OK)
    return;
  nCV = nbCV;
  ++nbCV;
  MarqueModifie();
  SetCurseur(TCurseur::Fleche);
  Statut("- Modification -");
  AbandonneEnCours(dc);
  pEltCourant = pEltCourant2 = nullptr;
  Fonction = FONCTION_MODIFICATION;
  Etape = 1;
}

void TFenDessin::Echap() {
  SetCurseur(TCurseur::Fleche);
  Statut("- Modification -");
  TDCClient dc(*this);
  SetEchelle(dc);
  if (AbandonneEnCours(dc, true)) pEltSel = nullptr;
  Fonction = FONCTION_MODIFICATION;
  Etape = 1;
}

void TFenDessin::Suppr() {
  Dialogues().MessageBeep(-1);
  if (Fonction != FONCTION_MODIFICATION || !pEltCourant) return;
  // A father can't go, nor a range that holds one: the whole range stays.
  for (TElt* e = pEltCourant2 ? pEltCourant2 : pEltCourant; e; e = e->GetEltSuivant()) {
    if (e->NumSynchro) {
      MessageErreur("suppression impossible : synchronisation");
      return;
    }
    if (e == pEltCourant) break;
  }
  // The start point of a kite that has a track can't go.
  if (pEltCourant->pListeCV && pEltCourant->pListeCV->IsPremier(pEltCourant) && pEltCourant->pListeCV->nbNoeud() > 1)
    return;
  MAJUnDo();
  TDCClient dc(*this);
  SetEchelle(dc);
  TElt* prise = (pEltCourant2 ? pEltCourant2 : pEltCourant)->GetEltPrecedent();
  if (pEltCourant2)
    for (TElt* e = pEltCourant2; e && e != pEltCourant;) {
      TElt* suivant = e->GetEltSuivant();
      Suppr(dc, e);
      e = suivant;
    }
  Suppr(dc, pEltCourant);
  pEltCourant = pEltCourant2 = nullptr;
  if (prise) prise->Invalid(dc, true, 2);
  if (pFenListe) pFenListe->RetraceBD();
}

void TFenDessin::Suppr(TDC& dc, TElt* e) {
  // The start point of a kite alone in its track stays.
  if (!e || !e->GetEltPrecedent()) return;
  e->Invalid(dc, true, 2);
  if (e->pPere) e->pPere->Invalid(dc, true, 2);
  Detache(e);
  e->Supprime();
}

void TFenDessin::Detache(TElt* e) {
  DetachePere(e);
  // Only a sheet's removal takes a father away: its children keep their times as anchors.
  for (TElt*& fils : e->pFils)
    if (fils) {
      TElt* f = fils;
      fils = nullptr;
      if (f->pPere == e) {
        f->pPere = nullptr;
        f->Sett2();
      }
    }
  e->NumSynchro = 0;
  for (TElt** p : {&pEltCourant, &pEltCourant2, &pEltSel, &pEltSynchro})
    if (*p == e) *p = nullptr;
}

void TFenDessin::OpenBD() {
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant())
      if (auto* e = static_cast<TElt*>(n); e->pFen == this) e->OpenBD();
  if (pFenListe) pFenListe->RetraceBD();
}

void TFenDessin::CloseBD() {
  for (int k = 0; k < NB_CV_MAX; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant())
      if (auto* e = static_cast<TElt*>(n); e->pFen == this) e->CloseBD();
  if (pFenListe) pFenListe->RetraceBD();
}

void TFenDessin::ReglerSecurite() {
  TBD_Securite bd;
  bd.SetupWindow();
  if (Dialogues().Execute(bd)) Statut("Réglages de sécurité modifiés");
}
