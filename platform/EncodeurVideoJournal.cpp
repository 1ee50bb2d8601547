#include "platform/EncodeurVideoJournal.h"

#include <fstream>

bool TEncodeurVideoJournal::Ouvre(const std::string& chemin, const TFormatFilm& format, std::string& erreur) {
  Chemin = chemin;
  Format = format;
  std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
  f << "film\n";
  if (!f) erreur = "impossible d'écrire « " + chemin + " »";
  return static_cast<bool>(f);
}

bool TEncodeurVideoJournal::AjouteImage(const unsigned char* rgba, int, std::string& erreur) {
  if (static_cast<int>(Images.size()) == EchecALImage) {
    erreur = "disque plein";
    return false;
  }
  Images.push_back(rgba[0] + 256 * rgba[1]);
  return true;
}

bool TEncodeurVideoJournal::AjouteSon(const float* stereo, int nb, std::string&) {
  Son.insert(Son.end(), stereo, stereo + 2 * nb);
  return true;
}

bool TEncodeurVideoJournal::Termine(std::string&) {
  Termine_ = true;
  return true;
}
