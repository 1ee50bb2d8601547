#pragma once
// Reading a routine or figure file: the whole file is read once into memory, then cut into
// lines, and each line's fields are scanned the way the format's readers expect.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// A line of the format holds at most this many characters.
inline constexpr std::size_t LONGUEUR_LIGNE_MAX = 255;

// The whole content of a file, or nothing when it cannot be opened. Only a regular file of
// at most TAILLE_FICHIER_MAX bytes is read: a name in a routine may point anywhere, and a
// device or a huge file must not hang or exhaust the program.
inline constexpr std::uintmax_t TAILLE_FICHIER_MAX = 256u << 20;
std::optional<std::string> LitFichier(const std::string& chemin);

// Hands each line of `contenu` to `traite`, in order: a line ends at a line feed, a carriage
// return before it is dropped, an empty line is skipped, the last line needs no line feed.
// A line longer than LONGUEUR_LIGNE_MAX goes to `tropLongue` (with its number from 1)
// instead: the format cannot hold it, so it is not read at all rather than read in part.
void DecoupeLignes(std::string_view contenu, const std::function<void(std::string_view)>& traite,
                   const std::function<void(int numero)>& tropLongue);

// Reads blank-separated fields from the front of a line, as scanf's %s, %d and %f do. Each
// read returns false, and reads nothing, when the field is missing or is not a number that
// fits its type.
class TLecteurChamps {
public:
  explicit TLecteurChamps(std::string_view ligne) : Reste(ligne) {}
  bool Mot(std::string& mot);
  // The same, without a copy: the word stays in the line read.
  bool Mot(std::string_view& mot);
  // Everything left on the line, less the blanks around it: a name that may hold blanks.
  bool FinDeLigne(std::string& texte);
  bool Entier(int& n);
  bool Reel(float& f);

private:
  void SauteBlancs();
  // Whether the locale's decimal point is '.', asked once per line.
  bool PointEstC();
  std::string_view Reste;
  int PointC = -1;  // -1: not asked yet
};
