#include "scene/Cameras.h"

#include <algorithm>
#include <cmath>

#include "scene/Pilotes.h"

namespace {
// Metres: the eye of a standing pilot, a pilot's step behind the row, the judges' stand.
constexpr double HAUTEUR_YEUX = 1.7, RECUL_PILOTES = 1.0, RECUL_JUGE = 10.0, HAUTEUR_JUGE = 3.0;
// What the cameras of the ground look at: a little below the window's centre, so that the
// whole window shows from the judges' stand, with the ground at the bottom.
constexpr TVecteur3 CIBLE{0, 45, 0};
constexpr float DEMI_CHAMP_SOL = 1.2f;

// Turned by `angle` about the vertical axis, as the player turns its camera.
TVecteur3 Tourne(const TVecteur3& v, float angle) {
  const float c = std::cos(angle), s = std::sin(angle);
  return {v.x * c + v.z * s, v.y, -v.x * s + v.z * c};
}

TPoseCamera Regarde(const TVecteur3& position, const TVecteur3& cible, float angle) {
  TVecteur3 d{cible.x - position.x, cible.y - position.y, cible.z - position.z};
  const float n = std::sqrt(d.x * d.x + d.y * d.y + d.z * d.z);
  d = {d.x / n, d.y / n, d.z / n};
  return {Tourne(position, angle), Tourne(d, angle), DEMI_CHAMP_SOL};
}
}  // namespace

TPoseCamera PoseCamera(TCamera camera, const TReglagesSecurite& reglages, float angle, float distance,
                       float hauteur) {
  // Standing on the ground at the least, whatever the moves.
  const float monte = hauteur - HAUTEUR_CAMERA_DEFAUT;
  const float echelle = distance / DISTANCE_CAMERA_DEFAUT;
  const float rang = EnUnites(reglages.Ligne, reglages);
  switch (camera) {
    case TCamera::Pilotes: {
      const float y = std::max(EnUnites(HAUTEUR_YEUX, reglages) + monte, 0.1f);
      return Regarde({0, y, -(rang + EnUnites(RECUL_PILOTES, reglages)) * echelle}, CIBLE, angle);
    }
    case TCamera::Juge: {
      const float y = std::max(EnUnites(HAUTEUR_JUGE, reglages) + monte, 0.1f);
      return Regarde({0, y, -(rang + EnUnites(RECUL_JUGE, reglages)) * echelle}, CIBLE, angle);
    }
    case TCamera::Public:
    default:
      return {Tourne({0, hauteur, -distance}, angle), Tourne({0, 0, 1}, angle)};
  }
}
