#pragma once
// The installation's data (kite models, cloud backdrop): found in the current directory
// first, as the scene names them, and otherwise in the data folder of the installation,
// so that the program finds them wherever it is started from.
#include <string>

// The path to open for data file `nom`: "nom" itself when it is in the current directory,
// else the first data folder that holds it, else "nom" unchanged (the caller's "missing").
std::string CheminDonnee(const std::string& nom);

// The folders searched after the current directory, in order: $TRAJECTOIRES_DATA, the
// installation's share/trajectoires, a data/ folder beside or above the executable, and the
// source tree's. A folder set here replaces them all (empty: back to those).
void SetDossierDonnees(const std::string& dossier);
