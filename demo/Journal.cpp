#include "demo/Journal.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/ErreursRendu.h"

namespace {
void Enregistre(const char* fichier, int n, const char* nom) {
  char ligne[1024];
  const int longueur = std::snprintf(ligne, sizeof ligne, "(%d) %s\n", n, nom ? nom : "UNKNOWN !");
  if (longueur <= 0 || !fichier) return;
  // Opened for each record and closed at once: the file can be read between two records.
  if (std::FILE* f = std::fopen(fichier, "a")) {
    std::fwrite(ligne, 1, static_cast<std::size_t>(longueur), f);
    std::fclose(f);
  }
}
}  // namespace

std::string CheminJournal() {
  namespace fs = std::filesystem;
  std::error_code erreur;
  if (fs::is_directory("../data", erreur)) return "../data/DXError.txt";
  fs::path dossier;
  if (const char* etat = std::getenv("XDG_STATE_HOME"); etat && *etat)
    dossier = etat;
  else if (const char* maison = std::getenv("HOME"); maison && *maison)
    dossier = fs::path(maison) / ".local" / "state";
  else
    dossier = fs::temp_directory_path(erreur);
  dossier /= "trajectoires";
  fs::create_directories(dossier, erreur);
  return (dossier / "DXError.txt").string();
}

void DXERROR_DirectDraw(const char* fichier, int n, long code) { Enregistre(fichier, n, NomErreurDispositif(code)); }

void DXERROR_Direct3DRM(const char* fichier, int n, long code) { Enregistre(fichier, n, NomErreurScene(code)); }

void DXERROR_Com(const char* fichier, int n, long code) { Enregistre(fichier, n, code == 1 ? "S_FALSE" : nullptr); }
