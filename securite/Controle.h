#pragma once
// The safety checks of a flight: kites too close, lines wrapped, kites out of the window,
// kites too fast. The flight is sampled at every whole hundredth from 0 to the end of the
// last track, each kite only while it has a track, as the player samples it.
//
// Distances, speeds and wraps are compared as they are shown, to the hundredth of their unit:
// a pair shown at 3.00 m is not closer than 3 m, whatever digits the arithmetic carried.
#include <string>
#include <vector>

#include "demo/VolHorsScene.h"
#include "securite/Constat.h"
#include "securite/Reglages.h"

// Every finding, in the order they are listed (AvantConstat).
std::vector<TConstat> ControleVol(const TPistesVol& pistes, int nbCV, const TReglagesSecurite& reglages);

// The two kites closest to each other at time t of the player, among those that have a track
// then, and their distance in metres; false when fewer than two kites fly.
struct TPairePlusProche {
  int K1 = -1, K2 = -1;
  double Metres = 0;
  long long Centimetres = 0;
  TVecteur3 P1, P2;
};
bool PairePlusProche(const TTrajectoire* pistes, int nbCV, float t, const TReglagesSecurite& reglages,
                     TPairePlusProche& paire);
// "Distance mini : 1,80 m (CV 1 – CV 3)", as the player's status bar shows it.
std::string TexteDistanceMini(const TPairePlusProche& paire);
// Whether a distance in centimetres is closer than the settings allow.
bool TropProche(long long centimetres, const TReglagesSecurite& reglages);
