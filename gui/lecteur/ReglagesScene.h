#pragma once
// The 3D picture's switches, remembered across runs in the application's settings; a value
// that is missing or makes no sense gives its default.
#include "scene/OptionsScene.h"

struct TReglagesScene {
  TOptionsScene Options;
  double DureeTraines = TRAINES_DEFAUT;  // kept while the trails are off
};

TReglagesScene LitReglagesScene();
void EcritReglagesScene(const TReglagesScene& reglages);
