#pragma once
// Whether the open routine holds changes that its file does not: what the caption marks,
// what closing asks about and what the recovery copies are made for. It lives beside the
// document, not in a window, so that the command-line companion reports it too.
//
// A change is seen two ways. After each event of the user, the routine's text is compared
// with the one seen last: whatever changes what a save would write marks the document,
// wherever it was made. What the text does not show (a sheet inserted or deleted, a kite
// added) is marked where it is done.
#include <functional>
#include <string>

// After an event of the user: the document is marked modified if its text has changed.
void VerifieModification();
// A change that the routine's text may not show.
void MarqueModifie();
// The document now matches its file (opened, saved) or is new: not modified.
void MarqueIntact();
bool DocumentModifie();

// Called each time the routine's text is seen to have changed, whether or not that marks the
// document (an opened routine is new text, but not modified). The returned number removes it.
int AjouteObservateurTexte(std::function<void()> observateur);
void RetireObservateurTexte(int numero);

// Called with the new state each time it changes. The returned number removes it.
int AjouteObservateurModification(std::function<void(bool modifie)> observateur);
void RetireObservateurModification(int numero);

// The name of a file without its folder, as messages name it.
std::string NomFichier(const std::string& chemin);
// The routine's name for the user: its file's name, "Sans titre" before it has one.
std::string NomDocument();
