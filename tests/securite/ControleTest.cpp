// The safety checks on flights laid key by key: what the routines of tests/data/securite
// can't easily say (a track's own sampling against the walk, a wrap clockwise, kites that
// leave and come back, the closest pair of the player).
#include <gtest/gtest.h>

#include <random>

#include "securite/Controle.h"
#include "securite/Echantillonneur.h"

namespace {

TPistesVol Vol(std::initializer_list<std::vector<std::pair<float, TVecteur3>>> kites) {
  TPistesVol pistes;
  int k = 0;
  for (const auto& cles : kites) {
    for (const auto& [t, p] : cles) pistes[k].PosePosition(t, p);
    ++k;
  }
  return pistes;
}

// A kite going round (cx, cy) at radius r from time t0, `tours` turns over `duree`, one key a
// hundredth: clockwise for a negative number of turns.
std::vector<std::pair<float, TVecteur3>> Cercle(float cx, float cy, float r, int t0, int duree, double tours) {
  std::vector<std::pair<float, TVecteur3>> cles;
  for (int i = 0; i <= duree; ++i) {
    const double a = 2 * 3.141592653589793 * tours * i / duree;
    cles.push_back({static_cast<float>(t0 + i),
                    {cx + r * static_cast<float>(std::cos(a)), cy + r * static_cast<float>(std::sin(a)), 0}});
  }
  return cles;
}

TEST(Echantillonneur, GivesTheTracksOwnSamplesAtEveryHundredth) {
  // Keys at uneven times, some between hundredths, some on them, two very close.
  std::mt19937 hasard(7);
  std::uniform_real_distribution<float> pas(0.01f, 40.0f), coord(-100, 100);
  TPistePosition piste;
  float t = 3.5f;
  for (int i = 0; i < 300; ++i) {
    piste.Ajoute(t, {coord(hasard), coord(hasard), coord(hasard)});
    t += i % 7 == 0 ? std::round(pas(hasard)) : pas(hasard);
  }
  TEchantillonneur e(piste);
  EXPECT_EQ(e.Debut(), 4);
  ASSERT_GT(e.Fin(), e.Debut());
  for (int h = e.Debut(); h <= e.Fin(); ++h) {
    const TVecteur3 a = e.Position(h), b = piste.Echantillonne(static_cast<float>(h));
    ASSERT_TRUE(a.x == b.x && a.y == b.y && a.z == b.z) << "au centième " << h;
  }
}

TEST(Controle, WrapsAreSignedAndEndWhereThePairStopsFlyingTogether) {
  const TReglagesSecurite r;
  // Kite 1 goes twice round kite 0 clockwise, then stays; kite 0 stops flying before it does.
  auto autour = Cercle(0, 50, 20, 0, 800, -2);
  autour.push_back({1200, autour.back().second});
  const auto constats = ControleVol(Vol({{{0, {0, 50, 0}}, {1000, {0, 50, 0}}}, autour}), 2, r);
  ASSERT_EQ(constats.size(), 1u);
  EXPECT_EQ(LigneConstat(constats[0]), "ENROULEMENT 0 1 1000 -2.00 -2.00");
  EXPECT_TRUE(constats[0].Compte);
}

TEST(Controle, AKiteAboveTheOtherLeavesTheDirectionAsItWas) {
  // Kite 1 flies through kite 0 and back the same way: at the crossing the direction is not
  // known, and the wrap must come back to nothing rather than count the passage. At 30 m of
  // line, 3 m is 6.37 units: closer from x = -6.37, 68.2 hundredths after the start.
  const TReglagesSecurite r;
  const auto constats = ControleVol(
      Vol({{{0, {0, 50, 0}}, {400, {0, 50, 0}}}, {{0, {-20, 50, 0}}, {100, {0, 50, 0}}, {200, {-20, 50, 0}}, {400, {-20, 50, 0}}}}),
      2, r);
  ASSERT_EQ(constats.size(), 1u);
  EXPECT_EQ(LigneConstat(constats[0]), "PROXIMITE 0 1 69 131 100 0.00");
}

TEST(Controle, RunsCloseAndTheirSmallestDistanceForEachStretch) {
  TReglagesSecurite r;
  r.Ligne = 200 / 3.141592653589793;  // one unit, one metre
  // Kite 1 comes within 1 m of kite 0 and goes (closer than 3 m while x < 2.995: from 77.8 to
  // 172.2), then jumps 10.2 m in a hundredth to stay 2 m away: a run for each stretch, each
  // with its own smallest distance, the first hundredth of it when it holds.
  const auto constats = ControleVol(Vol({{{0, {0, 50, 0}}, {1000, {0, 50, 0}}},
                                         {{0, {10, 50, 0}}, {100, {1, 50, 0}}, {150, {1, 50, 0}}, {250, {10, 50, 0}},
                                          {300, {10, 50, 0}}, {301, {0, 52, 0}}, {400, {0, 52, 0}}}}),
                                    2, r);
  std::vector<std::string> lignes;
  for (const auto& c : constats) lignes.push_back(LigneConstat(c));
  EXPECT_EQ(lignes, (std::vector<std::string>{"PROXIMITE 0 1 78 172 100 1.00", "VITESSE 1 300 301 1019.80",
                                             "PROXIMITE 0 1 301 400 301 2.00"}));
}

TEST(Controle, TheClosestPairIsAmongTheKitesFlyingThen) {
  TReglagesSecurite r;
  r.Ligne = 200 / 3.141592653589793;
  // Kites 0 and 2 are closest, but kite 2 has landed for good at 500.
  const auto pistes = Vol({{{0, {0, 50, 0}}, {1000, {0, 50, 0}}},
                           {{0, {5, 50, 0}}, {1000, {5, 50, 0}}},
                           {{0, {0, 51, 0}}, {500, {0, 51, 0}}}});
  TPairePlusProche p;
  ASSERT_TRUE(PairePlusProche(pistes.data(), 3, 100, r, p));
  EXPECT_EQ(p.K1, 0);
  EXPECT_EQ(p.K2, 2);
  EXPECT_EQ(p.Centimetres, 100);
  EXPECT_TRUE(TropProche(p.Centimetres, r));
  ASSERT_TRUE(PairePlusProche(pistes.data(), 3, 700, r, p));
  EXPECT_EQ(p.K2, 1);
  EXPECT_FALSE(TropProche(p.Centimetres, r));
  EXPECT_FALSE(PairePlusProche(pistes.data(), 1, 100, r, p));
}

TEST(Constat, FrenchSentencesShowTheSameFiguresAsTheLines) {
  TConstat c{TGenreConstat::Proximite, 0, 2, 1200, 1250, 1234, 180};
  EXPECT_EQ(PhraseConstat(c), "CV 1 et CV 3 à 1,80 m à 12,34 s");
  EXPECT_EQ(Centiemes(-5), "-0.05");
  EXPECT_EQ(Centiemes(1004, ','), "10,04");
}

}  // namespace
