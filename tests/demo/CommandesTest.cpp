// The player's menu and control bar as the view builds them: every item in its place, with
// its exact text, bitmap and command.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "demo/player/Clavier.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"

namespace {

// One pop-up as "Title: id text | id text | - | ...", a separator as "-".
std::string Decrit(const TMenuDeroulant& m) {
  std::string s = std::string(m.Titre) + ":";
  for (const TEntreeMenu& e : m.Entrees)
    s += e.Id ? " " + std::to_string(e.Id) + " " + e.Texte + " |" : std::string(" - |");
  return s;
}

TEST(CommandesTest, MenuHoldsThreePopUpsWithTheirItemsInOrder) {
  const auto menu = MenuLecteur();
  ASSERT_EQ(menu.size(), 3u);
  EXPECT_EQ(Decrit(menu[0]),
            "&Reglage Lecture: 103 A&rrière | 100 &Lecture | 101 &Pause | 104 &Début |"
            " 105 P&as à pas Avant | 106 Pa&s à pas Arrière | 107 Plus rap&ide | 108 Plus &lent |"
            " 109 Vitesse normale |");
  EXPECT_EQ(Decrit(menu[1]),
            "&Scène: 110 Rotation &Gauche | 111 Rotation &Droite | 112 Zoom &Plus | 113 Zoom &Moins |"
            " 114 Déplacement &Haut | 115 Déplacement &Bas | 116 Soleil G&auche | 117 Soleil D&roite |"
            " 118 &Réglages par défaut | - | 140 &Traînées | 141 D&urée des traînées |"
            " 142 Pilotes et &lignes | 143 S&ol | 144 &Fenêtre du vent | - | 145 Caméra : publi&c |"
            " 146 Caméra : p&ilotes | 147 Caméra : &juge |");
  EXPECT_EQ(Decrit(menu[2]),
            "&Options: 130 &Temps Début | - | 120 Team N°&1 : Orvane | 121 Team N°&2 : Couleurs |"
            " 122 Team N°&3 : Tessel | 123 Team N°&4 : Révo | 124 Team N°&5  | - | 150 &Exporter une vidéo... |");
  EXPECT_STREQ(TexteCommande(CM_VITESSE_NORMALE), "Vitesse normale");
  EXPECT_EQ(TexteCommande(102), nullptr);
  EXPECT_EQ(TexteCommande(0), nullptr);  // a separator is no command
}

TEST(CommandesTest, ControlBarListsItsButtonsSeparatorsAndStartGadgetInOrder) {
  std::string s;
  for (const TGadgetBarre& g : BarreLecteur()) {
    switch (g.Genre) {
      case TGenreGadget::Bouton:
        s += "(" + std::to_string(g.Bitmap) + "," + std::to_string(g.Id) + ")";
        // Every button is a command of the menu.
        EXPECT_NE(TexteCommande(g.Id), nullptr) << g.Id;
        break;
      case TGenreGadget::Separateur:
        s += " |" + std::to_string(g.Largeur) + " ";
        break;
      case TGenreGadget::Texte:
        s += "[" + std::to_string(g.Id) + ":" + std::to_string(g.Largeur) + "]";
        break;
    }
  }
  EXPECT_EQ(s,
            "(206,106)(203,103)(200,100)(201,101)(204,104)(205,105) |10 (219,130)[4:3] |10 "
            "(207,107)(209,109)(208,108) |40 (218,118) |10 (210,110)(211,111) |10 (212,112)(213,113)"
            " |10 (214,114)(215,115) |10 (216,116)(217,117) |10 ");

  std::string statut;
  for (const TGadgetStatut& g : BarreStatutLecteur())
    statut += std::to_string(g.Id) + ":" + std::to_string(g.Largeur) + " ";
  EXPECT_EQ(statut, "0:10 1:10 2:10 ");
}

TEST(CommandesTest, SpacePausesWhatPlaysAndPlaysWhatDoesNot) {
  // The last transport command, and what space gives after it.
  const std::pair<unsigned, unsigned> cas[] = {
      {CM_LECTURE, CM_PAUSE},   {CM_ARRIERE, CM_PAUSE},  {CM_PAUSE, CM_LECTURE},
      {CM_DEBUT, CM_LECTURE},   {CM_PAS_AVANT, CM_LECTURE}, {CM_PAS_ARRIERE, CM_LECTURE},
  };
  for (const auto& [derniere, attendue] : cas) {
    TFenApp::DerniereCommande = static_cast<int>(derniere);
    EXPECT_EQ(CommandeTouche(TToucheLecteur::Espace), attendue) << derniere;
  }
  TFenApp::ReinitialiseStatiques();
  EXPECT_EQ(CommandeTouche(TToucheLecteur::Espace), CM_LECTURE);  // a new player is paused
  // The other keys give one command each, whatever was played last, and every one is the menu's.
  for (TToucheLecteur t : {TToucheLecteur::Gauche, TToucheLecteur::Droite, TToucheLecteur::Haut,
                           TToucheLecteur::Bas, TToucheLecteur::Origine})
    EXPECT_NE(TexteCommande(CommandeTouche(t)), nullptr);
  EXPECT_EQ(CommandeTouche(TToucheLecteur::Gauche), CM_PAS_ARRIERE);
  EXPECT_EQ(CommandeTouche(TToucheLecteur::Droite), CM_PAS_AVANT);
}

}  // namespace
