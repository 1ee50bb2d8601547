// trajectoires-cli vignette, run as a file manager runs it: sheet 1 of any file on a white
// PNG of N by N/2, from whatever folder, the routine's figures found beside it.
#include <gtest/gtest.h>

#include <QImage>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "Pixels.h"
#include "support/Attendu.h"

namespace {

namespace fs = std::filesystem;

class VignetteCliTest : public ::testing::Test {
protected:
  void SetUp() override {
    dossier = fs::temp_directory_path() / ("trajectoires-vignette-" + std::to_string(getpid()));
    fs::create_directories(dossier);
  }
  void TearDown() override { fs::remove_all(dossier); }

  // The exit code of `vignette arguments...` run from `depuis` (the test's folder by default)
  // with `env` before it, standard error in Erreurs().
  int Vignette(const std::vector<std::string>& arguments, fs::path depuis = {}, const std::string& env = {}) {
    if (depuis.empty()) depuis = dossier;
    std::string commande = "cd " + Cite(depuis.string()) + " && " + env + " " + Cite(TRAJ_CLI) + " vignette";
    for (const std::string& a : arguments) commande += " " + Cite(a);
    commande += " 2>" + Cite((dossier / "erreurs.txt").string());
    const int statut = std::system(commande.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  // Standard error, less Qt's warnings about the session it runs in (XDG_RUNTIME_DIR unset).
  std::string Erreurs() const {
    std::istringstream texte(LitTout(dossier / "erreurs.txt"));
    std::string lignes;
    for (std::string ligne; std::getline(texte, ligne);)
      if (ligne.rfind("QStandardPaths:", 0) != 0) lignes += ligne + "\n";
    return lignes;
  }
  std::string Chemin(const std::string& nom) const { return (dossier / nom).string(); }
  static QImage Image(const std::string& chemin) { return QImage(QString::fromStdString(chemin)); }
  static std::string Donnee(const std::string& nom) { return std::string(TRAJ_TEST_DATA) + "/" + nom; }
  void Ecrit(const std::string& nom, const std::string& texte) const {
    std::ofstream(dossier / nom, std::ios::binary) << texte;
  }

  fs::path dossier;
};

TEST_F(VignetteCliTest, NWideAndHalfAsHigh) {
  const std::string routine = Donnee("resave/chaque_classe.rou");
  const struct {
    std::vector<std::string> options;
    int n;
  } cas[] = {{{}, 256}, {{"--size", "16"}, 16}, {{"--size", "100"}, 100}, {{"--size", "4096"}, 4096}};
  for (const auto& c : cas) {
    std::vector<std::string> arguments = {routine, Chemin("v.png")};
    arguments.insert(arguments.end(), c.options.begin(), c.options.end());
    ASSERT_EQ(Vignette(arguments), 0) << c.n << " : " << Erreurs();
    EXPECT_EQ(Image(Chemin("v.png")).size(), QSize(c.n, c.n / 2));
  }
}

TEST_F(VignetteCliTest, OffscreenWhateverThePlatformAsked) {
  // No display, and a platform that needs one: Qt would abort.
  ASSERT_EQ(Vignette({Donnee("resave/chaque_classe.rou"), "v.png", "--size", "64"}, {},
                     "env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb"),
            0)
      << Erreurs();
  EXPECT_EQ(Image(Chemin("v.png")).size(), QSize(64, 32));
}

TEST_F(VignetteCliTest, WhatIsNoRoutineGivesTheEmptySheet) {
  // The empty sheet: white, with the frame and the grid in black and no other colour.
  Ecrit("vide.rou", "");
  ASSERT_EQ(Vignette({"vide.rou", "vide.png"}), 0) << Erreurs();
  const QImage vide = Image(Chemin("vide.png"));
  ASSERT_EQ(vide.size(), QSize(256, 128));
  const QRgb blanc = qRgb(255, 255, 255), noir = qRgb(0, 0, 0), rouge = qRgb(255, 0, 0);
  EXPECT_EQ(vide.pixel(0, 0), blanc);
  EXPECT_GT(Compte(vide, vide.rect(), noir), 0);
  EXPECT_EQ(Compte(vide, vide.rect(), blanc) + Compte(vide, vide.rect(), noir), 256 * 128);
  // Text, bytes, a line the editor can't read and a routine without an element all read as
  // that empty routine.
  Ecrit("texte.rou", "Bonjour,\nceci n'est pas une routine.\nPOINT 0 0 2 1 0 abc 20 0.4\n");
  const char octets[] = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe";
  Ecrit("octets.rou", std::string(octets, sizeof octets - 1));
  Ecrit("equipe.rou", "TEAM 3\n");
  for (const char* nom : {"texte.rou", "octets.rou", "equipe.rou"}) {
    ASSERT_EQ(Vignette({nom, "autre.png"}), 0) << nom << " : " << Erreurs();
    EXPECT_EQ(Image(Chemin("autre.png")), vide) << nom;
    EXPECT_EQ(Erreurs(), "") << nom;  // the editor's complaints about lines are not the file manager's
  }
  // Three kites on sheet 1, the second one red.
  ASSERT_EQ(Vignette({Donnee("resave/chaque_classe.rou"), "traces.png"}), 0) << Erreurs();
  const QImage traces = Image(Chemin("traces.png"));
  EXPECT_EQ(Compte(vide, vide.rect(), rouge), 0);
  EXPECT_GT(Compte(traces, traces.rect(), rouge), 20);
  EXPECT_EQ(traces.pixel(0, 0), blanc);
}

TEST_F(VignetteCliTest, FiguresAreFoundBesideTheRoutine) {
  // A start point and a figure; run from another folder, by a path with blanks, as a file
  // manager does.
  const fs::path avec = dossier / "un dossier avec des blancs", sans = dossier / "sans la figure";
  fs::create_directories(avec);
  fs::create_directories(sans);
  for (const fs::path& d : {avec, sans}) fs::copy_file(Donnee("paint/figure_19_0.rou"), d / "la routine.rou");
  fs::copy_file(Donnee("paint/ligne.fig"), avec / "ligne.fig");
  ASSERT_EQ(Vignette({(avec / "la routine.rou").string(), Chemin("ailleurs.png")}), 0) << Erreurs();
  ASSERT_EQ(Vignette({"la routine.rou", Chemin("dedans.png")}, avec), 0) << Erreurs();
  ASSERT_EQ(Vignette({(sans / "la routine.rou").string(), Chemin("sans.png")}), 0) << Erreurs();
  const QImage ailleurs = Image(Chemin("ailleurs.png"));
  EXPECT_EQ(ailleurs, Image(Chemin("dedans.png")));
  EXPECT_NE(ailleurs, Image(Chemin("sans.png")));
}

TEST_F(VignetteCliTest, UnreadableInOrUnwritableOutGivesOne) {
  EXPECT_EQ(Vignette({"/nulle-part/r.rou", "v.png"}), 1);
  EXPECT_EQ(Erreurs(), "trajectoires-cli : impossible de lire « /nulle-part/r.rou »\n");
  EXPECT_FALSE(fs::exists(dossier / "v.png"));
  EXPECT_EQ(Vignette({dossier.string(), "v.png"}), 1);  // a folder
  EXPECT_EQ(Erreurs(), "trajectoires-cli : impossible de lire « " + dossier.string() + " »\n");
  EXPECT_EQ(Vignette({Donnee("resave/chaque_classe.rou"), "/nulle-part/v.png"}), 1);
  EXPECT_EQ(Erreurs(), "trajectoires-cli : impossible d'écrire « /nulle-part/v.png »\n");
}

}  // namespace
