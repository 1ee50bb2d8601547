#pragma once
// The document's flight, built by the same generators as the player's, but into tracks of
// the caller's, with no scene, no music and nothing said: for the checks that look at the
// flight after each change, while the player keeps its own.
#include <array>

#include "demo/Trajectoire.h"
#include "model/Document.h"

using TPistesVol = std::array<TTrajectoire, NB_CV_MAX>;

// Each kite in use gets the keys of its track, in the order the player's scene lays them; a
// kite with no element gets none. The document is left as it was.
TPistesVol VolHorsScene();
