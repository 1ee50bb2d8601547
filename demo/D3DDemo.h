#pragma once
// The demonstration scene. What it holds for the flight: one generator and one pair of key
// tracks per kite, which the elements' DirectX fill and playback samples.
#include "demo/CV.h"
#include "model/Document.h"

class TD3DDemo {
public:
  TD3DDemo() {
    for (int i = 0; i < NB_CV_MAX; ++i) TabCV[i].Trajectoire(&Trajectoires[i]);
  }
  TD3DDemo(const TD3DDemo&) = delete;
  TD3DDemo& operator=(const TD3DDemo&) = delete;

  CV TabCV[NB_CV_MAX];
  TTrajectoire Trajectoires[NB_CV_MAX];
};

// The generator of kite `num` in the running scene, or null when there is none.
inline CV* CVDeLaScene(int num) {
  if (!Globals.pD3DDemo || num < 0 || num >= NB_CV_MAX) return nullptr;
  return &Globals.pD3DDemo->TabCV[num];
}
