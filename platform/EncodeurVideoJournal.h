#pragma once
// An encoder that writes nothing but a marker file and keeps what it was given: the times of
// the pictures (read from their first pixel, where the test's drawing puts them) and every
// sound sample. It can be told to fail at a given picture.
#include <vector>

#include "platform/EncodeurVideo.h"

class TEncodeurVideoJournal : public TEncodeurVideo {
public:
  bool Ouvre(const std::string& chemin, const TFormatFilm& format, std::string& erreur) override;
  bool AjouteImage(const unsigned char* rgba, int pas, std::string& erreur) override;
  bool AjouteSon(const float* stereo, int nb, std::string& erreur) override;
  bool Termine(std::string& erreur) override;

  std::string Chemin;
  TFormatFilm Format;
  std::vector<int> Images;  // the first pixel's R + 256 G of each picture
  std::vector<float> Son;
  bool Termine_ = false;
  int EchecALImage = -1;  // the index of the picture refused; -1: none
};
