#pragma once
// What the painting of the element classes shares: symbol sizes, the pens of lines, the
// shift of the kites on paper, the switch to pixels, and the pattern of the elements flown
// along a line. Elements are drawn in pixels from points converted by LPtoDP, so that their
// symbols keep their size whatever the zoom.
#include <functional>

#include "model/Types.h"
#include "platform/DC.h"

class TElt;

// A size of px pixels on the screen, px * EchIE on paper.
int Pixels(int px);
bool EnImpression();
// The element has the selected look: it is the current element, or painted as part of the
// selected range.
bool Surligne(const TElt& e, bool selection);
// The pen of an element's line: dotted when highlighted, solid otherwise, solid and 4 wide
// on paper whatever the state.
TPen PlumeLigne(const TElt& e, bool surligne);
// Solid, one pixel, in the kite's colour: outlines of symbols and marks.
TPen PlumeCV(const TElt& e);
// The colour of a kite as text on its own colour.
TColor Complement(TColor c);
// On paper each kite is drawn 2 device units further right and down than the kite before
// it, so that tracks flown side by side stay apart. The shift does not grow with EchIE.
TPoint Decale(const TElt& e, TPoint p);
// Device mode: pixels from the top left corner of the drawing area.
void ModePixels(TDC& dc);
void Trait(TDC& dc, TPoint a, TPoint b);
// Coordinate by coordinate, towards zero.
TPoint Milieu(TPoint a, TPoint b);
// The rectangle of a symbol from (x - g, y - h) to (x + d, y + b).
TRect Autour(TPoint p, int g, int h, int d, int b);
// The device box of the element's line, from the previous end to `fin`, widened on each
// side; the end alone when the element has nothing before it.
TRect BoiteLigne(const TElt& e, const TPointf& fin, int g, int h, int d, int b);
// Selects a symbol's outline and inside: the kite's colour inside when plein, white
// otherwise. The white stock brush is selected again by FinSymbole.
void DebutSymbole(TDC& dc, const TElt& e, bool plein);
void FinSymbole(TDC& dc);
// The mark of an element flown with the kite turned away from its path: a kite's outline.
void ContourCV(TDC& dc, TPoint p);

// Draws, in device mode, what stands at the middle of an element's line.
using TSymbole = std::function<void(TDC& dc, TPoint milieu)>;
// The pattern of the elements flown along a line from the previous end to their own end:
// the line in `plume`, the symbol, the handle when `poignee`, the synchronisation numbers
// and the marks of a change of sheet. Nothing unless the element lies on sheet Feuille and
// has an element before it.
void PaintLigne(TElt& e, TDC& dc, int Feuille, const TPen& plume, bool poignee, const TSymbole& symbole);
// The pattern of the manoeuvres drawn as a symbol at their end, with the shift of paper:
// the symbol and the synchronisation numbers, nothing else.
void PaintSurPlace(TElt& e, TDC& dc, int Feuille, bool selection, const TSymbole& symbole);
