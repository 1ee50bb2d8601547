// What each control of the bars is for, as the view shows it under the mouse.
#include "editor/bars/BD.h"

std::string TBD::Bulle(int id) const {
  switch (id) {
    case IDC_NOM: return "Élément et son numéro, sur la couleur du cerf-volant ; un clic le sélectionne";
    case IDC_CONTRAINTE: return "Ce qui est fixé pour cet élément ; un clic change de contrainte";
    case IDC_X: return "Abscisse du point d'arrivée";
    case IDC_Y: return "Ordonnée du point d'arrivée";
    case IDC_T: return "Temps d'arrivée, en centièmes de seconde";
    case IDC_V: return "Vitesse sur l'élément";
    case IDC_GAUCHE: return "Côté de la figure ; un clic passe de droite à gauche";
    case IDC_DUREE: return "Durée, en centièmes de seconde";
    case IDC_ANGLE: return "Angle de rotation, en degrés";
    case IDC_TYPE_ARC: return "Ce que garde l'arc quand on déplace sa fin : rayon, angle ou les deux ; un clic change";
    case IDC_TYPE_POSE: return "Pointe sur laquelle le cerf-volant est posé ; un clic change";
    case IDC_Z: return "Hauteur du point d'arrivée";
    case IDC_VECTEUR_Z: return "Axe z du cerf-volant à l'arrivée : composante x";
    case IDC_VECTEUR_Z + 1: return "Axe z du cerf-volant à l'arrivée : composante y";
    case IDC_VECTEUR_Z + 2: return "Axe z du cerf-volant à l'arrivée : composante z";
    case IDC_VECTEUR_Y: return "Axe y du cerf-volant à l'arrivée : composante x";
    case IDC_VECTEUR_Y + 1: return "Axe y du cerf-volant à l'arrivée : composante y";
    case IDC_VECTEUR_Y + 2: return "Axe y du cerf-volant à l'arrivée : composante z";
    case IDC_TRANSFORMATION: return "Symétrie avec laquelle la figure est placée ; un clic change";
    case IDC_ANGLE_CUMULE: return "Angle ramené à un tour, en degrés";
    case IDC_ANGLE_REVO: return "Angle de révolution, en degrés";
    default: return {};
  }
}
