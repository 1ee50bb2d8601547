#include "platform/Donnees.h"

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {
std::string& DossierChoisi() {
  static std::string dossier;
  return dossier;
}

std::vector<fs::path> Dossiers() {
  if (!DossierChoisi().empty()) return {DossierChoisi()};
  std::vector<fs::path> dossiers;
  if (const char* env = std::getenv("TRAJECTOIRES_DATA"); env && *env) dossiers.emplace_back(env);
  std::error_code erreur;
  // An installed program keeps its data in ../share/trajectoires; a built one runs from a
  // build folder a few levels under the checkout, whose data/ is above it.
  const fs::path exe = fs::read_symlink("/proc/self/exe", erreur);
  if (!erreur) {
    dossiers.push_back(exe.parent_path().parent_path() / "share" / "trajectoires");
    for (fs::path p = exe.parent_path(); !p.empty() && p != p.root_path(); p = p.parent_path())
      dossiers.push_back(p / "data");
  }
#ifdef TRAJ_DONNEES_SOURCE
  // Only for a program still in its build folder: an installed one has its own copy, and
  // must not lean on a checkout that may be gone.
  const std::string construction = TRAJ_DOSSIER_CONSTRUCTION;
  if (!erreur && exe.string().compare(0, construction.size(), construction) == 0)
    dossiers.emplace_back(TRAJ_DONNEES_SOURCE);
#endif
  return dossiers;
}
}  // namespace

void SetDossierDonnees(const std::string& dossier) { DossierChoisi() = dossier; }

std::string CheminDonnee(const std::string& nom) {
  std::error_code erreur;
  if (fs::is_regular_file(nom, erreur)) return nom;
  for (const fs::path& d : Dossiers())
    if (fs::is_regular_file(d / nom, erreur)) return (d / nom).string();
  return nom;
}
