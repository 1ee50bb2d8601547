// The "&Fichier" commands: open a routine, save it, save it under a name, save the selection
// as a figure, choose the music. Files are written whole or not at all (EcritFichier), so a
// failed save keeps the previous file.
#include <memory>
#include <string>
#include <vector>

#include "demo/Demonstration.h"
#include "demo/player/FenApp.h"

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "model/elements/Pt.h"
#include "platform/Dialogues.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"

namespace {
TDialogueFichier DialogueOuvrir{"Ouvrir Fichier Routine", "fichiers routine ROU | *.rou|fichiers figure  FIG | *.fig|",
                                "rou", {}};
TDialogueFichier DialogueMusique{"Ouvrir Fichier Musique", "fichiers musique WAV | *.wav", "wav", {}};
TDialogueFichier DialogueEnregistrer{"Enregistrer Fichier Routine",
                                     "fichiers routine ROU | *.rou|fichiers routine FIG | *.fig|", "rou", {}};
TDialogueFichier DialogueSelection{"Enregistrer une Figure", "fichiers figures FIG | *.fig", "fig", {}};


// A figure holds one track: a name whose text after its last point is exactly "fig" is
// refused while the routine has several kites.
bool FigureRefusee(const std::string& chemin) {
  const std::size_t point = chemin.rfind('.');
  if (point == std::string::npos || chemin.compare(point + 1, std::string::npos, "fig") != 0 || nbCV <= 1)
    return false;
  Dialogues().MessageBox("Impossible : une figure ne peut contenir qu'une trajectoire", "Enregistrer figure");
  return true;
}

void CopieChemin(char* cible, std::size_t taille, const std::string& chemin) {
  const std::size_t n = std::min(chemin.size(), taille - 1);
  chemin.copy(cible, n);
  cible[n] = '\0';
}
}  // namespace

void TFenDessin::Ouvrir() {
  if (pFenCadre && !pFenCadre->ConfirmePerte()) return;
  NbFenDesOuvertes = 0;
  const std::optional<std::string> chemin = Dialogues().FichierAOuvrir(DialogueOuvrir);
  if (chemin) Ouvrir(*chemin);
}

void TFenDessin::OuvrirRecent(std::size_t i) {
  const std::vector<std::string> presents = FichiersRecents().Presents();
  if (i >= presents.size() || (pFenCadre && !pFenCadre->ConfirmePerte())) return;
  // The dialog is not shown, but the file takes its place as the last one chosen there.
  DialogueOuvrir.Dernier = presents[i];
  NbFenDesOuvertes = 0;
  Ouvrir(presents[i]);
}

void TFenDessin::Nouveau() {
  TFenCadre2* const cadre = pFenCadre;
  if (!cadre || !cadre->ConfirmePerte()) return;
  // An empty routine as at start: one kite, no music, team 1, two sheets, no name.
  LitRoutineTexte(*cadre, {});
  FichierRoutine[0] = '\0';
  cadre->SetTitre("Dessin Trajectoires");
  pEltSynchro = nullptr;
  cadre->SetTexteGadgetSynchro(" / ");
  if (pFenListe) pFenListe->RetraceBD();
  cadre->SetClientFenDes();
  while (cadre->nbFeuilles > 2) {
    const int avant = cadre->nbFeuilles;
    cadre->SupprFeuille(avant - 1);
    if (cadre->nbFeuilles == avant) break;
  }
  if (cadre->nbFeuilles < 2) cadre->AddFeuille();
  cadre->pFenDesActive->OpenBD();
  // The player goes back to its first scene: one kite and no track.
  FermeDemo();
  if (pFenAppDemo)
    pFenAppDemo->InitDemo(1, 1000.0f);
  else
    InitDemo(1, 1000.0f);
  cadre->Focus();
  if (pFenDes0) pFenDes0->MetAJourOnglets();
  Dialogues().MessageStatut("Nouvelle routine");
  MarqueIntact();
}

