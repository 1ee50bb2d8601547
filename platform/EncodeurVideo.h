#pragma once
// The video encoder: pictures and sound in, a film file out. The real one is FFmpeg's
// libraries (gui/video); the core drives it through this and never sees a codec.
#include <string>

// The two kinds of film the program writes, chosen by the file's extension.
enum class TConteneur { Mp4, Webm };

struct TFormatFilm {
  TConteneur Conteneur = TConteneur::Mp4;
  int Largeur = 1280, Hauteur = 720;  // even
  int Fps = 30;
  bool AvecSon = false;  // one stereo stream at FREQUENCE_FILM Hz
};

// The sound's rate: both audio encoders take it, Opus takes only it.
inline constexpr int FREQUENCE_FILM = 48000;

class TEncodeurVideo {
public:
  virtual ~TEncodeurVideo() = default;
  // Creates `chemin` and its streams. False, with `erreur` in French, when the file can't be
  // written or an encoder is missing from the system's libraries.
  virtual bool Ouvre(const std::string& chemin, const TFormatFilm& format, std::string& erreur) = 0;
  // The next picture: Largeur x Hauteur pixels of 4 bytes R, G, B, A, lines `pas` bytes apart.
  virtual bool AjouteImage(const unsigned char* rgba, int pas, std::string& erreur) = 0;
  // The next `nb` stereo samples, interleaved floats in [-1, 1]; any count, the encoder
  // gathers them into its own blocks.
  virtual bool AjouteSon(const float* stereo, int nb, std::string& erreur) = 0;
  // Flushes the encoders and closes the file. The file is whole only after this returns true.
  virtual bool Termine(std::string& erreur) = 0;
};
