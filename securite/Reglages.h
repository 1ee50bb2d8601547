#pragma once
// The designer's safety numbers, which belong to the routine: the line length that gives the
// window its size in metres, the closest two kites may come, the most the lines may wrap
// round each other, the fastest a kite may fly, and the pilots' spacing on the ground.
#include <string>
#include <string_view>

class TLecteurChamps;

struct TReglagesSecurite {
  double Ligne = 30;        // m: the window's 100 units of height are a quarter circle of this radius
  double Distance = 3;      // m: two kites closer than this are in conflict
  double Enroulement = 1;   // turns the lines may wrap during the routine
  double Vitesse = 30;      // m/s
  double Espacement = 2;    // m between two pilots standing in a row

  // Metres in one logical unit of the sheets.
  double MetresParUnite() const;
  bool operator==(const TReglagesSecurite&) const = default;
  // Whether every number is one a flight can be checked with.
  bool Valides() const;
};

// The routine's settings, defaults until a routine sets them; reading a routine starts again
// from the defaults.
extern TReglagesSecurite ReglagesSecurite;

// Reads the rest of a `SECURITE` line into ReglagesSecurite; false, with nothing changed, when
// the numbers are missing or out of range.
bool LitLigneSecurite(TLecteurChamps& champs);
// Appends the `SECURITE` line when the settings differ from the defaults; nothing otherwise,
// so a routine that never set them is written as it always was.
void AjouteLigneSecurite(std::string& texte);
