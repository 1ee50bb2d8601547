#pragma once
// The music through SDL2_mixer. Each name holds one sound file, decoded whole at the device's
// format when it is opened, so that it can start from any millisecond: the mixer's own seek
// in WAV music lands on the whole second below the one asked.
// The file's path is handed over as it is, never cut out of an order, so blanks and accented
// letters in it do no harm.
#include <map>
#include <string>

#include "platform/Son.h"

struct Mix_Chunk;

class TSonSDL : public TSon {
public:
  static constexpr int ErreurPeripherique = 2;  // the audio device cannot be opened
  static constexpr int ErreurFichier = 3;       // the file cannot be read as sound
  static constexpr int ErreurNomInconnu = 4;    // no file is open under that name
  static constexpr int ErreurPosition = 5;      // the position lies outside the file
  static constexpr int ErreurLecture = 6;       // the mixer refuses to play

  TSonSDL() = default;
  TSonSDL(const TSonSDL&) = delete;
  TSonSDL& operator=(const TSonSDL&) = delete;
  // Frees every file and closes the device.
  ~TSonSDL() override;

  // Opens the device at the first call. A file already open under `nom` is closed first,
  // whatever becomes of the new one.
  int Ouvrir(const std::string& fichier, const std::string& nom) override;
  // Plays from `depuisMs` to the end, in place of whatever was playing.
  int Jouer(const std::string& nom, int depuisMs) override;
  int Arreter(const std::string& nom) override;
  int Fermer(const std::string& nom) override;

  bool Ouvert(const std::string& nom) const;
  // The music under `nom` is sounding now: not stopped, not played to its end.
  bool EnLecture(const std::string& nom) const;
  // Where the last successful Jouer started, in ms; -1 before any.
  int DernierDepartMs() const { return DernierDepart; }

private:
  bool OuvrePeripherique();
  // Silences the channel and lets go of the part that was playing.
  void Interromps();

  std::map<std::string, Mix_Chunk*> Musiques;
  Mix_Chunk* Extrait = nullptr;        // the part being played, a view into Source's samples
  const Mix_Chunk* Source = nullptr;   // the file it was taken from
  bool PeripheriqueOuvert = false;
  int DernierDepart = -1;
};
