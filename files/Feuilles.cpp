// Sheet export and file insertion: a range of sheets written as a routine that stands by
// itself, and such a routine read back after the active sheet, its kites given to the
// document's kites by the correspondence of the dialog.
#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "files/Ecriture.h"
#include "files/Lignes.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "platform/Dialogues.h"

namespace {
TDialogueFichier DialogueFeuilles{"", "fichiers routine ROU | *.rou|", "rou", {}};
TDialogueFichier DialogueInserer{"Insérer Fichier Routine", "fichiers routine ROU | *.rou|", "rou", {}};

// Why the range can't be written, or null; n is the number of sheets.
const char* RefusPlage(int premiere, int derniere, int n) {
  if (premiere < 1 || premiere > n) return "Première feuille incorrecte !!!";
  if (derniere < 1 || derniere > n) return "Dernière feuille incorrecte !!!";
  if (derniere < premiere) return "N° dernière feuille < N° première feuille !!!";
  return nullptr;
}

// The elements read from the inserted file, one list per kite of the file, until they move
// to the tracks of the document; what is left goes with the table.
class TTableInsertion {
public:
  TTableInsertion() {
    for (int i = 0; i < NB_CV_MAX; ++i) Listes[i].SetNumCoul(i, TColor::Black);
  }
  ~TTableInsertion() { Vide(); }
  TTableInsertion(const TTableInsertion&) = delete;
  TTableInsertion& operator=(const TTableInsertion&) = delete;

  void Vide() {
    for (TListeCV& l : Listes)
      while (TNoeud* n = l.Premier()) static_cast<TElt*>(n)->Supprime();
  }
  // The highest kite of the file that has elements, plus 1.
  int NbCVFichier() const {
    int n = 0;
    for (int i = 0; i < NB_CV_MAX; ++i)
      if (!Listes[i].IsVide()) n = i + 1;
    return n;
  }
  template <class F>
  void PourChaque(F f) {
    for (TListeCV& l : Listes)
      for (TNoeud* n = l.Premier(); n; n = n->GetSuivant()) f(static_cast<TElt*>(n));
  }

