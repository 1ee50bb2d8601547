#pragma once
// The wind window as the sheets draw it, for the sky of the 3D scene: its edge (-100 to 100
// across, 0 to 100 high) and its quarter lines (x = -50, 0, 50 and y = 50), in the plane
// z = 0, as pairs of points, one pair per stroke.
#include <vector>

#include "platform/Rendu.h"

std::vector<TVecteur3> TraitsFenetre();
