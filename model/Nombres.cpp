#include "model/Nombres.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

// 10^0 to 10^19, all that fit in 64 bits.
constexpr std::uint64_t Puissance10[20] = {
    1ull, 10ull, 100ull, 1000ull, 10000ull, 100000ull, 1000000ull, 10000000ull, 100000000ull, 1000000000ull,
    10000000000ull, 100000000000ull, 1000000000000ull, 10000000000000ull, 100000000000000ull, 1000000000000000ull,
    10000000000000000ull, 100000000000000000ull, 1000000000000000000ull, 10000000000000000000ull};

// The n digits of q at s, with a point after the first `avantPoint` when there are more;
// the end of what was written. Digit by digit: a copy through a loop became a slow string
// instruction.
char* EcritChiffres(char* s, std::uint64_t q, int n, int avantPoint) {
  char* fin = s + n + (avantPoint < n ? 1 : 0);
  char* p = fin;
  for (int i = n - 1; i >= 0; --i, q /= 10) {
    *--p = static_cast<char>('0' + q % 10);
    if (i == avantPoint) *--p = '.';
  }
  return fin;
}

// `n`, at most 8, zeros at s. The buffer has room for 8 whatever n is.
char* EcritZeros(char* s, int n) {
  std::memcpy(s, "00000000", 8);
  return s + n;
}

// %.*g of a float's exact value, by integer arithmetic, for the values a routine holds:
// to_chars with a precision takes a general path several times slower, and a routine
// writes four or five numbers a line. False, with nothing written, for what it leaves to
// to_chars: values that are no float, too small or too large, or more than 9 digits.
bool GcvtFloat(double valeur, int chiffres, char*& sortie) {
  if (chiffres < 1 || chiffres > 9 || !std::isfinite(valeur)) return false;
  const float f = static_cast<float>(valeur);
  if (static_cast<double>(f) != valeur) return false;
  if (valeur == 0) {
    if (std::signbit(valeur)) *sortie++ = '-';
    *sortie++ = '0';
    return true;
  }
  std::uint32_t bits = 0;
  std::memcpy(&bits, &f, sizeof bits);
  const int champExposant = static_cast<int>((bits >> 23) & 0xff);
  if (champExposant == 0) return false;  // subnormal
  const std::uint64_t m = (bits & 0x7fffff) | 0x800000;
  const int e = champExposant - 150;  // |f| = m * 2^e, and 2^(e+23) <= |f| < 2^(e+24)
  if (e > 39) return false;

  // E, the decimal exponent of |f|, starts at floor(log10(2^(e+23))): right, or one short.
  int E = ((e + 23) * 78913) >> 18;
  std::uint64_t q = 0;  // |f| * 10^(chiffres-1-E) = q + reste / diviseur
  for (int essai = 0;; ++essai) {
    const int k = chiffres - 1 - E;
    std::uint64_t reste = 0, diviseur = 1;
    if (k >= 0) {
      if (k > 11) return false;
      const std::uint64_t n = m * Puissance10[k];  // below 2^24 * 10^11 < 2^61
      if (e >= 0) {
        if (n > (UINT64_MAX >> e)) return false;
        q = n << e;
      } else {
        if (-e > 63) return false;
        diviseur = 1ull << -e;
        q = n >> -e;
        reste = n & (diviseur - 1);
      }
    } else {
      const int j = -k;
      if (j > 19) return false;
      std::uint64_t n = m;
      diviseur = Puissance10[j];
      if (e >= 0)
        n <<= e;  // below 2^63
      else if (-e > 63 || diviseur > (UINT64_MAX >> -e))
        return false;
      else
        diviseur <<= -e;
      q = n / diviseur;
      reste = n % diviseur;
    }
    if (q >= Puissance10[chiffres]) {
      if (essai > 0) return false;
      ++E;
      continue;
    }
    if (q < Puissance10[chiffres - 1]) return false;
    // To nearest, ties to even, as printf rounds the exact value.
    if (reste > diviseur - reste || (reste == diviseur - reste && (q & 1))) ++q;
    if (q == Puissance10[chiffres]) {
      q = Puissance10[chiffres - 1];
      ++E;
    }
    break;
  }

  int n = chiffres;
  while (n > 1 && q % 10 == 0) {
    q /= 10;
    --n;
  }
  char* s = sortie;
  if (bits >> 31) *s++ = '-';
  if (E < -4 || E >= chiffres) {
    s = EcritChiffres(s, q, n, 1);
    *s++ = 'e';
    *s++ = E < 0 ? '-' : '+';
    const int a = E < 0 ? -E : E;
    if (a >= 100) *s++ = static_cast<char>('0' + a / 100);
    *s++ = static_cast<char>('0' + a / 10 % 10);
    *s++ = static_cast<char>('0' + a % 10);
  } else if (E >= 0) {
    s = EcritChiffres(s, q, n, E + 1);
    if (n < E + 1) s = EcritZeros(s, E + 1 - n);
  } else {
    *s++ = '0';
    *s++ = '.';
    s = EcritChiffres(EcritZeros(s, -E - 1), q, n, n);
  }
  sortie = s;
  return true;
}

}  // namespace

void AjouteGcvt(std::string& texte, double valeur, int chiffres) {
  char tampon[64];
  char* fin = tampon;
  if (!GcvtFloat(valeur, chiffres, fin)) {
    // to_chars with a precision writes what printf's %.*g writes, in the C locale.
    const auto [finLue, erreur] =
        std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::general, chiffres);
    if (erreur != std::errc()) return;
    fin = finLue;
  }
  texte.append(tampon, static_cast<std::size_t>(fin - tampon));
}

void AjouteEntier(std::string& texte, long long valeur) {
  char tampon[24];
  const auto [fin, erreur] = std::to_chars(tampon, tampon + sizeof tampon, valeur);
  texte.append(tampon, static_cast<std::size_t>(fin - tampon));
}

std::string Gcvt(double valeur, int chiffres) {
  std::string texte;
  AjouteGcvt(texte, valeur, chiffres);
  return texte;
}
