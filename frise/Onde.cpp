#include "frise/Onde.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

std::uint32_t Mot32(const unsigned char* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
         static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}
std::uint16_t Mot16(const unsigned char* p) { return static_cast<std::uint16_t>(p[0] | p[1] << 8); }

struct TFormat {
  int Codage = 0;  // 1 PCM, 3 float
  int Canaux = 0;
  int Frequence = 0;
  int Bits = 0;
};

// One sample at p, from -1 to 1.
float Echantillon(const unsigned char* p, const TFormat& f) {
  switch (f.Bits) {
    case 8: return (static_cast<float>(p[0]) - 128.0f) / 128.0f;
    case 16: return static_cast<float>(static_cast<std::int16_t>(Mot16(p))) / 32768.0f;
    case 24: {
      std::int32_t v = static_cast<std::int32_t>(static_cast<std::uint32_t>(p[0]) << 8 | static_cast<std::uint32_t>(p[1]) << 16 |
                                                 static_cast<std::uint32_t>(p[2]) << 24) >> 8;
      return static_cast<float>(v) / 8388608.0f;
    }
    default:
      if (f.Codage == 3) {
        float v;
        const std::uint32_t m = Mot32(p);
        std::memcpy(&v, &m, sizeof v);
        return std::isfinite(v) ? std::clamp(v, -1.0f, 1.0f) : 0.0f;
      }
      return static_cast<float>(static_cast<std::int32_t>(Mot32(p))) / 2147483648.0f;
  }
}

}  // namespace

std::string TexteErreurOnde(TErreurOnde e) {
  switch (e) {
    case TErreurOnde::Aucune: return "";
    case TErreurOnde::Illisible: return "Fichier de musique illisible";
    case TErreurOnde::PasWav: return "Ce fichier n'est pas un fichier WAV";
    case TErreurOnde::PasPcm: return "Fichier WAV non PCM : forme d'onde non affichée";
    case TErreurOnde::Tronque: return "Fichier WAV tronqué";
    case TErreurOnde::TropGrand: return "Fichier de musique trop volumineux";
    case TErreurOnde::Abandon: return "Lecture de la musique abandonnée";
  }
  return "";
}

double TOnde::Duree() const {
  if (Frequence <= 0) return 0;
  return static_cast<double>(Min.size()) * FramesParCase * 100.0 / Frequence;
}

TErreurOnde ReduitWav(std::string_view octets, TOnde& onde, const std::atomic<bool>* abandon) {
  onde = TOnde();
  const auto* d = reinterpret_cast<const unsigned char*>(octets.data());
  const std::size_t n = octets.size();
  if (n < 12 || std::memcmp(d, "RIFF", 4) != 0 || std::memcmp(d + 8, "WAVE", 4) != 0) return TErreurOnde::PasWav;
  TFormat f;
  bool formatLu = false;
  const unsigned char* donnees = nullptr;
  std::size_t taille = 0;
  bool tronque = false;
  // The chunks one after the other; each is padded to an even size.
  for (std::size_t pos = 12; pos + 8 <= n;) {
    const std::size_t longueur = Mot32(d + pos + 4);
    const std::size_t debut = pos + 8;
    const std::size_t reste = n - debut;
    if (std::memcmp(d + pos, "fmt ", 4) == 0) {
      if (longueur < 16 || reste < 16) return TErreurOnde::Tronque;
      f.Codage = Mot16(d + debut);
      f.Canaux = Mot16(d + debut + 2);
      f.Frequence = static_cast<int>(std::min<std::uint32_t>(Mot32(d + debut + 4), 1u << 24));
      f.Bits = Mot16(d + debut + 14);
      // WAVE_FORMAT_EXTENSIBLE carries the true code in its sub-format.
      if (f.Codage == 0xFFFE && longueur >= 40 && reste >= 40) f.Codage = Mot16(d + debut + 24);
      formatLu = true;
    } else if (std::memcmp(d + pos, "data", 4) == 0) {
      donnees = d + debut;
      taille = std::min(longueur, reste);
      tronque = longueur > reste;
      break;
    }
    if (longueur > reste) return TErreurOnde::Tronque;
    pos = debut + longueur + (longueur & 1);
  }
  if (!formatLu || !donnees) return TErreurOnde::Tronque;
  const bool entier = f.Codage == 1 && (f.Bits == 8 || f.Bits == 16 || f.Bits == 24 || f.Bits == 32);
  const bool flottant = f.Codage == 3 && f.Bits == 32;
  if (!entier && !flottant) return TErreurOnde::PasPcm;
  if (f.Canaux < 1 || f.Canaux > 64 || f.Frequence < 1000) return TErreurOnde::PasPcm;
  const std::size_t octetsEchantillon = static_cast<std::size_t>(f.Bits) / 8;
  const std::size_t octetsFrame = octetsEchantillon * static_cast<std::size_t>(f.Canaux);
  const std::size_t frames = taille / octetsFrame;
  // A data chunk cut short still shows what it holds; one with nothing is no music.
  if (frames == 0) return tronque ? TErreurOnde::Tronque : TErreurOnde::Aucune;

  onde.Frequence = f.Frequence;
  onde.FramesParCase = std::max(1, f.Frequence / 1000);
  const std::size_t cases = (frames + static_cast<std::size_t>(onde.FramesParCase) - 1) / static_cast<std::size_t>(onde.FramesParCase);
  onde.Min.assign(cases, 0.0f);
  onde.Max.assign(cases, 0.0f);
  const unsigned char* p = donnees;
  for (std::size_t c = 0; c < cases; ++c) {
    if (abandon && (c & 4095) == 0 && abandon->load(std::memory_order_relaxed)) {
      onde = TOnde();
      return TErreurOnde::Abandon;
    }
    const std::size_t nb = std::min(static_cast<std::size_t>(onde.FramesParCase) * octetsFrame,
                                    static_cast<std::size_t>(donnees + frames * octetsFrame - p));
    float mn = 1, mx = -1;
    if (f.Bits == 16) {
      // The common case, without a call per sample.
      for (std::size_t i = 0; i + 1 < nb; i += 2) {
        const float v = static_cast<float>(static_cast<std::int16_t>(Mot16(p + i))) / 32768.0f;
        mn = std::min(mn, v);
        mx = std::max(mx, v);
      }
    } else {
      for (std::size_t i = 0; i + octetsEchantillon <= nb; i += octetsEchantillon) {
        const float v = Echantillon(p + i, f);
        mn = std::min(mn, v);
        mx = std::max(mx, v);
      }
    }
    onde.Min[c] = mn;
    onde.Max[c] = mx;
    p += nb;
  }
  return TErreurOnde::Aucune;
}

