#pragma once
// The routines last opened or saved, newest first, for "Fichiers &récents". The list is
// kept by the window's settings between runs; here is only what it holds and how it moves.
#include <functional>
#include <string>
#include <vector>

inline constexpr std::size_t NB_FICHIERS_RECENTS = 10;

class TFichiersRecents {
public:
  // chemin, made whole, goes to the front; an older place of the same path goes, and the
  // oldest beyond ten is forgotten.
  void Ajoute(const std::string& chemin);
  void Efface();
  // The list as kept, e.g. read back from the settings: what is not a whole path and
  // repeated paths are dropped, and no more than ten are taken.
  void Remplace(const std::vector<std::string>& chemins);
  const std::vector<std::string>& Tous() const { return Chemins; }
  // Those still on disk, in order: the menu hides the others.
  std::vector<std::string> Presents() const;

  // Called after each change of the list.
  std::function<void()> Observateur;

private:
  void Change();
  std::vector<std::string> Chemins;
};

// The one list of the program.
TFichiersRecents& FichiersRecents();
