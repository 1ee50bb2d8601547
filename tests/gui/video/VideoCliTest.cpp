// trajectoires-cli video run as a script runs it, with no display; the films it writes are
// read back with FFmpeg's libraries and their frames compared with what render draws.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <QImage>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "LectureFilm.h"
#include "support/Fichiers.h"
#include "support/Wav.h"

namespace {

int Ecart(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}
// The pixels that differ by more than the renderer's tests allow.
int Differents(const QImage& a, const QImage& b) {
  int n = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) n += Ecart(a.pixel(x, y), b.pixel(x, y)) > 24;
  return n;
}

// A WAV of 16-bit PCM, mono at 44.1 kHz: a 440 Hz tone of `secondes`. `manque` bytes of its
// data are left out while its header still counts them.
void EcritWav(const std::string& nom, double secondes, int manque = 0) {
  const int n = static_cast<int>(secondes * 44100);
  std::string donnees;
  for (int i = 0; i < n - manque / 2; ++i)
    AjouteMot(donnees, static_cast<std::uint16_t>(static_cast<std::int16_t>(8000 * std::sin(i * 2 * M_PI * 440 / 44100))), 2);
  std::ofstream(nom, std::ios::binary) << EnteteWav(1, 44100, 16, 2 * static_cast<std::size_t>(n)) << donnees;
}

class VideoCommandTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    // Two kites over 2 s, one routine with each kind of music.
    const std::string routine = Donnee("video/deux_secondes.rou");
    Ecrit("musique.rou", routine);
    Ecrit("muette.rou", routine.substr(routine.find('\n') + 1));
    Ecrit("tronquee.rou", "MUSIQUE   tronquee.wav \n" + routine.substr(routine.find('\n') + 1));
    Ecrit("pas_wav.rou", "MUSIQUE   pas_wav.wav \n" + routine.substr(routine.find('\n') + 1));
    EcritWav("musique.wav", 3.0);
    EcritWav("tronquee.wav", 3.0, 1000);
    Ecrit("pas_wav.wav", "ID3\x03 ce n'est pas du son");
  }
  // Runs the command without DISPLAY; its exit code, or -1 when it did not exit. What it
  // says goes to sortie.txt.
  static int Lance(const std::string& commande, const std::string& arguments) {
    const std::string ligne = "env -u DISPLAY '" TRAJ_CLI "' " + commande + " " + arguments + " >sortie.txt 2>&1";
    const int statut = std::system(ligne.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  static std::string Sortie() { return LitFichier("sortie.txt").value_or(""); }
  static std::vector<std::string> Films() {
    std::vector<std::string> noms;
    for (const auto& f : std::filesystem::recursive_directory_iterator("."))
      if (f.path().filename().string().find(".mp4") != std::string::npos ||
          f.path().filename().string().find(".webm") != std::string::npos)
        noms.push_back(f.path().filename().string());
    return noms;
  }
};

TEST_F(VideoCommandTest, FilmDeDeuxSecondesAvecSaMusiqueEtLesImagesDeRender) {
  ASSERT_EQ(Lance("video", "musique.rou film.mp4 --size 320x180 --fps 25"), 0) << Sortie();
  EXPECT_EQ(Sortie().find("image "), std::string::npos);  // not a terminal: no progress
  const TFilmLu film = LitFilm("film.mp4", 25);
  ASSERT_TRUE(film.Lisible);
  EXPECT_EQ(film.CodecVideo, "h264");
  EXPECT_EQ(film.CodecSon, "aac");
  EXPECT_EQ(film.Largeur, 320);
  EXPECT_EQ(film.Hauteur, 180);
  EXPECT_EQ(film.Images, 50);
  // 2.0 s of sound, within one block of the encoder.
  EXPECT_EQ(film.FrequenceSon, 48000);
  EXPECT_EQ(film.CanauxSon, 2);
  ASSERT_GT(film.BlocSon, 0);
  EXPECT_LE(std::llabs(film.Echantillons - 96000), film.BlocSon) << film.Echantillons;

  // Frame 25 is the routine at 1 s, as render draws it, but for the colour conversion.
  ASSERT_EQ(Lance("render", "musique.rou 100 image.png --size 320x180"), 0) << Sortie();
  const QImage rendu = QImage("image.png").convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(film.Image.size(), rendu.size());
  EXPECT_LT(Differents(film.Image, rendu), 320 * 180 / 100);
  // And not the picture of another time: the kites moved between 0.5 s and 1 s.
  ASSERT_EQ(Lance("render", "musique.rou 50 autre.png --size 320x180"), 0) << Sortie();
  EXPECT_GT(Differents(film.Image, QImage("autre.png").convertToFormat(QImage::Format_RGB32)), 50);
  EXPECT_EQ(Films(), std::vector<std::string>{"film.mp4"});
}

TEST_F(VideoCommandTest, WebmEnVp9EtOpusSurUnePlage) {
  ASSERT_EQ(Lance("video", "musique.rou film.webm --size 160x90 --fps 10 --from 50 --to 150"), 0) << Sortie();
  const TFilmLu film = LitFilm("film.webm", 0);
  ASSERT_TRUE(film.Lisible);
  EXPECT_EQ(film.CodecVideo, "vp9");
  EXPECT_EQ(film.CodecSon, "opus");
  EXPECT_EQ(film.Images, 10);
  EXPECT_LE(std::llabs(film.Echantillons - 48000), std::max(film.BlocSon, 960)) << film.Echantillons;
}

// Each bad input: its exit code, what it says, and no film left, not even a partial one.
TEST_F(VideoCommandTest, MauvaisesEntreesMessageClairEtPasDeFichier) {
  struct {
    const char* Arguments;
    int Code;
    const char* Message;
  } cas[] = {
      {"absente.rou film.mp4 --size 64x36", 1, "impossible de lire « absente.rou »"},
      {"musique.rou film.avi", 2, "OUT doit finir par .mp4 ou .webm : « film.avi »"},
      {"musique.rou film.mp4 --size 3842x2160", 2, "taille 3842x2160 refusée : de 2x2 à 3840x2160"},
      {"musique.rou film.mp4 --size 0x0", 2, "refusée"},
      {"musique.rou film.mp4 --size 64", 2, "valeur illisible pour --size"},
      {"musique.rou film.mp4 --fps 0", 2, "valeur illisible pour --fps : « 0 »"},
      {"musique.rou film.mp4 --fps 121", 2, "valeur illisible pour --fps"},
      {"musique.rou film.mp4 --size 64x36 --from 199", 2, "plage 199..199 hors de la routine (0..199, en centièmes de seconde)"},
      {"musique.rou film.mp4 --size 64x36 --to 500", 2, "plage 0..500 hors de la routine"},
      {"musique.rou film.mp4 --size 64x36 --from 100 --to 50", 2, "plage 100..50"},
      {"musique.rou film.mp4 --camera loin", 2, "--camera prend public, pilotes ou juge"},
      {"musique.rou film.mp4 --vite", 2, "option inconnue « --vite »"},
      {"musique.rou", 2, "il faut IN et OUT"},
      {"musique.rou absent/film.mp4 --size 64x36 --to 20", 1,
       "impossible d'écrire dans le dossier de « absent/film.mp4 » ; « absent/film.mp4 » n'est pas écrit"},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(c.Arguments);
    EXPECT_EQ(Lance("video", c.Arguments), c.Code);
    EXPECT_NE(Sortie().find(c.Message), std::string::npos) << Sortie();
    EXPECT_EQ(Films(), std::vector<std::string>{});
  }
}

// A music that can't be played gives a film without sound, and says so; no music says nothing.
TEST_F(VideoCommandTest, SansMusiqueLisiblePasDePisteSon) {
  struct {
    const char* Routine;
    const char* Message;
  } cas[] = {
      {"muette.rou", ""},
      {"tronquee.rou", "trajectoires-cli : musique « tronquee.wav » illisible : ce n'est pas un fichier WAV que le "
                       "lecteur sait jouer ; film sans son\n"},
      {"pas_wav.rou", "trajectoires-cli : musique « pas_wav.wav » illisible"},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(c.Routine);
    ASSERT_EQ(Lance("video", std::string(c.Routine) + " film.mp4 --size 64x36 --fps 10 --to 50"), 0) << Sortie();
    if (*c.Message) EXPECT_NE(Sortie().find(c.Message), std::string::npos) << Sortie();
    else EXPECT_EQ(Sortie().find("musique"), std::string::npos) << Sortie();
    const TFilmLu film = LitFilm("film.mp4", 0);
    EXPECT_EQ(film.CodecVideo, "h264");
    EXPECT_EQ(film.CodecSon, "");
    EXPECT_EQ(film.Images, 5);
    std::filesystem::remove("film.mp4");
  }
}

// An odd size is rounded down, and said; the film is whole at the even size.
TEST_F(VideoCommandTest, TailleImpaireArrondie) {
  ASSERT_EQ(Lance("video", "muette.rou film.mp4 --size 65x37 --fps 10 --to 30"), 0) << Sortie();
  EXPECT_NE(Sortie().find("trajectoires-cli : taille 65x37 arrondie à 64x36 : l'encodeur veut des tailles paires\n"),
            std::string::npos);
  const TFilmLu film = LitFilm("film.mp4", 0);
  EXPECT_EQ(film.Largeur, 64);
  EXPECT_EQ(film.Hauteur, 36);
  EXPECT_EQ(film.Images, 3);
}

}  // namespace
