#pragma once
// What the timeline does to the editor: an element chosen on it, and its end moved.
class TElt;
class TFenCadre2;

// Selects e as a click on its property bar does, its sheet brought to the front first; false
// when e lies on no sheet.
bool SelectionneElement(TFenCadre2& cadre, TElt* e);

// Whether the end of e can be dragged: its time can be typed in its bar, which is not so for
// an end a synchronisation, an even speed or a fixed duration sets. e's bar must be open (its sheet in front).
bool FinDeplacable(const TElt* e);
// A drag of e's end begins: the sheet's undo copy is taken, as a grabbing click on the sheet
// takes it. False, with nothing taken, when the end can't be dragged.
bool PrendFin(TElt* e);
// Moves the end of e to t as typing t in its bar does: a whole hundredth, within the times a
// routine takes, snapped to the beats and marks when "Aligner sur les temps" is on. False,
// with nothing done, when e is no longer an element of the document (an undo during the drag
// took it away) or its end can't be dragged.
bool DeplaceFin(TElt* e, double t);