void TFenDessin::Ouvrir(const std::string& chemin, const std::string& nomDonne) {
  // This sheet may be one of those the new routine does without: once they go, only the
  // frame is used.
  TFenCadre2* const cadre = pFenCadre;
  const std::string& nom = nomDonne.empty() ? chemin : nomDonne;
  SetCurseur(TCurseur::Attente);
  CopieChemin(FichierRoutine, sizeof FichierRoutine, nom);
  if (cadre) cadre->SetTitre("Dessin Trajectoires : " + nom);
  pEltSynchro = nullptr;
  // The document is emptied first: a file that can't be read leaves an empty routine.
  bool routine = true;
  const bool lu = cadre && LitRoutine(*cadre, chemin, &routine);
  if (lu) {
    if (pFenListe) pFenListe->RetraceBD();
    cadre->SetClientFenDes();
    cadre->pFenDesActive->OpenBD();
    Demo();
    // The sheets of the previous routine go; one empty sheet stays after the last used.
    while (cadre->nbFeuilles > NbFenDesOuvertes + 1) {
      const int avant = cadre->nbFeuilles;
      cadre->SupprFeuille(avant - 1);
      if (cadre->nbFeuilles == avant) break;
    }
  }
  SetCurseur(TCurseur::Fleche);
  if (cadre) cadre->Focus();
  if (pFenDes0) pFenDes0->MetAJourOnglets();
  if (lu && !routine) {
    // Opened as the empty routine it reads as, but under no name: the next save asks for
    // one instead of writing over a file that was never a routine.
    Dialogues().MessageBox("Aucun élément reconnu dans « " + NomFichier(chemin) +
                               " » : ce fichier n'est peut-être pas une routine.",
                           " Ouvrir routine", TBoutons::OK, TIcone::Avertissement);
    FichierRoutine[0] = '\0';
    if (cadre) cadre->SetTitre("Dessin Trajectoires");
  } else if (lu && nomDonne.empty()) {
    FichiersRecents().Ajoute(chemin);
  }
  MarqueIntact();
}

bool TFenDessin::EcritRoutine(const std::string& chemin) {
  if (EcritFichier(chemin, TexteRoutine())) {
    MarqueIntact();
    FichiersRecents().Ajoute(chemin);
    Dialogues().MessageStatut("Routine enregistrée : " + NomFichier(chemin));
    return true;
  }
  Dialogues().MessageBox(PROBLEME_ENREGISTREMENT, " Enregistrer routine");
  return false;
}

void TFenDessin::Enregistrer() {
  const std::string chemin = FichierRoutine;
  if (chemin.empty()) {
    EnregistrerSous();
    return;
  }
  if (FigureRefusee(chemin)) return;
  if (!EcritRoutine(chemin)) EnregistrerSous();
}

void TFenDessin::EnregistrerSous() {
  if (const std::optional<std::string> chemin = Dialogues().FichierAEnregistrer(DialogueEnregistrer);
      chemin && !FigureRefusee(*chemin) &&
      (!FichierExiste(*chemin) || Dialogues().MessageBox("fichier existe : écraser ? ", "Enregistrer routine",
                                                  TBoutons::OKAnnuler) == TReponse::OK)) {
    // The name is kept even when the file can't be written: the next save tries it again.
    CopieChemin(FichierRoutine, sizeof FichierRoutine, *chemin);
    if (pFenCadre) pFenCadre->SetTitre("Dessin Trajectoires : " + *chemin);
    EcritRoutine(*chemin);
  }
  if (pFenCadre) pFenCadre->Focus();
}

void TFenDessin::EnregistrerSelection() {
  if (!pEltCourant2 || !pEltCourant) {
    MessageErreur("Sélection Vide");
    return;
  }
  MiseAJourVTotale();
  TListeCV copie;
  for (TElt* e = pEltCourant2; e; e = e->GetEltSuivant()) {
    copie.Append(e->Copie(&copie, false));
    if (e == pEltCourant) break;
  }
  const TElt* avant = pEltCourant2->GetEltPrecedent();
  const TPointf P = avant ? avant->Getp2Param() : TPointf(0, 0);
  const float T0 = avant ? avant->Gett2Param() : 0.0f;
  if (copie.nbNoeud() < 2) {
    MessageErreur("Enregistrement de la sélection impossible : vide");
    return;
  }
  const std::optional<std::string> chemin = Dialogues().FichierAEnregistrer(DialogueSelection);
  if (!chemin || (FichierExiste(*chemin) && Dialogues().MessageBox("fichier existe : écraser ? ", "Enregistrer Figure",
                                                            TBoutons::OKAnnuler) != TReponse::OK))
    return;
  // The figure starts at its own point, at time 0; the point is not part of the document.
  TListeCV depart;
  auto* pt = new TPt(TPoint(Tronque(P.x), Tronque(P.y)), pEltCourant2->pFen, nullptr, &depart);
  depart.Append(pt);
  pt->Sett2Param(0);
  std::string texte;
  pt->Enregistrer(texte, 0, 0.0f);
  for (TNoeud* n = copie.Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    e->Sett2Param(e->Gett2Param() - T0);
    e->Enregistrer(texte, 0, 0.0f);
  }
  if (!EcritFichier(*chemin, texte)) Dialogues().MessageBox(PROBLEME_ENREGISTREMENT, " Enregistrer figure");
  if (pFenCadre) pFenCadre->Focus();
}

void TFenDessin::OuvrirMusique() {
  // The music is opened by the next demonstration and written by the next save.
  if (const std::optional<std::string> chemin = Dialogues().FichierAOuvrir(DialogueMusique))
    CopieChemin(_FichierMusique, sizeof _FichierMusique, *chemin);
}
