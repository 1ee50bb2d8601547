#pragma once
// The open routine: global tables of tracks and the values the whole program shares.
// There is one document at a time. The tables are reached only through their pointers,
// because the undo tables change places after each undo.
#include "model/ListeCV.h"
#include "model/Types.h"

class TFenDessin;
class TFenApp;
class TD3DDemo;

inline constexpr int NB_CV_MAX = 6;
inline constexpr int TAILLE_FICHIER_ROUTINE = 255;
inline constexpr int TAILLE_FICHIER_MUSIQUE = 256;

extern TListeCV* TabLElt;     // the document: entry i is the track of kite i
extern TListeCV* AncTabLElt;  // undo copy of the active sheet's elements, per kite
extern TListeCV* TLE;         // working table of undo; changes places with AncTabLElt
extern TListeCV* Tampon;      // copy buffer
extern TListeCV* Tampon2;     // second copy buffer, used while pasting

extern int nbCV;  // kites in use, 1 to 6: only the first nbCV entries of a table are walked
extern int Team;  // team of kite models, 1 to 5
extern bool ChargementFichierEnCours;
extern bool MiseAJourVTotaleEnCours;
extern int NbFenDesOuvertes;
extern int NumFActive;
extern char FichierRoutine[TAILLE_FICHIER_ROUTINE];   // empty: the routine has no name yet
extern char _FichierMusique[TAILLE_FICHIER_MUSIQUE];  // empty: no music
extern TPointf PointDebutTampon;
extern TFenDessin* pFenDes0;  // the first sheet; the flight generator reports through it
extern TFenApp* pFenAppDemo;  // the player's client window

// What the application shares with the 3D scene.
struct TGlobals {
  void* hInstance = nullptr;
  TD3DDemo* pD3DDemo = nullptr;  // the running demonstration, null when none
  int blActif = 0;               // the scene may be drawn
  int blDemoOK = 0;              // a usable scene exists
};
extern TGlobals Globals;

// The kite numbers 0 to 5 and their colours, as a new editor gives them to the document.
void InitialiseNumCoul();

// Brings every global and static of the document back to its state at program start:
// empty tables at their own places, counters and flags at their first values.
void ReinitialiseDocument();
// What lies above the document and keeps state of its own (the scene, the player) gives
// here, once, how ReinitialiseDocument brings it back.
void EnregistreReinitialisation(void (*reinitialise)());
