#include "model/Document.h"

#include <vector>

#include "editor/FenDessin.h"
#include "model/Elt.h"
#include "frise/Tempo.h"
#include "securite/Reglages.h"

namespace {
// The storage itself is named only here: everything else goes through the pointers.
TListeCV TabListeElt[NB_CV_MAX];
TListeCV AncTabListeElt[NB_CV_MAX];
TListeCV TabLE[NB_CV_MAX];
TListeCV TamponTabListeElt;
TListeCV TamponTabListeElt2;
}  // namespace

TListeCV* TabLElt = TabListeElt;
TListeCV* AncTabLElt = AncTabListeElt;
TListeCV* TLE = TabLE;
TListeCV* Tampon = &TamponTabListeElt;
TListeCV* Tampon2 = &TamponTabListeElt2;

int nbCV = 1;
int Team = 1;
bool ChargementFichierEnCours = false;
bool MiseAJourVTotaleEnCours = false;
int NbFenDesOuvertes = 0;
int NumFActive = 0;
char FichierRoutine[TAILLE_FICHIER_ROUTINE] = "";
char _FichierMusique[TAILLE_FICHIER_MUSIQUE] = "";
TPointf PointDebutTampon;
TFenDessin* pFenDes0 = nullptr;
TFenApp* pFenAppDemo = nullptr;
TGlobals Globals;

void InitialiseNumCoul() {
  static constexpr TColor couleurs[NB_CV_MAX] = {TColor::Black, TColor::LtRed,     TColor::LtBlue,
                                                 TColor::LtGreen, TColor::LtMagenta, TColor::LtCyan};
  for (int i = 0; i < NB_CV_MAX; ++i) TabLElt[i].SetNumCoul(i, couleurs[i]);
}

namespace {
std::vector<void (*)()>& Reinitialisations() {
  static std::vector<void (*)()> fonctions;
  return fonctions;
}

void RemetListe(TListeCV& l) {
  l.Vide();
  l.SetNumCoul(0, TColor());
}
}  // namespace

void ReinitialiseDocument() {
  TabLElt = TabListeElt;
  AncTabLElt = AncTabListeElt;
  TLE = TabLE;
  Tampon = &TamponTabListeElt;
  Tampon2 = &TamponTabListeElt2;
  for (int i = 0; i < NB_CV_MAX; ++i) {
    RemetListe(TabListeElt[i]);
    RemetListe(AncTabListeElt[i]);
    RemetListe(TabLE[i]);
  }
  RemetListe(TamponTabListeElt);
  RemetListe(TamponTabListeElt2);

  nbCV = 1;
  Team = 1;
  ChargementFichierEnCours = false;
  MiseAJourVTotaleEnCours = false;
  NbFenDesOuvertes = 0;
  NumFActive = 0;
  FichierRoutine[0] = '\0';
  _FichierMusique[0] = '\0';
  ReglagesSecurite = TReglagesSecurite();
  VideRythme();
  PointDebutTampon = TPointf();
  pFenDes0 = nullptr;
  pFenAppDemo = nullptr;
  // The scene, owned through Globals, goes with its own state.
  for (void (*reinitialise)() : Reinitialisations()) reinitialise();
  Globals = TGlobals();

  TElt::NbElt = 0;
  TFenDessin::ReinitialiseStatiques();
}

void EnregistreReinitialisation(void (*reinitialise)()) { Reinitialisations().push_back(reinitialise); }
