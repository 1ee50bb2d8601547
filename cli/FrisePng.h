#pragma once
// The timeline's picture, through the Qt surface (cli/FrisePng.cpp).
#include <string>

#include "frise/Echelle.h"
#include "frise/Pistes.h"

#ifdef TRAJ_AVEC_RENDU
// The document's timeline as the dock draws it, without playhead, on a white image `largeur`
// wide, with the waveform of the WAV `musique` when it has one; written as a PNG. False when
// the image can't be written; `raison` tells why the music shows no waveform.
bool PeintFrisePng(const TFrise& frise, const TVueTemps& vue, int largeur, const std::string& musique,
                   const std::string& chemin, std::string& raison);
#endif
