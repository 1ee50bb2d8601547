#pragma once
// One finding of the safety checks, and its two written forms: the companion's line and the
// editor's French sentence.
#include <string>

enum class TGenreConstat { Proximite, Enroulement, Fenetre, Vitesse };  // in the order findings sort

struct TConstat {
  TGenreConstat Genre;
  int K1 = 0, K2 = -1;  // kites from 0; K2 only for the pairs, above K1
  int T1 = 0, T2 = 0;   // hundredths: the run, or for a wrap its last common hundredth twice
  int TMin = 0;         // proximity: the first hundredth of the smallest distance
  // In hundredths of their unit, as shown: centimetres for a distance, cm/s for a speed,
  // hundredths of a turn (signed, positive anticlockwise) for a wrap.
  long long Valeur = 0;  // smallest distance, highest speed, final wrap
  long long Max = 0;     // largest wrap reached
  bool Compte = true;    // counts as a conflict (a wrap may be only worth saying)
  auto operator<=>(const TConstat&) const = default;
};

// Findings in the order they are listed: first hundredth, kind, kites.
bool AvantConstat(const TConstat& a, const TConstat& b);

// "PROXIMITE 0 2 120 180 150 1.80", as the companion prints it, without the line feed.
std::string LigneConstat(const TConstat& c);
// "CV 1 et CV 3 à 1,80 m à 12,34 s", as the editor lists it (without the sheet).
std::string PhraseConstat(const TConstat& c);
// The time a finding is best shown at: the closest approach, the start of a run, a wrap's end.
int TempsMontre(const TConstat& c);

// A value in hundredths as "-1.05", or with a comma for the French sentences.
std::string Centiemes(long long valeur, char separateur = '.');
