#pragma once
// The track of one kite: its elements in flight order, its colour and number.
#include "model/Liste.h"
#include "platform/Types.h"

class TListeCV : public TListe {
public:
  // Num and IndexPremier are only meaningful after SetNumCoul: a list used as a plain
  // container, such as a figure's inner list, never reads them.
  void SetNumCoul(int num, TColor couleur) {
    Num = num;
    Couleur = couleur;
    IndexPremier = 0;
  }

  TColor Couleur;
  int Num = 0;           // the kite, 0 to 5
  int IndexPremier = 0;  // subtracted from a father's index while sheets are exported
};
