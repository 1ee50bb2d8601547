#pragma once
// The ready-made team routines shipped with the data, and "&Nouveau d'après un modèle...".
#include <string>

class TFenDessin;

// The folder that holds them, found as the other data are (by its README.txt); empty when
// the installation has none.
std::string DossierModeles();

// Asks for one of them and opens a copy of it: untitled, so that saving asks for a name,
// and marked as changed, so that closing asks first.
void NouveauModele(TFenDessin& feuille);
