#include "session/FichiersRecents.h"

#include <algorithm>
#include <filesystem>

#include "model/Document.h"

void TFichiersRecents::Ajoute(const std::string& chemin) {
  if (chemin.empty()) return;
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
    if (!c.empty() && std::find(Chemins.begin(), Chemins.end(), c) == Chemins.end() &&
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
