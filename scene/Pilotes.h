#pragma once
// Where the pilots stand and where their lines run, in the world's units (the sheet's logical
// units, y up, the kites about the plane z = 0, the pilots upwind of them at negative z).
#include <vector>

#include "platform/Rendu.h"
#include "securite/Reglages.h"

// A length in metres as world units.
float EnUnites(double metres, const TReglagesSecurite& reglages);

// The feet of the pilot of kite i (0 based) among nbCV: on the ground, in a row across the
// wind, kite 1 leftmost as the pilots see the sky, centred on x = 0, one line's length
// upwind of the window's plane.
TVecteur3 PositionPilote(int i, int nbCV, const TReglagesSecurite& reglages);

struct TPaire {
  TVecteur3 Gauche, Droite;
};

// The pilot's hands, holding the handles in front of the chest.
TPaire MainsPilote(const TVecteur3& pieds, const TReglagesSecurite& reglages);

// Where a kite model's lines are tied, in the model's own coordinates: its wing tips.
inline constexpr TVecteur3 BOUT_AILE_DROITE{4.0f, -1.3f, 0.5f};

// The two wing tips of a kite placed at `position` with `orientation`, its axes made as the
// renderer makes them (z along Z, y along Y squared to it, x = y x z).
TPaire BoutsAiles(const TVecteur3& position, const TOrientation& orientation);

// A pilot drawn as a stick figure: pairs of points, each pair one stroke (legs, body, arms,
// head), the arms ending at the hands.
std::vector<TVecteur3> SilhouettePilote(const TVecteur3& pieds, const TReglagesSecurite& reglages);
