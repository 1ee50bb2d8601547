#pragma once
// The demonstration drawn offscreen, as render draws it: shared by render and video.
#include <functional>
#include <string>

#include <QImage>

#include "scene/OptionsScene.h"

// What a command gets once the routine is read and its scene built: the music the routine
// names ("" when none), its end, and the picture at any time T in hundredths, as render
// draws it (null when it can't be drawn).
struct TImagesRoutine {
  std::string Musique;
  float Fin = 0;
  std::function<const QImage&(int t)> Image;
};

// Reads `routine`, builds its scene for `equipe` on an offscreen surface of that size (with an
// X server of its own when there is no display) and runs `travail`. Returns travail's code,
// or 1 with the message said when the routine or the scene can't be had.
int AvecImagesRoutine(const std::string& routine, int largeur, int hauteur, int equipe, const TOptionsScene& options,
                      const std::function<int(TImagesRoutine&)>& travail);
