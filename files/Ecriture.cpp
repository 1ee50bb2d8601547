#include "files/Ecriture.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "model/Document.h"
#include "model/Elt.h"

std::string TexteRoutine() {
  std::string texte = "TEAM   " + std::to_string(Team) + " \n";
  if (_FichierMusique[0] != '\0')
    texte += "MUSIQUE   " + std::string(_FichierMusique, strnlen(_FichierMusique, sizeof _FichierMusique)) + " \n";
  const int kites = std::min(nbCV, NB_CV_MAX);
  for (int i = 0; i < kites; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->Enregistrer(texte, 0, 0.0f);
  return texte;
}

bool EcritFichier(const std::string& chemin, const std::string& texte) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::path cible(chemin);
  // Through a link, the file it names is replaced, not the link.
  if (fs::is_symlink(cible, ec)) {
    fs::path lien = fs::weakly_canonical(cible, ec);
    if (!ec) cible = lien;
  }
  const bool existe = fs::exists(cible, ec);
  // The rename would replace a file whatever its own permissions: ask the file itself.
  // Opening to append changes nothing in it.
  if (existe && !std::ofstream(cible, std::ios::binary | std::ios::app)) return false;

  fs::path provisoire = cible;
  provisoire += ".tmp";
  {
    std::ofstream f(provisoire, std::ios::binary | std::ios::trunc);
    if (!f) return false;
    f.write(texte.data(), static_cast<std::streamsize>(texte.size()));
    f.close();
    if (!f) {
      fs::remove(provisoire, ec);
      return false;
    }
  }
  // A file written anew keeps the permissions of the one it replaces.
  if (existe) {
    const fs::file_status etat = fs::status(cible, ec);
    if (!ec) fs::permissions(provisoire, etat.permissions(), ec);
  }
  fs::rename(provisoire, cible, ec);
  if (ec) {
    std::error_code ignore;
    fs::remove(provisoire, ignore);
    return false;
  }
  return true;
}
