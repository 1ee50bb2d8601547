#include "SonFichier.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {
std::uint32_t Mot32(const unsigned char* p) { return p[0] | p[1] << 8 | p[2] << 16 | std::uint32_t{p[3]} << 24; }
std::uint16_t Mot16(const unsigned char* p) { return static_cast<std::uint16_t>(p[0] | p[1] << 8); }

// The encodings that the player's decoder reads: PCM, float, both ADPCMs, A-law, mu-law, and
// the extensible header that carries one of them.
bool FormatConnu(std::uint16_t format) {
  for (std::uint16_t f : {0x0001, 0x0002, 0x0003, 0x0006, 0x0007, 0x0011, 0xFFFE})
    if (format == f) return true;
  return false;
}
}  // namespace

bool EstUnWav(const std::string& fichier) {
  std::error_code erreur;
  // A pipe or a device could hold the reader forever.
  if (!std::filesystem::is_regular_file(fichier, erreur)) return false;
  std::ifstream f(fichier, std::ios::binary);
  unsigned char entete[12];
  if (!f.read(reinterpret_cast<char*>(entete), sizeof entete)) return false;
  if (std::memcmp(entete, "RIFF", 4) != 0 || std::memcmp(entete + 8, "WAVE", 4) != 0) return false;
  bool format = false;
  // Chunk after chunk, each with its tag and size, padded to an even length.
  for (unsigned char bloc[8]; f.read(reinterpret_cast<char*>(bloc), sizeof bloc);) {
    const std::uint32_t taille = Mot32(bloc + 4);
    if (std::memcmp(bloc, "fmt ", 4) == 0) {
      unsigned char fmt[16];
      if (taille < sizeof fmt || !f.read(reinterpret_cast<char*>(fmt), sizeof fmt)) return false;
      const std::uint16_t canaux = Mot16(fmt + 2);
      format = FormatConnu(Mot16(fmt)) && canaux > 0 && Mot32(fmt + 4) > 0;
      if (!format) return false;
      f.seekg(taille - sizeof fmt + (taille & 1), std::ios::cur);
    } else if (std::memcmp(bloc, "data", 4) == 0) {
      // The data must follow the format and lie within the file.
      if (!format) return false;
      const std::streamoff debut = f.tellg();
      f.seekg(0, std::ios::end);
      return f.tellg() - debut >= static_cast<std::streamoff>(taille);
    } else {
      f.seekg(std::streamoff{taille} + (taille & 1), std::ios::cur);
    }
  }
  return false;
}

int TSonFichier::Ouvrir(const std::string& fichier, const std::string& nom) {
  Ouverts.erase(nom);
  if (!EstUnWav(fichier)) return ErreurFichier;
  Ouverts.insert(nom);
  return 0;
}

int TSonFichier::Fermer(const std::string& nom) { return Ouverts.erase(nom) ? 0 : ErreurNomInconnu; }
