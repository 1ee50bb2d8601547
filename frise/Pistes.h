#pragma once
// The routine laid out in time: one lane per kite, each element a block from the end of the
// element before it to its own end, and the sheets as bands from the tabs' times.
#include <string>
#include <vector>

#include "platform/Types.h"

class TElt;

struct TBloc {
  const TElt* Elt = nullptr;
  int Index = 0;    // in its kite's track, the start point being 0
  int Feuille = 0;  // the sheet it is drawn on
  float Debut = 0, Fin = 0;
  std::string Nom;  // short name and number, as its property bar shows them
  int Synchro = 0;  // the synchronisation number at its end, 0 when it has none
  bool Duree = false;  // a manoeuvre or a figure: a duration of its own
};

struct TPiste {
  int Cv = 0;
  TColor Couleur;
  std::vector<TBloc> Blocs;  // in flight order, so in time order
};

struct TBandeFeuille {
  int Feuille = 0;
  float Debut = 0, Fin = 0;
};

struct TFrise {
  std::vector<TPiste> Pistes;
  std::vector<TBandeFeuille> Feuilles;
  float Debut = 0;       // the earliest start of a kite
  float Fin = 0;         // the latest end
  float FinRoutine = 0;  // the earliest end of a kite: where the player stops
  bool Vide() const;
};

// The short name of an element and its number, "Seg 12".
std::string NomCourt(const TElt& e);
// The timeline of the document's kites.
TFrise ConstruitFrise();
// The block of an element of the timeline, or null.
const TBloc* BlocDe(const TFrise& frise, const TElt* e);
