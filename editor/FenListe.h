#pragma once
// The strip under the sheet: the property bars of the active sheet's elements, one column,
// kite after kite, in track order, with a scroller in units of 20 by 17 pixels.
class TElt;
class TFenCadre2;

class TFenListe {
public:
  explicit TFenListe(TFenCadre2* cadre) : pFenCadre(cadre) {}

  // The strip's new size. Below 751 pixels of width the horizontal scroll bar shows; at 751
  // or more it hides and the strip goes back to its left edge.
  void EvSize(int largeur, int hauteur);
  // A click on the strip's free background shows where it is scrolled to.
  void EvLButtonDown();
  // Lays every open bar out and sets the vertical range to their height.
  void RetraceBD();
  // The same, then scrolls so that the bar of e stands in the middle of the strip.
  void ScrollBD(TElt* e);

  // Scrolls to (x, y) in units, within the ranges.
  void ScrollTo(int x, int y);
  // The mouse wheel, in eighths of a degree as the platform measures it (a notch is 120):
  // UNITES_PAR_CRAN units a notch, away from the user scrolling up or left. What a fine wheel
  // or a touch pad gives below a unit adds up until it makes one. With `deTravers` (Shift
  // held) the vertical wheel scrolls sideways; sideways only while the horizontal bar shows.
  // Lays the bars out again when the strip moved, and says so.
  bool Molette(int dx, int dy, bool deTravers);
  static constexpr int UNITES_PAR_CRAN = 3, CRAN = 120;

  TFenCadre2* pFenCadre;
  int Largeur = 0;
  int Hauteur = 0;
  bool BarreHorizontale = true;
  // The scroller: position and range in units, and the units in pixels.
  int XPos = 0, YPos = 0;
  int XRange = 40, YRange = 35;
  static constexpr int XUnit = 20, YUnit = 17;

private:
  // What the wheel gave short of a unit, in eighths of a degree times UNITES_PAR_CRAN.
  int ResteX = 0, ResteY = 0;
  // Places every open bar from the top; returns the height they take, and in yCible the
  // scroll position that centres e's bar (unchanged when e has none).
  int Place(TElt* e, int& yCible);
};
