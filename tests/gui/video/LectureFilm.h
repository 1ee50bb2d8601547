#pragma once
// A film read back with the same libraries that wrote it: its streams, its frames counted, one
// frame as an image, its sound's length.
#include <string>

#include <QImage>

struct TFilmLu {
  bool Lisible = false;
  std::string CodecVideo, CodecSon;  // "" when there is no such stream
  int Largeur = 0, Hauteur = 0;
  int Images = 0;
  long long Echantillons = 0;  // decoded, at FrequenceSon
  int FrequenceSon = 0, CanauxSon = 0;
  int BlocSon = 0;  // the audio encoder's frame, in samples
  QImage Image;     // the frame asked for, in RGB32
};

// Reads the whole of `chemin`, keeping frame number `image` (from 0).
TFilmLu LitFilm(const std::string& chemin, int image);
