#include "model/Nombres.h"

#include <cstdio>

std::string Gcvt(double valeur, int chiffres) {
  char tampon[64];
  std::snprintf(tampon, sizeof tampon, "%.*g", chiffres, valeur);
  return tampon;
}
