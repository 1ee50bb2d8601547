#pragma once
// Writing a routine: the whole text is built in memory, then the file is written in one go.
#include <string>

// The open document as routine text: the TEAM line, the MUSIQUE line when a music file is
// set, then the lines of every element of kites 0 to nbCV-1, each kite in flight order.
std::string TexteRoutine();

// Writes `texte` to `chemin` as is. The text goes to `chemin` + ".tmp" first and takes the
// place of the file only once it is complete, so a failure leaves any earlier file whole and
// no partial one. An existing file that can't be written to, such as a read-only one, is
// refused and left as it is. False when anything fails.
bool EcritFichier(const std::string& chemin, const std::string& texte);