  TListeCV Listes[NB_CV_MAX];
  // Each list's ends, noted before it moves: the inserted part of a track lies between them.
  TElt* Premier[NB_CV_MAX] = {};
  TElt* Dernier[NB_CV_MAX] = {};
};

// The list of the table that document kite i takes, from the correspondence.
int ListeDe(int i) { return TFenDessin::ParamInsererFic.Correspondance[i] - 1; }

// Calls f on each inserted element, kite after kite of the document.
template <class F>
void PourChaqueInsere(const TTableInsertion& table, F f) {
  for (int i = 0; i < nbCV; ++i) {
    const int c = ListeDe(i);
    for (TElt* e = table.Premier[c]; e; e = e->GetEltSuivant()) {
      f(e);
      if (e == table.Dernier[c]) break;
    }
  }
}

// Where kite i takes the file: before the first element off the active sheet that follows
// one on it, or at the end of a track with nothing on the active sheet (null). `precedent`
// is the element the file then follows.
TElt* PointInsertion(int i, TElt*& precedent) {
  precedent = nullptr;
  for (TNoeud* n = TabLElt[i].Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    if (precedent && e->pFen->Num != NumFActive && precedent->pFen->Num == NumFActive) return e;
    precedent = e;
  }
  return nullptr;
}

// The shift of "calc": the latest end time that the file follows, cut to a whole number.
float DecalageCalcule() {
  float calcule = 0;
  for (int i = 0; i < nbCV; ++i) {
    TElt* precedent = nullptr;
    PointInsertion(i, precedent);
    if (precedent && precedent->Gett2Param() > calcule) calcule = static_cast<float>(Tronque(precedent->Gett2Param()));
  }
  return calcule;
}

// Notes, for the dialog's check of the shift in time, the end times of each list of the table.
void NoteTemps(TTableInsertion& table, ParamTBDInsererFic& p) {
  for (int c = 0; c < NB_CV_MAX; ++c) {
    p.TempsMin[c] = p.TempsMax[c] = 0;
    bool premier = true;
    for (TNoeud* n = table.Listes[c].Premier(); n; n = n->GetSuivant()) {
      const float t = static_cast<TElt*>(n)->Gett2Param();
      if (premier || t < p.TempsMin[c]) p.TempsMin[c] = t;
      if (premier || t > p.TempsMax[c]) p.TempsMax[c] = t;
      premier = false;
    }
  }
}

// Moves each named list of the table into its kite's track, at its insertion point.
void InsereListes(TTableInsertion& table) {
  for (int c = 0; c < NB_CV_MAX; ++c) {
    table.Premier[c] = static_cast<TElt*>(table.Listes[c].Premier());
    table.Dernier[c] = static_cast<TElt*>(table.Listes[c].Dernier());
  }
  for (int i = 0; i < nbCV; ++i) {
    TElt* precedent = nullptr;
    TElt* position = PointInsertion(i, precedent);
    if (!TabLElt[i].InsereListe(table.Listes[ListeDe(i)], position)) Dialogues().MessageBox("Liste Vide", "OuvrirFeuille()");
  }
}

// The kites of the file left out keep no tie with what was inserted: their children lose
// them, and a father of inserted children hands the synchronisation to the first of them.
void DelieNonUtilises(TTableInsertion& table) {
  table.PourChaque([](TElt* e) { TFenDessin::DetachePere(e); });
  table.PourChaque([](TElt* pere) {
    if (pere->NumSynchro == 0) return;
    const auto nbFils = std::count_if(std::begin(pere->pFils), std::end(pere->pFils), [](const TElt* f) { return f; });
    TElt* nouveau = nullptr;
    int slot = 0;
    for (TElt* fils : pere->pFils) {
      if (!fils) continue;
      // A single child is simply free, and keeps whatever it holds itself.
      if (nbFils == 1) {
        fils->pPere = nullptr;
        break;
      }
      if (!nouveau) {
        nouveau = fils;
        nouveau->pPere = nullptr;
        nouveau->NumSynchro = pere->NumSynchro;
        for (TElt*& f : nouveau->pFils) f = nullptr;
        continue;
      }
      fils->pPere = nouveau;
      fils->NumSynchro = 0;
      for (TElt*& f : fils->pFils) f = nullptr;
      nouveau->pFils[slot++] = fils;
    }
    for (TElt*& f : pere->pFils) f = nullptr;
    pere->NumSynchro = 0;
  });
}

// A father must belong to the lower kite: where the correspondence reversed the order, the
// child takes the father's place.
void OrdonnePeres(const TTableInsertion& table) {
  PourChaqueInsere(table, [](TElt* e) {
    TElt* pere = e->pPere;
    if (!pere || !pere->pListeCV || !e->pListeCV || pere->pListeCV->Num <= e->pListeCV->Num) return;
    for (int k = 0; k < NB_FILS_MAX; ++k) e->pFils[k] = pere->pFils[k] == e ? pere : pere->pFils[k];
    e->NumSynchro = pere->NumSynchro;
    e->pPere = nullptr;
    for (TElt* fils : e->pFils)
      if (fils) fils->pPere = e;
    pere->NumSynchro = 0;
    for (TElt*& f : pere->pFils) f = nullptr;
  });
}
}  // namespace

bool TFenDessin::EnregistrerFeuille() {
  TBD_Feuille bd(&ParamFeuille);
  bd.SetupWindow();
  if (!Dialogues().Execute(bd)) return false;
  if (ParamFeuille.Tout) {
    EnregistrerSous();
    return true;
  }
  const int premiere = ParamFeuille.Premiere;
  const int derniere = ParamFeuille.Derniere;
  if (const char* refus = RefusPlage(premiere, derniere, pFenCadre ? pFenCadre->nbFeuilles : 0)) {
    Dialogues().MessageBox(refus, "Pb Enregistrer feuilles");
    return false;
  }
  DialogueFeuilles.Titre = "Enregistrer feuilles " + std::to_string(premiere) + " à " + std::to_string(derniere) + " ";
  bool ecrit = false;
  if (const std::optional<std::string> chemin = Dialogues().FichierAEnregistrer(DialogueFeuilles)) {
    if (FichierExiste(*chemin) &&
        Dialogues().MessageBox("fichier existe : écraser ? ", "Enregistrer feuilles", TBoutons::OKAnnuler) != TReponse::OK)
      return false;
    ecrit = EcritFichier(*chemin, TexteFeuilles(premiere, derniere));
    if (!ecrit) {
      Dialogues().MessageBox(PROBLEME_ENREGISTREMENT, " Enregistrer feuilles ");
      return false;
    }
  }
  if (pFenCadre) pFenCadre->Focus();
  return ecrit;
}

