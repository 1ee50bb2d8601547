#pragma once
// The music's waveform: a WAV file's PCM samples reduced once to the least and greatest value
// of each short stretch, from which each column of the view takes its own.
#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frise/Echelle.h"

enum class TErreurOnde { Aucune, Illisible, PasWav, PasPcm, Tronque, TropGrand, Abandon };
// The reason shown to the user, or "" for Aucune.
std::string TexteErreurOnde(TErreurOnde e);

struct TOnde {
  int Frequence = 0;      // frames per second
  int FramesParCase = 0;  // frames summed up by one entry of Min and Max
  std::vector<float> Min, Max;  // per stretch, all channels together, from -1 to 1
  // The music's length in hundredths.
  double Duree() const;
};

inline constexpr std::uintmax_t TAILLE_WAV_MAX = 1u << 30;  // 1 GiB: beyond, no music of a routine

// The stretches of the WAV in `octets`: 8, 16, 24 or 32-bit integer PCM, or 32-bit float, any
// number of channels; each stretch one millisecond or so. Checked now and then, *abandon stops
// the work with Abandon.
TErreurOnde ReduitWav(std::string_view octets, TOnde& onde, const std::atomic<bool>* abandon = nullptr);
// The same from a file.
TErreurOnde LitOnde(const std::string& chemin, TOnde& onde, const std::atomic<bool>* abandon = nullptr);

// The routine's music file as the player opens it: as named, else beside the routine.
std::string CheminMusique(const std::string& musique, const std::string& routine);

struct TColonne {
  float Min = 0, Max = 0;
  bool Son = false;  // false where the music is not playing
};
// The least and greatest value under each of the `largeur` columns of the view.
std::vector<TColonne> Colonnes(const TOnde& onde, const TVueTemps& vue, int largeur);
