#include "files/Lignes.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

#include <langinfo.h>

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
// scanf's blanks: for single bytes, the C library's locales all have these six and no others.
constexpr bool EstBlanc(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

// strtof reads the decimal point of the current locale, from_chars only a '.'.
bool PointDecimal() {
  const char* point = nl_langinfo(RADIXCHAR);
  return point[0] == '.' && point[1] == '\0';
}

// The form the writer gives: a few digits, a point, no exponent. The digits as an integer
// below 2^24 and a power of ten up to 10^10 are exact floats, so one division rounds as
// strtof does, and faster than from_chars. False, reading nothing, for any other form.
bool LitDecimalCourt(const char*& debut, const char* fin, float& f) {
  constexpr float Puissance10[11] = {1e0f, 1e1f, 1e2f, 1e3f, 1e4f, 1e5f, 1e6f, 1e7f, 1e8f, 1e9f, 1e10f};
  std::uint32_t chiffres = 0;
  int decimales = 0;
  bool point = false, chiffre = false;
  const char* p = debut;
  for (; p != fin; ++p) {
    if (EstChiffre(*p)) {
      chiffres = chiffres * 10 + static_cast<std::uint32_t>(*p - '0');
      if (chiffres >= (1u << 24)) return false;
      decimales += point;
      chiffre = true;
    } else if (*p == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!chiffre || decimales > 10 || (p != fin && (*p == 'e' || *p == 'E'))) return false;
  f = static_cast<float>(chiffres) / Puissance10[decimales];
  debut = p;
  return true;
}

// What strtof reads at the front of `mot`, and how many characters it takes; false when it
// reads nothing.
bool LitStrtof(std::string_view mot, float& f, std::size_t& lus) {
  // strtof needs a terminated string: the word is copied, on the stack when it is short.
  char tampon[LONGUEUR_LIGNE_MAX + 1];
  std::string copie;
  const char* texte = tampon;
  if (mot.size() < sizeof tampon) {
    mot.copy(tampon, mot.size());
    tampon[mot.size()] = '\0';
  } else {
    copie.assign(mot);
    texte = copie.c_str();
  }
  char* finLue = nullptr;
  const float valeur = std::strtof(texte, &finLue);
  if (finLue == texte) return false;
  f = valeur;  // out of range gives infinity or 0, as %f does
  lus = static_cast<std::size_t>(finLue - texte);
  return true;
}
}  // namespace

void TLecteurChamps::SauteBlancs() {
  while (!Reste.empty() && EstBlanc(Reste.front())) Reste.remove_prefix(1);
}

bool TLecteurChamps::Mot(std::string_view& mot) {
  SauteBlancs();
  std::size_t n = 0;
  while (n < Reste.size() && !EstBlanc(Reste[n])) ++n;
  if (n == 0) return false;
  mot = Reste.substr(0, n);
  Reste.remove_prefix(n);
  return true;
}

bool TLecteurChamps::Mot(std::string& mot) {
  std::string_view lu;
  if (!Mot(lu)) return false;
  mot.assign(lu);
  return true;
}

bool TLecteurChamps::FinDeLigne(std::string& texte) {
  SauteBlancs();
  std::size_t n = Reste.size();
  while (n > 0 && EstBlanc(Reste[n - 1])) --n;
  if (n == 0) return false;
  texte.assign(Reste.substr(0, n));
  Reste.remove_prefix(Reste.size());
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

bool TLecteurChamps::PointEstC() {
  if (PointC < 0) PointC = PointDecimal() ? 1 : 0;
  return PointC == 1;
}

bool TLecteurChamps::Reel(float& f) {
  SauteBlancs();
  if (Reste.empty()) return false;
  const char* debut = Reste.data();
  const char* fin = debut + Reste.size();
  // The plain decimal forms go to from_chars, which reads them as strtof does but takes no
  // '+'. strtof keeps the rest: hex, inf and nan, what from_chars finds out of range (strtof
  // gives infinity or 0), and any locale whose decimal point is not '.'. A number holds no
  // blank, so from_chars stops within the word.
  const char* chiffres = debut + (*debut == '-' || *debut == '+' ? 1 : 0);
  if (chiffres != fin && (EstChiffre(*chiffres) || *chiffres == '.') &&
      !(*chiffres == '0' && chiffres + 1 != fin && (chiffres[1] == 'x' || chiffres[1] == 'X')) && PointEstC()) {
    float valeur = 0;
    const char* finLue = chiffres;
    bool lu = LitDecimalCourt(finLue, fin, valeur);
    if (!lu) {
      const auto resultat = std::from_chars(chiffres, fin, valeur);
      finLue = resultat.ptr;
      lu = resultat.ec == std::errc();
    }
    if (lu) {
      f = *debut == '-' ? -valeur : valeur;
      Reste.remove_prefix(static_cast<std::size_t>(finLue - debut));
      return true;
    }
  }
  std::size_t n = 0;
  while (n < Reste.size() && !EstBlanc(Reste[n])) ++n;
  std::size_t lus = 0;
  if (!LitStrtof(Reste.substr(0, n), f, lus)) return false;
  Reste.remove_prefix(lus);
  return true;
}
