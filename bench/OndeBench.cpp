// The waveform of a 5-minute WAV at 44.1 kHz, 16-bit stereo, reduced from its bytes in memory,
// then the columns of a 1920-pixel view of the whole of it.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "frise/Onde.h"

namespace {

void Mot(std::string& s, std::uint32_t v, int octets) {
  for (int i = 0; i < octets; ++i) s += static_cast<char>((v >> (8 * i)) & 0xFF);
}

const std::string& CinqMinutes() {
  static const std::string wav = [] {
    constexpr std::uint32_t frames = 44100u * 300u;
    std::string w = "RIFF";
    Mot(w, 36 + frames * 4, 4);
    w += "WAVEfmt ";
    Mot(w, 16, 4);
    Mot(w, 1, 2);
    Mot(w, 2, 2);
    Mot(w, 44100, 4);
    Mot(w, 44100 * 4, 4);
    Mot(w, 4, 2);
    Mot(w, 16, 2);
    w += "data";
    Mot(w, frames * 4, 4);
    w.reserve(w.size() + frames * 4);
    for (std::uint32_t i = 0; i < frames; ++i) {
      const auto v = static_cast<std::int16_t>(std::lround(20000 * std::sin(i * 0.0314) * std::sin(i * 1e-5)));
      Mot(w, static_cast<std::uint16_t>(v), 2);
      Mot(w, static_cast<std::uint16_t>(-v), 2);
    }
    return w;
  }();
  return wav;
}

void BM_OndeCinqMinutes(benchmark::State& state) {
  const std::string& wav = CinqMinutes();
  for (auto _ : state) {
    TOnde onde;
    benchmark::DoNotOptimize(ReduitWav(wav, onde));
    benchmark::DoNotOptimize(onde.Min.data());
  }
}

void BM_ColonnesCinqMinutes(benchmark::State& state) {
  TOnde onde;
  ReduitWav(CinqMinutes(), onde);
  const TVueTemps vue = Ajuste(0, 30000, 1920);
  for (auto _ : state) benchmark::DoNotOptimize(Colonnes(onde, vue, 1920).data());
}

}  // namespace

BENCHMARK(BM_OndeCinqMinutes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColonnesCinqMinutes)->Unit(benchmark::kMillisecond);
