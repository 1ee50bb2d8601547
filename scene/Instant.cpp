#include "scene/Instant.h"

#include "demo/D3DDemo.h"

void DessineInstant(TD3DDemo& scene, int t, const TOptionsScene& options) {
  scene.Options = options;
  scene.tDebut = t;
  scene.Mode = MODE_DEBUT;
  TD3DDemo::_Debut = true;
  scene.Go();
}
