#pragma once
// The beat grid of a tempo, the tempo found from taps, and the snapping of a time to the
// nearest beat or mark.
#include <cstddef>
#include <vector>

#include "frise/Tempo.h"

struct TBattement {
  double T = 0;
  long long Numero = 0;  // from the first beat, which is 0; negative before it
  bool Fort = false;     // every fourth beat, from the first
};

// The beats from debut to fin, both included; none without a tempo, or when there would be
// more than max (the grid is then too dense to be of use).
std::vector<TBattement> Battements(const TTempo& tempo, double debut, double fin, std::size_t max = 20000);

// Tap tempo: the taps of one series give the mean of their intervals once there are four.
class TTapeur {
public:
  // A pause longer than this starts a new series, as does a tap far out of the rhythm.
  static constexpr double ECART_MAX = 200;  // hundredths
  static constexpr int TAPES_MIN = 4;
  // One tap at t; true, with `tempo` set, when the series now gives one.
  bool Tape(double t, TTempo& tempo);
  void Oublie() { Tapes.clear(); }
  std::size_t Nombre() const { return Tapes.size(); }

private:
  std::vector<double> Tapes;
};

// The nearest beat of the tempo or mark to t within `tolerance` pixels at the given scale;
// t itself when there is none that close.
double Aligne(double t, const TTempo& tempo, const std::vector<TRepere>& reperes, double pixelsParCentieme,
              double tolerance = 5);

// "Aligner sur les temps": whether a time typed in a property bar snaps to the nearest beat or
// mark, within the pixels of Aligne at the timeline's present scale.
struct TAlignement {
  bool Actif = false;
  double PixelsParCentieme = 0.1;
};
extern TAlignement Alignement;
// A time typed in a bar, snapped to the routine's beats and marks when the option is on.
float TempsAligne(float t);
