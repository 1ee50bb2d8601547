#pragma once
// The player's commands, its menu "mnu" and its control bar, as data: the view builds its
// widgets from them and sends every command id to TFenApp::Trt_Menu.
#include <span>

#include "platform/Menus.h"

enum TCommandeLecteur : unsigned {
  CM_LECTURE = 100,
  CM_PAUSE = 101,
  CM_ARRIERE = 103,
  CM_DEBUT = 104,
  CM_PAS_AVANT = 105,
  CM_PAS_ARRIERE = 106,
  CM_PLUS_RAPIDE = 107,
  CM_PLUS_LENT = 108,
  CM_VITESSE_NORMALE = 109,
  CM_ROTATION_GAUCHE = 110,
  CM_ROTATION_DROITE = 111,
  CM_ZOOM_PLUS = 112,
  CM_ZOOM_MOINS = 113,
  CM_DEPLACEMENT_HAUT = 114,
  CM_DEPLACEMENT_BAS = 115,
  CM_SOLEIL_GAUCHE = 116,
  CM_SOLEIL_DROITE = 117,
  CM_REGLAGES_DEFAUT = 118,
  CM_TEAM1 = 120,  // CM_TEAM1 + n - 1 chooses team n
  CM_TEAM2 = 121,
  CM_TEAM3 = 122,
  CM_TEAM4 = 123,
  CM_TEAM5 = 124,
  CM_TEMPS_DEBUT = 130,
  // What the 3D picture shows beyond the kites: switches, the trails' length, the camera.
  CM_TRAINES = 140,
  CM_DUREE_TRAINES = 141,
  CM_LIGNES = 142,
  CM_SOL = 143,
  CM_FENETRE = 144,
  CM_CAMERA_PUBLIC = 145,  // CM_CAMERA_PUBLIC + TCamera
  CM_CAMERA_PILOTES = 146,
  CM_CAMERA_JUGE = 147,
  CM_EXPORTER_VIDEO = 150,  // the window's own box, then a film made in the background
};

inline constexpr int NB_TEAMS = 5;

// The ids of the text gadgets: T, V and Pas on the status bar, the start instant on the
// control bar.
enum TGadgetLecteur : int { GADGET_T = 0, GADGET_V = 1, GADGET_PAS = 2, GADGET_DEBUT = 4 };


// The three pop-ups of the menu bar, in order.
std::span<const TMenuDeroulant> MenuLecteur();
// The menu text of a command, or null for an id the player does not have.
const char* TexteCommande(unsigned id);

std::span<const TGadgetBarre> BarreLecteur();

// The text gadgets of the status bar, left to right after the message area; each is
// recessed, centred, and as wide as this many characters.
struct TGadgetStatut {
  int Id;
  int Largeur;
  const char* Bulle;  // what it shows, under the mouse
};
std::span<const TGadgetStatut> BarreStatutLecteur();

// The frame: caption, size at creation (its place is beside the editor's), and what the
// start-instant dialog takes.
inline constexpr const char* TITRE_LECTEUR = "CV";
inline constexpr int LARGEUR_LECTEUR = 400, HAUTEUR_LECTEUR = 290;
inline constexpr int TAILLE_POLICE_BARRE_LECTEUR = 10;
inline constexpr int LONGUEUR_MAX_TEMPS_DEBUT = 50;
