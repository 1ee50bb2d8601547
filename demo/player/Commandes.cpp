#include "demo/player/Commandes.h"

namespace {
constexpr TEntreeMenu ReglageLecture[] = {
    {CM_ARRIERE, "A&rrière"},
    {CM_LECTURE, "&Lecture"},
    {CM_PAUSE, "&Pause"},
    {CM_DEBUT, "&Début"},
    {CM_PAS_AVANT, "P&as à pas Avant"},
    {CM_PAS_ARRIERE, "Pa&s à pas Arrière"},
    {CM_PLUS_RAPIDE, "Plus rap&ide"},
    {CM_PLUS_LENT, "Plus &lent"},
    {CM_VITESSE_NORMALE, "Vitesse normale"},
};

constexpr TEntreeMenu Scene[] = {
    {CM_ROTATION_GAUCHE, "Rotation &Gauche"},
    {CM_ROTATION_DROITE, "Rotation &Droite"},
    {CM_ZOOM_PLUS, "Zoom &Plus"},
    {CM_ZOOM_MOINS, "Zoom &Moins"},
    {CM_DEPLACEMENT_HAUT, "Déplacement &Haut"},
    {CM_DEPLACEMENT_BAS, "Déplacement &Bas"},
    {CM_SOLEIL_GAUCHE, "Soleil G&auche"},
    {CM_SOLEIL_DROITE, "Soleil D&roite"},
    {CM_REGLAGES_DEFAUT, "&Réglages par défaut"},
    {0, nullptr},
    {CM_TRAINES, "&Traînées"},
    {CM_DUREE_TRAINES, "D&urée des traînées"},
    {CM_LIGNES, "Pilotes et &lignes"},
    {CM_SOL, "S&ol"},
    {CM_FENETRE, "&Fenêtre du vent"},
    {0, nullptr},
    {CM_CAMERA_PUBLIC, "Caméra : publi&c"},
    {CM_CAMERA_PILOTES, "Caméra : p&ilotes"},
    {CM_CAMERA_JUGE, "Caméra : &juge"},
};

constexpr TEntreeMenu Options[] = {
    {CM_TEMPS_DEBUT, "&Temps Début"},
    {0, nullptr},
    {CM_TEAM1, "Team N°&1 : Orvane"},
    {CM_TEAM2, "Team N°&2 : Couleurs"},
    {CM_TEAM3, "Team N°&3 : Tessel"},
    {CM_TEAM4, "Team N°&4 : Révo"},
    {CM_TEAM5, "Team N°&5 "},
    {0, nullptr},
    {CM_EXPORTER_VIDEO, "&Exporter une vidéo..."},
};

constexpr TMenuDeroulant Menu[] = {
    {"&Reglage Lecture", ReglageLecture},
    {"&Scène", Scene},
    {"&Options", Options},
};

constexpr TGadgetBarre Bouton(int bitmap, unsigned id, const char* bulle) {
  return {TGenreGadget::Bouton, bitmap, id, 0, bulle};
}
constexpr TGadgetBarre Separateur(int largeur) { return {TGenreGadget::Separateur, 0, 0, largeur}; }

constexpr TGadgetBarre Barre[] = {
    Bouton(206, CM_PAS_ARRIERE, "Reculer d'un pas (flèche gauche)"),
    Bouton(203, CM_ARRIERE, "Lecture en arrière"),
    Bouton(200, CM_LECTURE, "Lecture (espace)"),
    Bouton(201, CM_PAUSE, "Pause (espace)"),
    Bouton(204, CM_DEBUT, "Retour au début (origine)"),
    Bouton(205, CM_PAS_AVANT, "Avancer d'un pas (flèche droite)"),
    Separateur(10),
    Bouton(219, CM_TEMPS_DEBUT, "Choisir l'instant du début"),
    {TGenreGadget::Texte, 0, GADGET_DEBUT, 3, "Instant du début, en centièmes de seconde"},
    Separateur(10),
    Bouton(207, CM_PLUS_RAPIDE, "Plus rapide, ou pas plus grand après un pas à pas (flèche haut)"),
    Bouton(209, CM_VITESSE_NORMALE, "Vitesse normale, ou pas normal après un pas à pas"),
    Bouton(208, CM_PLUS_LENT, "Plus lent, ou pas plus petit après un pas à pas (flèche bas)"),
    Separateur(40),
    Bouton(218, CM_REGLAGES_DEFAUT, "Caméra et soleil aux réglages par défaut"),
    Separateur(10),
    Bouton(210, CM_ROTATION_GAUCHE, "Tourner la caméra vers la gauche"),
    Bouton(211, CM_ROTATION_DROITE, "Tourner la caméra vers la droite"),
    Separateur(10),
    Bouton(212, CM_ZOOM_PLUS, "Rapprocher la caméra"),
    Bouton(213, CM_ZOOM_MOINS, "Éloigner la caméra"),
    Separateur(10),
    Bouton(214, CM_DEPLACEMENT_HAUT, "Monter la caméra"),
    Bouton(215, CM_DEPLACEMENT_BAS, "Descendre la caméra"),
    Separateur(10),
    Bouton(216, CM_SOLEIL_GAUCHE, "Déplacer le soleil vers la gauche"),
    Bouton(217, CM_SOLEIL_DROITE, "Déplacer le soleil vers la droite"),
    Separateur(10),
};

constexpr TGadgetStatut Statut[] = {
    {GADGET_T, 10, "Temps présent de la démonstration, en centièmes de seconde"},
    {GADGET_V, 10, "Vitesse de lecture (1 : temps réel)"},
    {GADGET_PAS, 10, "Pas du pas à pas, en centièmes de seconde"},
};
}  // namespace

std::span<const TMenuDeroulant> MenuLecteur() { return Menu; }

const char* TexteCommande(unsigned id) {
  if (id == 0) return nullptr;
  for (const TMenuDeroulant& m : Menu)
    for (const TEntreeMenu& e : m.Entrees)
      if (e.Id == id) return e.Texte;
  return nullptr;
}

std::span<const TGadgetBarre> BarreLecteur() { return Barre; }

std::span<const TGadgetStatut> BarreStatutLecteur() { return Statut; }
