#pragma once
// Where each of the player's cameras stands and where it looks, the player's camera moves
// applied on top: turning about the vertical axis through the window's centre, coming nearer
// or going away (a distance whose default is 215), going up or down (a height whose default
// is 54).
#include "platform/Rendu.h"
#include "scene/OptionsScene.h"
#include "securite/Reglages.h"

struct TPoseCamera {
  TVecteur3 Position;
  TVecteur3 Direction;  // unit length
  float DemiChamp = 0.5f;  // tangent of the horizontal half-angle of view
};

inline constexpr float DISTANCE_CAMERA_DEFAUT = 215.0f, HAUTEUR_CAMERA_DEFAUT = 54.0f;

// "Public": level, at the distance and height, looking through the vertical axis.
// "Pilotes": just behind the pilots' row, at eye height, looking downwind and up into the
// window. "Juge": 10 m behind the pilots and 3 m up, looking at the same point. Seen from the
// ground the window is wide: these two take in about a hundred degrees across. The
// distance scales how far from the axis the camera stands, the height is added to its own.
TPoseCamera PoseCamera(TCamera camera, const TReglagesSecurite& reglages, float angle, float distance,
                       float hauteur);
