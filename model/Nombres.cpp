#include "model/Nombres.h"

#include <charconv>

void AjouteGcvt(std::string& texte, double valeur, int chiffres) {
  // to_chars with a precision writes what printf's %.*g writes, in the C locale, faster.
  char tampon[64];
  const auto [fin, erreur] = std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::general, chiffres);
  if (erreur == std::errc()) texte.append(tampon, fin);
}

std::string Gcvt(double valeur, int chiffres) {
  std::string texte;
  AjouteGcvt(texte, valeur, chiffres);
  return texte;
}
