#include "demo/player/Clavier.h"

#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"

unsigned CommandeTouche(TToucheLecteur touche) {
  switch (touche) {
    case TToucheLecteur::Espace: {
      const int c = TFenApp::DerniereCommande;
      return c == CM_LECTURE || c == CM_ARRIERE ? CM_PAUSE : CM_LECTURE;
    }
    case TToucheLecteur::Gauche: return CM_PAS_ARRIERE;
    case TToucheLecteur::Droite: return CM_PAS_AVANT;
    case TToucheLecteur::Haut: return CM_PLUS_RAPIDE;
    case TToucheLecteur::Bas: return CM_PLUS_LENT;
    case TToucheLecteur::Origine: return CM_DEBUT;
  }
  return 0;
}
