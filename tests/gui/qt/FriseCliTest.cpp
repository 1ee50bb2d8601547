// trajectoires-cli frise: the timeline's picture, read back pixel by pixel where the logic
// says each thing is.
#include <gtest/gtest.h>

#include <QImage>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "Pixels.h"
#include "frise/Echelle.h"
#include "support/Attendu.h"
#include "support/Wav.h"

namespace {

namespace fs = std::filesystem;

// Two seconds of a loud 16-bit mono tone at 8 kHz.
std::string DeuxSecondes() {
  std::string d;
  for (int i = 0; i < 16000; ++i)
    AjouteMot(d, static_cast<std::uint16_t>(static_cast<std::int16_t>(30000 * std::sin(i * 0.3))), 2);
  return EnteteWav(1, 8000, 16, d.size()) + d;
}

class FriseCliTest : public ::testing::Test {
protected:
  void SetUp() override {
    dossier = fs::temp_directory_path() / ("trajectoires-frise-" + std::to_string(getpid()));
    fs::create_directories(dossier);
    for (const char* f : {"frise_trois_feuilles.rou", "vague.fig"})
      fs::copy_file(fs::path(TRAJ_TEST_DATA) / "commandes" / f, dossier / f, fs::copy_options::overwrite_existing);
  }
  void TearDown() override { fs::remove_all(dossier); }

  int Frise(const std::string& arguments) {
    const std::string commande = "cd " + Cite(dossier.string()) + " && " + Cite(TRAJ_CLI) + " frise frise_trois_feuilles.rou " +
                                 arguments + " 2>" + Cite((dossier / "erreurs.txt").string());
    const int statut = std::system(commande.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  void Ecrit(const std::string& nom, const std::string& texte) const { std::ofstream(dossier / nom, std::ios::binary) << texte; }

  fs::path dossier;
};

// The routine spans 0 to 2473.4, its kites end at 2473.4, 2000 and 950; 3 lanes of 30 pixels.
TEST_F(FriseCliTest, EachThingStandsAtTheTimeTheLogicGivesIt) {
  Ecrit("vent.wav", DeuxSecondes());
  ASSERT_EQ(Frise("f.png --width 1000"), 0);
  const QImage image(QString::fromStdString((dossier / "f.png").string()));
  ASSERT_EQ(image.width(), 1000);
  const TDisposition d = Dispose(1000, image.height(), 3);
  ASSERT_EQ(image.height(), HAUTEUR_REGLE + HAUTEUR_FEUILLES + HAUTEUR_ONDE_MAX + 90);
  const TVueTemps vue = Ajuste(0, 2473.4, 1000);
  auto x = [&](double t) { return static_cast<int>(std::floor(vue.X(t))); };
  // The routine's end, where the second and third kites end, crosses the lanes in black.
  const int fin = x(950);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(qGray(image.pixel(fin, d.Piste(i).top + d.HauteurPiste / 2)), 0) << i;
  // The waveform: ink in the middle of its lane for the two seconds of music, none after.
  const int milieu = (d.YOnde + d.YPistes) / 2;
  EXPECT_FALSE(BoiteEncre(image, QRect(x(20), d.YOnde, x(180) - x(20), d.YPistes - d.YOnde)).isNull());
  EXPECT_EQ(Compte(image, QRect(x(230), milieu, x(900) - x(230), 1), qRgb(140, 140, 140)), 0);
  EXPECT_GT(Compte(image, QRect(x(20), milieu, x(180) - x(20), 1), qRgb(140, 140, 140)), 0);
  // The second kite's last block, 950 to 2000, in its red; nothing of it after 2000 (both between
  // two beats, whose lines cross the lanes).
  const QColor bloc = image.pixelColor(x(1525), d.Piste(1).bottom - 4);
  EXPECT_GT(bloc.red(), bloc.blue() + 30);
  const QColor apres = image.pixelColor(x(2225), d.Piste(1).bottom - 4);
  EXPECT_EQ(apres.red(), apres.blue());
}

TEST_F(FriseCliTest, MusicThatIsNoWaveGivesAnEmptyLaneAndSaysWhy) {
  Ecrit("vent.wav", "ceci n'est pas un son");
  ASSERT_EQ(Frise("f.png --width 600"), 0);
  EXPECT_NE(LitTout(dossier / "erreurs.txt").find("Ce fichier n'est pas un fichier WAV"), std::string::npos);
  const QImage image(QString::fromStdString((dossier / "f.png").string()));
  const TDisposition d = Dispose(600, image.height(), 3);
  // Before the first mark, which crosses it as the routine's end does.
  const TVueTemps vue = Ajuste(0, 2473.4, 600);
  EXPECT_TRUE(BoiteEncre(image, QRect(0, d.YOnde, static_cast<int>(vue.X(390)), d.YPistes - d.YOnde)).isNull());
  // Zoomed on the first second: the blocks it holds, the first kite's start at the left edge.
  ASSERT_EQ(Frise("g.png --width 600 --from 0 --to 100"), 0);
  const QImage g(QString::fromStdString((dossier / "g.png").string()));
  EXPECT_EQ(g.width(), 600);
  EXPECT_EQ(Frise("h.png --to abc"), 2);
}

}  // namespace
