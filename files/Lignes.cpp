#include "files/Lignes.h"

#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

std::optional<std::string> LitFichier(const std::string& chemin) {
  std::error_code erreur;
  if (!std::filesystem::is_regular_file(chemin, erreur)) return std::nullopt;
  const std::uintmax_t taille = std::filesystem::file_size(chemin, erreur);
  if (erreur || taille > TAILLE_FICHIER_MAX) return std::nullopt;
  std::ifstream f(chemin, std::ios::binary);
  if (!f) return std::nullopt;
  std::string contenu((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
  if (f.bad()) return std::nullopt;
  return contenu;
}

void DecoupeLignes(std::string_view contenu, const std::function<void(std::string_view)>& traite,
                   const std::function<void(int numero)>& tropLongue) {
  int numero = 0;
  while (!contenu.empty()) {
    const std::size_t fin = contenu.find('\n');
    std::string_view ligne = contenu.substr(0, fin);
    contenu.remove_prefix(fin == std::string_view::npos ? contenu.size() : fin + 1);
    ++numero;
    if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
    if (ligne.empty()) continue;
    if (ligne.size() > LONGUEUR_LIGNE_MAX)
      tropLongue(numero);
    else
      traite(ligne);
  }
}

namespace {
bool EstBlanc(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
}  // namespace

void TLecteurChamps::SauteBlancs() {
  while (!Reste.empty() && EstBlanc(Reste.front())) Reste.remove_prefix(1);
}

bool TLecteurChamps::Mot(std::string& mot) {
  SauteBlancs();
  std::size_t n = 0;
  while (n < Reste.size() && !EstBlanc(Reste[n])) ++n;
  if (n == 0) return false;
  mot.assign(Reste.substr(0, n));
  Reste.remove_prefix(n);
  return true;
}

bool TLecteurChamps::Entier(int& n) {
  SauteBlancs();
  const char* debut = Reste.data();
  const char* fin = debut + Reste.size();
  if (debut != fin && *debut == '+') ++debut;  // from_chars takes a minus sign only
  int valeur = 0;
  const auto [p, erreur] = std::from_chars(debut, fin, valeur);
  if (erreur != std::errc()) return false;  // no digits, or too large for an int
  n = valeur;
  Reste.remove_prefix(static_cast<std::size_t>(p - Reste.data()));
  return true;
}

bool TLecteurChamps::Reel(float& f) {
  SauteBlancs();
  if (Reste.empty()) return false;
  // strtof needs a terminated string; a field is short, so a copy of the next word will do.
  std::size_t n = 0;
  while (n < Reste.size() && !EstBlanc(Reste[n])) ++n;
  const std::string mot(Reste.substr(0, n));
  char* finLue = nullptr;
  errno = 0;
  const float valeur = std::strtof(mot.c_str(), &finLue);
  if (finLue == mot.c_str()) return false;
  f = valeur;  // out of range gives infinity or 0, as %f does
  Reste.remove_prefix(static_cast<std::size_t>(finLue - mot.c_str()));
  return true;
}
