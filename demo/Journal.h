#pragma once
// The scene's error log: a failed renderer call shows nothing on the screen, it adds one
// line "(step) NAME" to a text file that only grows.
#include <string>

// Where the log is: ../data/DXError.txt when the folder ../data exists beside the current
// directory, as when the program runs from its build or install folder; otherwise
// DXError.txt in the user's state folder ($XDG_STATE_HOME/trajectoires, by default
// ~/.local/state/trajectoires), made if need be, so that a record always has a place.
std::string CheminJournal();

// One record each, with the names of the device's codes, of the scene's, and of a failed
// query of an interface (1 is "S_FALSE"). A code outside the table gives "UNKNOWN !". A
// record that cannot be written is lost without harm to the caller.
void DXERROR_DirectDraw(const char* fichier, int n, long code);
void DXERROR_Direct3DRM(const char* fichier, int n, long code);
void DXERROR_Com(const char* fichier, int n, long code);
