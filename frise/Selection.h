#pragma once
// What the timeline does to the editor: an element chosen on it.
class TElt;
class TFenCadre2;

// Selects e as a click on its property bar does, its sheet brought to the front first; false
// when e lies on no sheet.
bool SelectionneElement(TFenCadre2& cadre, TElt* e);
