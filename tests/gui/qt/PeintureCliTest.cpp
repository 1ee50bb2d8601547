// trajectoires-cli paint --png, run as a script would run it: the sheet of the journal, on a
// white image of W by W/2 drawn by the Qt surface.
#include <gtest/gtest.h>

#include <QImage>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "Pixels.h"

namespace {

namespace fs = std::filesystem;

class PeintureCliTest : public ::testing::Test {
protected:
  void SetUp() override {
    dossier = fs::temp_directory_path() / ("trajectoires-png-" + std::to_string(getpid()));
    fs::create_directories(dossier);
  }
  void TearDown() override { fs::remove_all(dossier); }

  // The exit code of `paint ROUTINE SHEET journal.log options`, standard error in erreurs.
  int Peins(const std::string& routine, int feuille, const std::string& options) {
    const std::string commande = "'" + std::string(TRAJ_CLI) + "' paint '" + TRAJ_TEST_DATA + "/" + routine + "' " +
                                 std::to_string(feuille) + " '" + (dossier / "journal.log").string() + "' " +
                                 options + " 2>'" + (dossier / "erreurs.txt").string() + "'";
    const int statut = std::system(commande.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  std::string Png(const char* nom) const { return (dossier / nom).string(); }

  fs::path dossier;
};

TEST_F(PeintureCliTest, SheetOfTwoKitesOnAWhiteImage) {
  // Sheet 3 of five: kite 0 from (0, 60) to (40, 20); kite 1 from (-80, 80) to (-40, 80),
  // coming from sheet 1, then an axel. 4 pixels a unit: (x, y) is the pixel (4x + 448, 408 - 4y).
  ASSERT_EQ(Peins("impression/cinq_feuilles.rou", 3, "--png '" + Png("f3.png") + "'"), 0);
  const QImage image(QString::fromStdString(Png("f3.png")));
  ASSERT_EQ(image.size(), QSize(880, 440));
  const QRgb noir = qRgb(0, 0, 0), rouge = qRgb(255, 0, 0), blanc = qRgb(255, 255, 255);
  EXPECT_EQ(image.pixel(48, 408), noir);   // the frame's corners
  EXPECT_EQ(image.pixel(848, 8), noir);
  EXPECT_EQ(image.pixel(88, 368), noir);   // the grid's first dot, (-90, 10)
  EXPECT_EQ(image.pixel(10, 10), blanc);
  EXPECT_EQ(image.pixel(448, 168), noir);  // kite 0 starts at (0, 60)
  EXPECT_EQ(Compte(image, QRect(129, 88, 150, 1), rouge), 150);  // kite 1's segment
  // The cross where it comes from another sheet: two lines from (x+4, y±4) to (x-4, y∓4),
  // each without its last pixel.
  EXPECT_EQ(image.pixel(132, 92), rouge);
  EXPECT_EQ(image.pixel(125, 85), rouge);
  EXPECT_EQ(image.pixel(124, 84), blanc);
  EXPECT_EQ(image.pixel(132, 84), rouge);
  EXPECT_EQ(image.pixel(124, 92), blanc);
  EXPECT_EQ(image.pixel(280, 88), rouge);  // the axel's ellipse, 16 by 12 about (288, 88)
  EXPECT_EQ(image.pixel(288, 82), rouge);
  EXPECT_EQ(image.pixel(288, 90), blanc);
  // Labels left of the frame.
  EXPECT_TRUE(BoiteEncre(image, QRect(0, 0, 46, 440)).isValid());
}

TEST_F(PeintureCliTest, UnwritablePictureGivesOne) {
  EXPECT_EQ(Peins("impression/une_feuille.rou", 1, "--png /nulle-part/f.png"), 1);
  std::ifstream erreurs(dossier / "erreurs.txt");
  std::string tout((std::istreambuf_iterator<char>(erreurs)), std::istreambuf_iterator<char>());
  EXPECT_NE(tout.find("trajectoires-cli : impossible d'écrire « /nulle-part/f.png »"), std::string::npos) << tout;
}

}  // namespace
