#pragma once
// A test sound whose every frame tells its own place in the file, and the reading back of
// what SDL's disk driver wrote, as runs of consecutive frames of that file.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <thread>
#include <vector>

inline constexpr int FREQUENCE = 44100;

// Frame i holds 1 + i % 30000 on the left and 1 + i / 30000 on the right: never silent, and
// its number comes back from any one frame. 44100 Hz, 16 bits, stereo.
inline void EcritRampe(const std::filesystem::path& fichier, double secondes) {
  const auto trames = static_cast<std::uint32_t>(secondes * FREQUENCE);
  std::ofstream f(fichier, std::ios::binary);
  const auto mot = [&f](std::uint32_t v, int octets) {
    for (int i = 0; i < octets; ++i) f.put(static_cast<char>((v >> (8 * i)) & 0xFF));
  };
  f << "RIFF";
  mot(36 + trames * 4, 4);
  f << "WAVEfmt ";
  mot(16, 4);
  mot(1, 2);  // PCM
  mot(2, 2);
  mot(FREQUENCE, 4);
  mot(FREQUENCE * 4, 4);
  mot(4, 2);
  mot(16, 2);
  f << "data";
  mot(trames * 4, 4);
  for (std::uint32_t i = 0; i < trames; ++i) {
    mot(1 + i % 30000, 2);
    mot(1 + i / 30000, 2);
  }
}

inline long TrameDe(std::int16_t gauche, std::int16_t droite) {
  return (static_cast<long>(droite) - 1) * 30000 + gauche - 1;
}

// Frames of the ramp played one after the other, without a break.
struct TPassage {
  long Debut = 0;     // index in the output of its first frame
  long Premiere = 0;  // number in the file of its first frame
  long Longueur = 0;  // frames
};

struct TSortie {
  long Trames = 0;
  std::vector<TPassage> Passages;
  long SilenceFinal = 0;  // frames of silence at the end
};

// The output of the disk driver: raw 16-bit stereo at the device's format, which is the
// ramp's. Silence and any jump in the frame numbers end a run.
inline TSortie LitSortie(const std::filesystem::path& fichier) {
  std::ifstream f(fichier, std::ios::binary);
  const std::string octets{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
  TSortie s;
  s.Trames = static_cast<long>(octets.size() / 4);
  const auto echantillon = [&octets](long i) {
    const auto bas = static_cast<unsigned char>(octets[static_cast<std::size_t>(i)]);
    const auto haut = static_cast<unsigned char>(octets[static_cast<std::size_t>(i) + 1]);
    return static_cast<std::int16_t>(bas | (haut << 8));
  };
  bool dansPassage = false;
  long precedente = 0;
  for (long t = 0; t < s.Trames; ++t) {
    const std::int16_t g = echantillon(4 * t), d = echantillon(4 * t + 2);
    if (g == 0 && d == 0) {
      dansPassage = false;
      ++s.SilenceFinal;
      continue;
    }
    s.SilenceFinal = 0;
    const long n = TrameDe(g, d);
    if (dansPassage && n == precedente + 1) {
      ++s.Passages.back().Longueur;
    } else {
      s.Passages.push_back({t, n, 1});
      dansPassage = true;
    }
    precedente = n;
  }
  return s;
}

inline long TramesDe(int ms) { return static_cast<long>(ms) * FREQUENCE / 1000; }

// How far the driver's file may lag behind what the mixer has done, in frames: a buffer
// mixed and not yet written, another held by the C library, and room for two more.
inline constexpr long RETARD_ECRITURE = 4 * 1024;

// Asks `condition` again and again until it holds. The driver plays in about real time, much
// later on a busy machine: only a minute without it means it never will.
template <class Condition>
bool Attends(Condition condition) {
  const auto limite = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limite) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

// A scratch folder holding a four-second ramp, and SDL's disk driver writing into it for
// every device opened meanwhile. The driver's own pacing, one buffer's length per buffer
// (SDL_DISKAUDIODELAY unset), plays in about real time.
class TBancSon {
public:
  TBancSon()
      : Dossier(std::filesystem::temp_directory_path() /
                ("trajectoires-son-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
                 "-" + std::to_string(getpid()))) {
    std::filesystem::remove_all(Dossier);
    std::filesystem::create_directories(Dossier);
    EcritRampe(Rampe(), 4.0);
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", (Dossier / "sortie.raw").c_str(), 1);
  }
  ~TBancSon() {
    unsetenv("SDL_AUDIODRIVER");
    unsetenv("SDL_DISKAUDIOFILE");
    std::filesystem::remove_all(Dossier);
  }
  TBancSon(const TBancSon&) = delete;
  TBancSon& operator=(const TBancSon&) = delete;

  std::filesystem::path Rampe() const { return Dossier / "rampe.wav"; }
  // Whole once the device is closed; while it is open, up to RETARD_ECRITURE frames behind.
  TSortie Sortie() const { return LitSortie(Dossier / "sortie.raw"); }
  long TramesEcrites() const {
    std::error_code e;
    const auto octets = std::filesystem::file_size(Dossier / "sortie.raw", e);
    return e ? 0 : static_cast<long>(octets / 4);
  }
  // Until what the driver has written so far satisfies `condition`.
  template <class Condition>
  bool AttendsSortie(Condition condition) const {
    return Attends([&] { return condition(Sortie()); });
  }

  const std::filesystem::path Dossier;
};
