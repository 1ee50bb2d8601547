#include "session/FichiersRecents.h"

#include <algorithm>
#include <filesystem>

#include "model/Document.h"

namespace {
// A path of the list is whole, so that it opens from wherever the program was started.
bool Admissible(const std::string& chemin) {
  return !chemin.empty() && chemin.find('\0') == std::string::npos && std::filesystem::path(chemin).is_absolute();
}
}  // namespace

void TFichiersRecents::Ajoute(const std::string& cheminDonne) {
  if (cheminDonne.empty()) return;
  std::error_code erreur;
  const std::filesystem::path absolu = std::filesystem::absolute(cheminDonne, erreur);
  const std::string chemin = erreur ? cheminDonne : absolu.lexically_normal().string();
  if (!Admissible(chemin)) return;
  std::erase(Chemins, chemin);
  Chemins.insert(Chemins.begin(), chemin);
  if (Chemins.size() > NB_FICHIERS_RECENTS) Chemins.resize(NB_FICHIERS_RECENTS);
  Change();
}

void TFichiersRecents::Efface() {
  Chemins.clear();
  Change();
}

void TFichiersRecents::Remplace(const std::vector<std::string>& chemins) {
  Chemins.clear();
  for (const std::string& c : chemins)
    if (Admissible(c) && std::find(Chemins.begin(), Chemins.end(), c) == Chemins.end() &&
        Chemins.size() < NB_FICHIERS_RECENTS)
      Chemins.push_back(c);
  Change();
}

std::vector<std::string> TFichiersRecents::Presents() const {
  std::vector<std::string> presents;
  for (const std::string& c : Chemins) {
    std::error_code erreur;
    if (std::filesystem::is_regular_file(c, erreur)) presents.push_back(c);
  }
  return presents;
}

void TFichiersRecents::Change() {
  if (Observateur) Observateur();
}

namespace {
TFichiersRecents& Liste() {
  static TFichiersRecents liste;
  return liste;
}

void Reinitialise() {
  Liste().Observateur = nullptr;
  Liste().Efface();
}

[[maybe_unused]] const bool Enregistre = (EnregistreReinitialisation(Reinitialise), true);
}  // namespace

TFichiersRecents& FichiersRecents() { return Liste(); }