TErreurOnde LitOnde(const std::string& chemin, TOnde& onde, const std::atomic<bool>* abandon) {
  onde = TOnde();
  std::error_code erreur;
  if (!std::filesystem::is_regular_file(chemin, erreur)) return TErreurOnde::Illisible;
  const std::uintmax_t taille = std::filesystem::file_size(chemin, erreur);
  if (erreur) return TErreurOnde::Illisible;
  if (taille > TAILLE_WAV_MAX) return TErreurOnde::TropGrand;
  std::ifstream f(chemin, std::ios::binary);
  if (!f) return TErreurOnde::Illisible;
  std::string octets(static_cast<std::size_t>(taille), '\0');
  if (!f.read(octets.data(), static_cast<std::streamsize>(taille))) return TErreurOnde::Illisible;
  return ReduitWav(octets, onde, abandon);
}

std::string CheminMusique(const std::string& musique, const std::string& routine) {
  if (musique.empty()) return musique;
  std::error_code erreur;
  const std::filesystem::path chemin(musique);
  if (chemin.is_absolute() || std::filesystem::exists(chemin, erreur) || routine.empty()) return musique;
  return (std::filesystem::path(routine).parent_path() / chemin).string();
}

std::vector<TColonne> Colonnes(const TOnde& onde, const TVueTemps& vue, int largeur) {
  std::vector<TColonne> c(static_cast<std::size_t>(std::max(largeur, 0)));
  if (onde.Min.empty() || onde.Frequence <= 0) return c;
  // Stretches per hundredth.
  const double parCentieme = onde.Frequence / (100.0 * onde.FramesParCase);
  const auto nb = static_cast<double>(onde.Min.size());
  for (std::size_t x = 0; x < c.size(); ++x) {
    const double a = vue.T(static_cast<double>(x)) * parCentieme, b = vue.T(static_cast<double>(x) + 1) * parCentieme;
    if (b <= 0 || a >= nb) continue;
    // At least the stretch the column starts in, when columns are narrower than stretches.
    const auto i0 = static_cast<std::size_t>(std::max(a, 0.0));
    const auto i1 = std::max(i0 + 1, static_cast<std::size_t>(std::min(std::ceil(b), nb)));
    TColonne& col = c[x];
    col.Son = true;
    col.Min = 1;
    col.Max = -1;
    for (std::size_t i = i0; i < i1 && i < onde.Min.size(); ++i) {
      col.Min = std::min(col.Min, onde.Min[i]);
      col.Max = std::max(col.Max, onde.Max[i]);
    }
  }
  return c;
}
