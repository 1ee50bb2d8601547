#pragma once
// The music: a file opened under a name, played from a position, stopped, closed.
// Every operation returns 0 on success and a non-zero code of the implementation otherwise.
#include <string>

class TSon {
public:
  virtual ~TSon() = default;
  virtual int Ouvrir(const std::string& fichier, const std::string& nom) = 0;
  virtual int Jouer(const std::string& nom, int depuisMs) = 0;
  virtual int Arreter(const std::string& nom) = 0;
  virtual int Fermer(const std::string& nom) = 0;
};

// No sound device: opening fails, so nothing is ever played.
class TSonMuet : public TSon {
public:
  static constexpr int ErreurPasDeSon = 1;
  int Ouvrir(const std::string&, const std::string&) override { return ErreurPasDeSon; }
  int Jouer(const std::string&, int) override { return ErreurPasDeSon; }
  int Arreter(const std::string&) override { return ErreurPasDeSon; }
  int Fermer(const std::string&) override { return ErreurPasDeSon; }
};

TSon& Son();
// Installs s (not owned); null brings back the silent one.
void SetSon(TSon* s);