bool TFenDessin::OuvrirFeuille() {
  if (!pFenCadre || !pFenCadre->pFenDesActive) return false;
  if (TabLElt[0].IsVide()) {
    Dialogues().MessageBox("Aucun CV n'existe !!!", "Pb Insérer Fichier");
    return false;
  }
  NbFenDesOuvertes = 0;
  const std::optional<std::string> chemin = Dialogues().FichierAOuvrir(DialogueInserer);
  if (!chemin) return false;
  SetCurseur(TCurseur::Attente);
  ChargementFichierEnCours = true;
  Fonction = FONCTION_MODIFICATION;
  Etape = 1;
  pEltCourant = pEltCourant2 = pEltSel = nullptr;
  const std::optional<std::string> contenu = LitFichier(*chemin);
  if (!contenu) {
    Dialogues().MessageBox("Problème d'ouverture fichier !!! ", " Inserer Fichier ");
    ChargementFichierEnCours = false;
    SetCurseur(TCurseur::Fleche);
    return false;
  }

  TTableInsertion table;
  NumFActive = pFenCadre->pFenDesActive->Num;
  DecoupeLignes(
      *contenu, [&](std::string_view ligne) { CreeElementInsere(std::string(ligne).c_str(), table.Listes); },
      [&](int numero) {
        MessageErreur("Fichier inséré : ligne " + std::to_string(numero) + " trop longue : ignorée");
      });
  ParamInsererFic.NbCVFichier = table.NbCVFichier();
  NoteTemps(table, ParamInsererFic);
  ParamInsererFic.DecalageCalcule = DecalageCalcule();

  TBD_InsererFic bd(&ParamInsererFic, nbCV);
  bd.SetupWindow();
  const bool insere = Dialogues().Execute(bd);
  if (!insere) {
    // The elements read point at the added sheets: they go first.
    table.Vide();
    for (int i = NbFenDesOuvertes; i > 0; --i) pFenCadre->SupprFeuille();
    ChargementFichierEnCours = false;
  } else {
    const ParamTBDInsererFic& p = ParamInsererFic;
    table.PourChaque([&](TElt* e) {
      const TPointf q = e->Getp2Param();
      e->Setp2Param(TPointf(q.x + static_cast<float>(p.DecalageX), q.y + static_cast<float>(p.DecalageY)));
    });
    // The lists no kite names stay in the table, with their own list, until they go.
    for (int i = 0; i < nbCV; ++i)
      for (TNoeud* n = table.Listes[ListeDe(i)].Premier(); n; n = n->GetSuivant())
        static_cast<TElt*>(n)->pListeCV = &TabLElt[i];
    InsereListes(table);
    DelieNonUtilises(table);
    OrdonnePeres(table);
    // Only the inserted elements move in time, whatever follows them.
    const float decalage = p.Decaler ? static_cast<float>(p.Temps) : p.DecalageCalcule;
    if (p.Calcul || p.Decaler)
      PourChaqueInsere(table, [&](TElt* e) { e->Sett2Param(e->Gett2Param() + decalage); });
    MiseAJourVTotale();
    if (pFenListe) pFenListe->RetraceBD();
    pFenCadre->SetClientFenDes();
    ChargementFichierEnCours = false;
    pFenCadre->pFenDesActive->OpenBD();
    Demo();
  }
  SetCurseur(TCurseur::Fleche);
  pFenCadre->Focus();
  if (pFenDes0) pFenDes0->MetAJourOnglets();
  table.Vide();
  return insere;
}
