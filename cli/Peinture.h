#pragma once
// A sheet painted as the editor's window paints it, shared by paint and vignette.
#include <string>

class TFenCadre2;
class TFenDessin;

// Gives every sheet of the frame the width W and half as much height, as the frame does.
void DimensionneFeuilles(TFenCadre2& cadre, int largeur);

#ifdef TRAJ_AVEC_RENDU
// cli/PeinturePng.cpp: the sheet on a white image of W by W/2, through the Qt surface, written
// as a PNG whatever the name of the file, with the safety marks over it if asked; false when
// it can't be.
bool PeintPng(TFenDessin& feuille, int largeur, const std::string& chemin, bool alertes = false);
#endif
