// The waveform's reduction from the bytes of a WAV file, and the files it refuses.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "frise/Onde.h"
#include "support/Wav.h"

namespace {

// A WAV of the given samples, interleaved; `bits` 8, 16, 24 or 32, code 1 PCM or 3 float.
std::string Wav(const std::vector<double>& echantillons, int canaux, int frequence, int bits, int code = 1) {
  std::string donnees;
  for (double e : echantillons) {
    if (code == 3) {
      const float f = static_cast<float>(e);
      std::uint32_t m;
      std::memcpy(&m, &f, 4);
      AjouteMot(donnees, m, 4);
    } else if (bits == 8) {
      AjouteMot(donnees, static_cast<std::uint32_t>(static_cast<int>(e * 128) + 128), 1);
    } else {
      const double echelle = bits == 16 ? 32768.0 : bits == 24 ? 8388608.0 : 2147483648.0;
      AjouteMot(donnees, static_cast<std::uint32_t>(static_cast<std::int64_t>(e * echelle)), bits / 8);
    }
  }
  // A chunk of another kind first, of odd size, which the reader steps over with its pad byte.
  std::string liste = "LIST";
  AjouteMot(liste, 3, 4);
  liste += "abc";
  liste += '\0';
  return EnteteWav(canaux, frequence, bits, donnees.size(), code, liste) + donnees;
}

// One second at 8 kHz, stereo: the left channel climbs from -1 to 1, the right stays at 0.25.
std::vector<double> Rampe() {
  std::vector<double> e;
  for (int i = 0; i < 8000; ++i) {
    e.push_back(-1.0 + 2.0 * i / 8000.0);
    e.push_back(0.25);
  }
  return e;
}

}  // namespace

TEST(Onde, EachColumnHoldsTheLeastAndGreatestSampleUnderIt) {
  for (int bits : {8, 16, 24, 32}) {
    SCOPED_TRACE(bits);
    TOnde onde;
    ASSERT_EQ(ReduitWav(Wav(Rampe(), 2, 8000, bits), onde), TErreurOnde::Aucune);
    EXPECT_EQ(onde.FramesParCase, 8);
    EXPECT_DOUBLE_EQ(onde.Duree(), 100.0);
    // Ten columns over the second: column c spans the ramp from -1 + c/5 to -1 + (c+1)/5,
    // and the right channel's 0.25 lies in the columns whose left channel stays below it.
    const std::vector<TColonne> c = Colonnes(onde, TVueTemps{0, 0.1}, 12);
    const double pas = bits == 8 ? 1.0 / 128 : 1e-4;
    for (int x = 0; x < 10; ++x) {
      SCOPED_TRACE(x);
      ASSERT_TRUE(c[static_cast<std::size_t>(x)].Son);
      EXPECT_NEAR(c[static_cast<std::size_t>(x)].Min, std::min(-1.0 + x / 5.0, 0.25), pas);
      EXPECT_NEAR(c[static_cast<std::size_t>(x)].Max, std::max(-1.0 + (x + 1) / 5.0 - 2.0 / 8000, 0.25), pas + 2.0 / 8000);
    }
    // After the music, silence that is no music.
    EXPECT_FALSE(c[10].Son);
    EXPECT_FALSE(c[11].Son);
  }
}

TEST(Onde, FloatSamplesAndAViewBeforeTheMusic) {
  TOnde onde;
  ASSERT_EQ(ReduitWav(Wav(Rampe(), 2, 8000, 32, 3), onde), TErreurOnde::Aucune);
  // The view starts half a second before the music: the first five columns are empty.
  const std::vector<TColonne> c = Colonnes(onde, TVueTemps{-50, 0.1}, 10);
  for (int x = 0; x < 5; ++x) EXPECT_FALSE(c[static_cast<std::size_t>(x)].Son) << x;
  EXPECT_TRUE(c[5].Son);
  EXPECT_NEAR(c[5].Min, -1.0, 1e-6);
  // Zoomed in further than a stretch per column, each column still shows the stretch it lies in.
  const std::vector<TColonne> fin = Colonnes(onde, TVueTemps{50, 20}, 40);
  for (const TColonne& col : fin) {
    EXPECT_TRUE(col.Son);
    EXPECT_LE(col.Min, col.Max);
    EXPECT_NEAR(col.Max, 0.25, 1e-6);  // the ramp is near 0 half-way: the right channel is higher
  }
}

TEST(Onde, BrokenOrForeignFilesGiveTheirReasonAndNoWaveform) {
  const std::string bon = Wav(Rampe(), 2, 8000, 16);
  TOnde onde;
  EXPECT_EQ(ReduitWav("", onde), TErreurOnde::PasWav);
  EXPECT_EQ(ReduitWav("RIFF\x10\0\0\0AVI LIST", onde), TErreurOnde::PasWav);
  // ADPCM (code 2) and 12-bit samples are not PCM this reader knows.
  std::string adpcm = bon;
  adpcm[12 + 12 + 8] = 2;
  EXPECT_EQ(ReduitWav(adpcm, onde), TErreurOnde::PasPcm);
  std::string douze = bon;
  douze[12 + 12 + 8 + 14] = 12;
  EXPECT_EQ(ReduitWav(douze, onde), TErreurOnde::PasPcm);
  // Cut inside the format chunk, or before any data.
  EXPECT_EQ(ReduitWav(bon.substr(0, 12 + 12 + 12), onde), TErreurOnde::Tronque);
  EXPECT_EQ(ReduitWav(bon.substr(0, 12 + 12 + 24), onde), TErreurOnde::Tronque);
  EXPECT_TRUE(onde.Min.empty());
  // Cut inside the samples: what is there is shown.
  ASSERT_EQ(ReduitWav(bon.substr(0, bon.size() / 2), onde), TErreurOnde::Aucune);
  EXPECT_NEAR(onde.Duree(), 50.0, 0.2);
  // A chunk that claims more bytes than the file holds, before the data.
  std::string menteur = bon;
  menteur[16] = '\xff';
  menteur[17] = '\xff';
  menteur[18] = '\xff';
  menteur[19] = '\x7f';
  EXPECT_EQ(ReduitWav(menteur, onde), TErreurOnde::Tronque);
  EXPECT_FALSE(TexteErreurOnde(TErreurOnde::PasPcm).empty());
  EXPECT_EQ(LitOnde("/nonexistent/musique.wav", onde), TErreurOnde::Illisible);
  EXPECT_EQ(LitOnde("/", onde), TErreurOnde::Illisible);
}

TEST(Onde, AnAbandonedReductionStopsWithNothing) {
  std::vector<double> long_(2 * 8000 * 30, 0.5);
  const std::string wav = Wav(long_, 2, 8000, 16);
  std::atomic<bool> abandon{true};
  TOnde onde;
  EXPECT_EQ(ReduitWav(wav, onde, &abandon), TErreurOnde::Abandon);
  EXPECT_TRUE(onde.Min.empty());
  abandon = false;
  EXPECT_EQ(ReduitWav(wav, onde, &abandon), TErreurOnde::Aucune);
  EXPECT_NEAR(onde.Duree(), 3000.0, 0.01);
}
