#pragma once
// Writing a routine: the whole text is built in memory, then the file is written in one go.
#include <string>

// The open document as routine text: the TEAM line, the MUSIQUE line when a music file is
// set, then the lines of every element of kites 0 to nbCV-1, each kite in flight order.
std::string TexteRoutine();

// Sheets premiere to derniere as a routine of their own: each kite that has elements there
// starts with a POINT where it stood before them, the sheets are numbered from 1 and the
// earliest start time is 0. No TEAM or MUSIQUE line. A kite with nothing in the range has
// no line.
std::string TexteFeuilles(int premiere, int derniere);

// What a save says when its file can't be written.
inline constexpr const char* PROBLEME_ENREGISTREMENT =
    "Problème d'enregistrement : vérifiez \n que le fichier n'est pas en 'lecture seule'!!! ";

// Whether something stands at `chemin`: a save asks before it replaces it.
bool FichierExiste(const std::string& chemin);

// Writes `texte` to `chemin` as is. The text goes to `chemin` + ".tmp" first and takes the
// place of the file only once it is complete, so a failure leaves any earlier file whole and
// no partial one. An existing file that can't be written to, such as a read-only one, is
// refused and left as it is. False when anything fails.
bool EcritFichier(const std::string& chemin, const std::string& texte);
