#pragma once
// A sheet printed for one pilot: his track stands out, the others fade to light grey, and
// each of his element ends carries its place in the pilots' notation and its time.
#include <string>
#include <vector>

#include "platform/Types.h"

class TDC;
class TFenDessin;

// What the page header adds for kite k (from 0): " - CV k+1", the number pilots know.
std::string EntetePilote(int k);

// While it lives, every kite but k is drawn in light grey; k < 0 changes nothing.
class TCouleursPilote {
public:
  explicit TCouleursPilote(int k);
  ~TCouleursPilote();
  TCouleursPilote(const TCouleursPilote&) = delete;
  TCouleursPilote& operator=(const TCouleursPilote&) = delete;

private:
  std::vector<TColor> Avant;
};

// The label of an end: "<70 ^10  12,5 s".
std::string EtiquettePilote(float x, float y, float t);
// The labels of kite k's element ends on `feuille`, in device pixels beside each end, the
// sheet's logical mapping put back afterwards.
void EtiquettesPilote(TDC& dc, TFenDessin& feuille, int k);
