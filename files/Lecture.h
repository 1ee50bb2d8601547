#pragma once
// Opening a routine: the document is emptied, then filled from the file's lines.
#include <string>
#include <string_view>

class TFenCadre2;

// Reads the routine at `chemin` into the document, through the frame's first sheet. Returns
// false, with the document emptied and a message box shown, when the file cannot be read.
// Nothing is solved: the times and speeds are those the file holds. `routine`, when given,
// tells whether the file looked like a routine at all: false when it is not empty and no
// line of it begins with a word of the format.
bool LitRoutine(TFenCadre2& cadre, const std::string& chemin, bool* routine = nullptr);
// The same, from the text of a routine already in memory.
void LitRoutineTexte(TFenCadre2& cadre, std::string_view texte);
