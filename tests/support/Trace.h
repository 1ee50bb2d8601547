#pragma once
// Builds kite tracks for tests on a sheet of 880 by 440 pixels, where one logical unit
// is 4 pixels and the logical origin is the pixel (448, 408).
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/elements/Derapage.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"
#include "support/Doubles.h"

struct TFeuilleTest {
  explicit TFeuilleTest(int num = 1) : fen(nullptr, nullptr, num) {
    fen.SetTailleClient(880, 440);
    fen.SetEchelle(dc);
  }
  TDCEnregistreur dc;
  TFenDessin fen;
};

// Appends a new element of class T at (x, y) to the track of kite `cv`.
template <class T, class... Champs>
T* Ajoute(TFenDessin& fen, int cv, int x, int y, Champs... champs) {
  auto* e = new T(TPoint(x, y), &fen, nullptr, &TabLElt[cv], champs...);
  TabLElt[cv].Append(e);
  return e;
}
