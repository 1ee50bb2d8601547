#include "scene/Pilotes.h"

#include <cmath>
#include <numbers>

namespace {
// A standing adult's proportions, metres.
constexpr double HAUTEUR_MAINS = 1.1, ECART_MAINS = 0.25, AVANCE_MAINS = 0.35;
constexpr double HAUTEUR_HANCHES = 0.9, HAUTEUR_EPAULES = 1.45, HAUTEUR_TETE = 1.75, ECART_PIEDS = 0.15,
                 ECART_EPAULES = 0.2, RAYON_TETE = 0.12;

TVecteur3 Plus(const TVecteur3& a, const TVecteur3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
TVecteur3 Fois(const TVecteur3& a, float k) { return {a.x * k, a.y * k, a.z * k}; }
float Scalaire(const TVecteur3& a, const TVecteur3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
TVecteur3 Unitaire(const TVecteur3& a) {
  const float n = std::sqrt(Scalaire(a, a));
  return n > 0 ? Fois(a, 1 / n) : a;
}
TVecteur3 Vectoriel(const TVecteur3& a, const TVecteur3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
}  // namespace

float EnUnites(double metres, const TReglagesSecurite& reglages) {
  return static_cast<float>(metres / reglages.MetresParUnite());
}

TVecteur3 PositionPilote(int i, int nbCV, const TReglagesSecurite& reglages) {
  const float pas = EnUnites(reglages.Espacement, reglages);
  return {(static_cast<float>(i) - static_cast<float>(nbCV - 1) / 2) * pas, 0, -EnUnites(reglages.Ligne, reglages)};
}

TPaire MainsPilote(const TVecteur3& pieds, const TReglagesSecurite& reglages) {
  const float h = EnUnites(HAUTEUR_MAINS, reglages), e = EnUnites(ECART_MAINS, reglages),
              a = EnUnites(AVANCE_MAINS, reglages);
  return {Plus(pieds, {-e, h, a}), Plus(pieds, {e, h, a})};
}

TPaire BoutsAiles(const TVecteur3& position, const TOrientation& orientation) {
  const TVecteur3 z = Unitaire(orientation.Z);
  const TVecteur3 y = Unitaire(Plus(orientation.Y, Fois(z, -Scalaire(orientation.Y, z))));
  const TVecteur3 x = Vectoriel(y, z);
  const TVecteur3 b = BOUT_AILE_DROITE;
  const TVecteur3 commun = Plus(position, Plus(Fois(y, b.y), Fois(z, b.z)));
  return {Plus(commun, Fois(x, -b.x)), Plus(commun, Fois(x, b.x))};
}

std::vector<TVecteur3> SilhouettePilote(const TVecteur3& pieds, const TReglagesSecurite& r) {
  auto u = [&](double m) { return EnUnites(m, r); };
  const TVecteur3 hanches = Plus(pieds, {0, u(HAUTEUR_HANCHES), 0});
  const TVecteur3 epaules = Plus(pieds, {0, u(HAUTEUR_EPAULES), 0});
  const TVecteur3 cou = Plus(pieds, {0, u(HAUTEUR_TETE - 2 * RAYON_TETE), 0});
  const TPaire mains = MainsPilote(pieds, r);
  std::vector<TVecteur3> traits = {
      Plus(pieds, {-u(ECART_PIEDS), 0, 0}), hanches, Plus(pieds, {u(ECART_PIEDS), 0, 0}), hanches,
      hanches, cou,
      Plus(epaules, {-u(ECART_EPAULES), 0, 0}), Plus(epaules, {u(ECART_EPAULES), 0, 0}),
      Plus(epaules, {-u(ECART_EPAULES), 0, 0}), mains.Gauche,
      Plus(epaules, {u(ECART_EPAULES), 0, 0}), mains.Droite,
  };
  // The head: a loop of eight strokes in the row's plane.
  const TVecteur3 centre = Plus(pieds, {0, u(HAUTEUR_TETE - RAYON_TETE), 0});
  for (int k = 0; k < 8; ++k) {
    const double a0 = k * std::numbers::pi / 4, a1 = (k + 1) * std::numbers::pi / 4;
    traits.push_back(Plus(centre, {u(RAYON_TETE * std::cos(a0)), u(RAYON_TETE * std::sin(a0)), 0}));
    traits.push_back(Plus(centre, {u(RAYON_TETE * std::cos(a1)), u(RAYON_TETE * std::sin(a1)), 0}));
  }
  return traits;
}
