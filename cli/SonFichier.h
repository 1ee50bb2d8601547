#pragma once
// The companion's music: it plays nothing, but opens a file only when it is there and reads as
// a WAV, so that what the demonstration says of the music is true.
#include <set>
#include <string>

#include "platform/Son.h"

class TSonFichier : public TSon {
public:
  static constexpr int ErreurFichier = 1;
  static constexpr int ErreurNomInconnu = 2;

  int Ouvrir(const std::string& fichier, const std::string& nom) override;
  int Jouer(const std::string& nom, int) override { return Connu(nom); }
  int Arreter(const std::string& nom) override { return Connu(nom); }
  int Fermer(const std::string& nom) override;

private:
  int Connu(const std::string& nom) const { return Ouverts.count(nom) ? 0 : ErreurNomInconnu; }
  std::set<std::string> Ouverts;
};

// The file is a RIFF WAVE whose format a decoder can take, with its sound data inside the file.
bool EstUnWav(const std::string& fichier);
