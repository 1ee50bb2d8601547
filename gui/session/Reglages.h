#pragma once
// What the program keeps between runs in its settings file (QSettings: by default
// ~/.config/trajectoires/trajectoires.conf): here, the list of recent routines.

// Reads the recent routines back and keeps the settings up to date with each change of the
// list. A value that is not a list of paths gives an empty list.
void SuitFichiersRecents();
