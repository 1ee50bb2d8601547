#pragma once
// A kite's two key tracks, and the keys in the order they were laid, which is what a key
// dump shows: the tracks themselves keep them ordered by time.
#include <vector>

#include "demo/PistesCles.h"

struct TClePosee {
  bool Position;  // a position key, or else an orientation key
  float t;
  TVecteur3 P;       // position
  TOrientation O;    // orientation
};

struct TTrajectoire {
  void PosePosition(float t, const TVecteur3& p) {
    Positions.Ajoute(t, p);
    Ordre.push_back({true, t, p, {}});
  }
  void PoseOrientation(float t, const TOrientation& o) {
    Orientations.Ajoute(t, o);
    Ordre.push_back({false, t, {}, o});
  }

  TPistePosition Positions;
  TPisteOrientation Orientations;
  std::vector<TClePosee> Ordre;
};
