#pragma once
// Menus and control bars as data: each window's logic lists its commands, and its view
// builds the widgets from the lists and sends every command id back to the logic.
#include <span>

// One item of a pop-up: a command, a separator (Id 0 and no sub-menu), or a sub-menu.
struct TEntreeMenu {
  unsigned Id;
  const char* Texte;
  std::span<const TEntreeMenu> SousMenu = {};
  const char* Raccourci = nullptr;  // the keys, as Qt writes them: "Ctrl+Shift+S"
};

// A pop-up of the menu bar; with a command Id, an item of the bar that is itself a command.
struct TMenuDeroulant {
  const char* Titre;
  std::span<const TEntreeMenu> Entrees;
  unsigned Id = 0;
  const char* Raccourci = nullptr;
};

// One gadget of a control bar, from left to right.
enum class TGenreGadget { Bouton, Separateur, Texte };
struct TGadgetBarre {
  TGenreGadget Genre;
  int Bitmap;   // Bouton: the picture's resource number
  unsigned Id;  // Bouton: the command; Texte: the gadget id
  int Largeur;  // Separateur: pixels; Texte: characters
  const char* Bulle = nullptr;  // Bouton and Texte: what it does, shown under the mouse
};
