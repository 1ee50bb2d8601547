#pragma once
// What the routine keeps of its music's rhythm: a tempo (beats per minute and the time of the
// first beat) and named marks. Times are in hundredths of a second, as every time of a routine.
#include <cstddef>
#include <string>
#include <vector>

class TLecteurChamps;

inline constexpr double TEMPO_MAX = 400;  // beats per minute: beyond, no music a kite flies to

struct TTempo {
  double Bpm = 0;  // 0: no tempo
  double T0 = 0;   // the first beat, in hundredths
  bool Defini() const { return Bpm > 0; }
  // Hundredths between two beats; only for a tempo that is set.
  double Periode() const { return 6000.0 / Bpm; }
  bool operator==(const TTempo&) const = default;
};

struct TRepere {
  float T = 0;
  std::string Nom;
  bool operator==(const TRepere&) const = default;
};

// The routine's tempo and marks, none until a routine sets them; reading a routine starts
// again from none.
extern TTempo Tempo;
extern std::vector<TRepere> Reperes;
void VideRythme();

// The marks as the timeline edits them; an index out of range changes nothing and gives false.
// A new mark is named after its rank, "Repère 3".
void AjouteRepere(double t);
// To t, a whole hundredth within the times a routine may hold.
bool DeplaceRepere(std::size_t i, double t);
// A name is one line of a routine: line breaks become blanks, and it keeps 200 characters.
bool RenommeRepere(std::size_t i, const std::string& nom);
bool SupprimeRepere(std::size_t i);

// Whether bpm is a tempo a routine may hold: a number above 0 and at most TEMPO_MAX.
bool TempoAdmis(double bpm);

// The rest of a `TEMPO BPM T0` line into Tempo; false, with nothing changed, when it is not
// a tempo one may beat.
bool LitLigneTempo(TLecteurChamps& champs);
// The rest of a `REPERE T NAME` line appended to Reperes; false when the time is unreadable.
bool LitLigneRepere(TLecteurChamps& champs);
// Appends the `TEMPO` line and one `REPERE` line per mark, each only when there is one, so a
// routine without them is written as it always was.
void AjouteLignesRythme(std::string& texte);
