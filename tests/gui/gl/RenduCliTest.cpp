// trajectoires-cli render run as a script runs it, with no display, so that it has to start
// its own X server; the pictures it writes are read back and looked at.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <QImage>
#include <QSet>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "Scene.h"

namespace {

// Where the default camera puts a point of the plane z = 0 in a picture of that size.
QPoint Pixel(float x, float y, int largeur, int hauteur) {
  return QPointF(largeur / 2.0 * (1 + x / 107.5), hauteur / 2.0 * (1 - (y - 54) / 53.75)).toPoint();
}

struct TPosition {
  float x, y;
};
// The two kites of routine_courte.rou, as `trajectoires-cli sample` gives them.
const std::vector<TPosition> A_100 = {{-40, 20}, {46, 16}};
const std::vector<TPosition> A_400 = {{-10, 50}, {34, 34}};

// Where a kite of about 30 pixels across may show, around each position.
std::vector<QRect> Cases(const std::vector<TPosition>& positions, int largeur, int hauteur) {
  const int demi = largeur * 24 / 800;
  std::vector<QRect> cases;
  for (const TPosition& p : positions) {
    const QPoint c = Pixel(p.x, p.y, largeur, hauteur);
    cases.emplace_back(c.x() - demi, c.y() - demi, 2 * demi + 1, 2 * demi + 1);
  }
  return cases;
}

int Differents(const QImage& a, const QImage& b, const QRect& zone) {
  int n = 0;
  for (int y = zone.top(); y <= zone.bottom(); ++y)
    for (int x = zone.left(); x <= zone.right(); ++x) n += Ecart(a.pixel(x, y), b.pixel(x, y)) > 24;
  return n;
}

// Pixels that differ outside the given boxes, which must not overlap.
int DifferentsHors(const QImage& a, const QImage& b, const std::vector<QRect>& cases) {
  int n = Differents(a, b, a.rect());
  for (const QRect& c : cases) n -= Differents(a, b, c);
  return n;
}

struct TSortie {
  int Code = -1;
  QImage Image;
};

class RenderCommandTest : public FichiersTest {
protected:
  static std::string Routine() { return "'" + std::string(TRAJ_TEST_DATA) + "/resave/routine_courte.rou'"; }

  // Runs the command without DISPLAY; its exit code, or -1 when it did not exit. What it
  // says goes to sortie.txt.
  static int Lance(const std::string& arguments) {
    const std::string commande = "env -u DISPLAY '" TRAJ_CLI "' render " + arguments + " >sortie.txt 2>&1";
    const int statut = std::system(commande.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  static std::string Sortie() { return LitFichier("sortie.txt").value_or(""); }
  static int NbPng() {
    int n = 0;
    for (const auto& f : std::filesystem::directory_iterator(".")) n += f.path().extension() == ".png";
    return n;
  }

  // routine_courte.rou at T with these options, drawn once for the whole suite: each run
  // starts an X server.
  static const TSortie& Dessin(const std::string& t, const std::string& options = "") {
    static std::map<std::string, TSortie> faits;
    const std::string cle = t + " " + options;
    if (auto it = faits.find(cle); it != faits.end()) return it->second;
    std::filesystem::remove("dessin.png");  // no picture of an earlier run taken for this one
    TSortie s;
    s.Code = Lance(Routine() + " " + t + " dessin.png " + options);
    s.Image = QImage("dessin.png").convertToFormat(QImage::Format_RGB32);
    return faits[cle] = s;
  }
};

TEST_F(RenderCommandTest, PictureShowsEachKiteWhereTheFlightIsAtT) {
  const TSortie& a = Dessin("100");
  const TSortie& b = Dessin("400");
  ASSERT_EQ(a.Code, 0);
  ASSERT_EQ(b.Code, 0);
  ASSERT_EQ(a.Image.size(), QSize(800, 400));
  ASSERT_EQ(b.Image.size(), QSize(800, 400));
  // The clouds behind, not a flat colour.
  QSet<QRgb> couleurs;
  for (int y = 5; y < 400; y += 10)
    for (int x = 5; x < 800; x += 10) couleurs.insert(a.Image.pixel(x, y));
  EXPECT_GT(couleurs.size(), 100);
  // The pictures differ where a kite is at one time or the other, and nowhere else.
  std::vector<QRect> cases = Cases(A_100, 800, 400);
  for (const QRect& c : Cases(A_400, 800, 400)) cases.push_back(c);
  for (std::size_t i = 0; i < cases.size(); ++i)
    EXPECT_GT(Differents(a.Image, b.Image, cases[i]), 40) << "kite " << i % 2 << (i < 2 ? " à 100" : " à 400");
  EXPECT_EQ(DifferentsHors(a.Image, b.Image, cases), 0);
}

TEST_F(RenderCommandTest, SizeOptionDrawsTheSameSceneAtThatSize) {
  const TSortie& petite = Dessin("100", "--size 400x200");
  ASSERT_EQ(petite.Code, 0);
  ASSERT_EQ(petite.Image.size(), QSize(400, 200));
  const QImage grande = Dessin("100").Image.scaled(400, 200, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QImage ailleurs = Dessin("400").Image.scaled(400, 200, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  ASSERT_FALSE(grande.isNull());
  // The whole scene scaled down, neither cropped nor moved...
  EXPECT_LT(Differents(petite.Image, grande, grande.rect()), 400 * 200 / 100);
  // ...with the kites at their places in proportion.
  for (const QRect& c : Cases(A_100, 400, 200)) EXPECT_GT(Differents(petite.Image, ailleurs, c), 10);
}

TEST_F(RenderCommandTest, TeamOptionChangesTheModelsAtTheSamePlaces) {
  const TSortie& un = Dessin("100", "--team 1");
  const TSortie& deux = Dessin("100", "--team 2");
  ASSERT_EQ(un.Code, 0);
  ASSERT_EQ(deux.Code, 0);
  ASSERT_EQ(un.Image.size(), deux.Image.size());
  const std::vector<QRect> cases = Cases(A_100, 800, 400);
  EXPECT_GT(Differents(un.Image, deux.Image, cases[0]) + Differents(un.Image, deux.Image, cases[1]), 20);
  EXPECT_EQ(DifferentsHors(un.Image, deux.Image, cases), 0);
}

// The routine's own TEAM line does not choose the models: team 1 unless --team says.
TEST_F(RenderCommandTest, TeamIsOneUnlessGiven) {
  const TSortie& defaut = Dessin("100");
  const TSortie& un = Dessin("100", "--team 1");
  ASSERT_EQ(defaut.Code, 0);
  ASSERT_EQ(un.Code, 0);
  ASSERT_EQ(defaut.Image.size(), un.Image.size());
  EXPECT_EQ(Differents(defaut.Image, un.Image, un.Image.rect()), 0);
}

TEST_F(RenderCommandTest, BadArgumentsExitWithTwoAndWriteNothing) {
  for (const std::string& arguments :
       {Routine() + " 100", Routine() + " 100 x.png --size 0x5", Routine() + " 100 x.png --team 9",
        Routine() + " -3 x.png", Routine() + " 100 x.png --size", Routine() + " 100 x.png --camera dessus",
       Routine() + " 100 x.png --traines 90"}) {
    EXPECT_EQ(Lance(arguments), 2) << arguments;
    EXPECT_NE(Sortie().find("render IN T OUT.png"), std::string::npos) << arguments;
    EXPECT_EQ(NbPng(), 0) << arguments;
  }
}

// A picture kept from before the 3D options existed, and one with all of them from the judges'
// stand: the kites at T = 400, where they cross.
QImage Reference(const char* nom) {
  return QImage(QString::fromUtf8(TRAJ_TEST_DATA "/rendu/") + QString::fromUtf8(nom)).convertToFormat(QImage::Format_RGB32);
}

TEST_F(RenderCommandTest, WithNoOptionThePictureIsTheOneOfBeforeSaveTheKitesColours) {
  const TSortie& defaut = Dessin("400");
  const QImage avant = Reference("sans_option_400.png");
  ASSERT_EQ(defaut.Code, 0);
  ASSERT_EQ(avant.size(), defaut.Image.size());
  // Team 1 now flies the sheets' colours: kite 1 black where it was red, kite 2 red where it
  // was blue; nothing else moved.
  const std::vector<QRect> cases = Cases(A_400, 800, 400);
  EXPECT_EQ(DifferentsHors(defaut.Image, avant, cases), 0);
  EXPECT_GT(Differents(defaut.Image, avant, cases[0]), 20);
  EXPECT_GT(Differents(defaut.Image, avant, cases[1]), 20);
}

TEST_F(RenderCommandTest, EveryOptionFromTheJudgesStandDrawsTheKeptPicture) {
  const TSortie& tout = Dessin("400", "--traines --lignes --sol --fenetre --camera juge");
  const QImage garde = Reference("options_juge_400.png");
  ASSERT_EQ(tout.Code, 0);
  ASSERT_EQ(garde.size(), tout.Image.size());
  // Software rasterisers may round an edge differently: a few pixels in a hundred.
  EXPECT_LT(Differents(tout.Image, garde, garde.rect()), 800 * 400 / 100);
}

TEST_F(RenderCommandTest, EachOptionAddsToThePicture) {
  const TSortie& defaut = Dessin("400");
  ASSERT_EQ(defaut.Code, 0);
  for (const char* option : {"--traines", "--traines 0.5", "--lignes", "--sol", "--fenetre", "--camera pilotes"}) {
    const TSortie& avec = Dessin("400", option);
    ASSERT_EQ(avec.Code, 0) << option;
    EXPECT_GT(Differents(defaut.Image, avec.Image, defaut.Image.rect()), 50) << option;
  }
  // A shorter trail covers less of the sky.
  EXPECT_GT(Differents(defaut.Image, Dessin("400", "--traines").Image, defaut.Image.rect()),
            Differents(defaut.Image, Dessin("400", "--traines 0.5").Image, defaut.Image.rect()));
  // The public's camera is the default one.
  EXPECT_EQ(Differents(defaut.Image, Dessin("400", "--camera public").Image, defaut.Image.rect()), 0);
}

TEST_F(RenderCommandTest, UnreadableRoutineOrUnwritablePictureExitsWithOne) {
  EXPECT_EQ(Lance("/nulle-part/absente.rou 100 x.png"), 1);
  EXPECT_NE(Sortie().find("impossible de lire « /nulle-part/absente.rou »"), std::string::npos) << Sortie();
  EXPECT_EQ(NbPng(), 0);
  EXPECT_EQ(Lance(Routine() + " 100 absent/x.png"), 1);
  EXPECT_NE(Sortie().find("impossible d'écrire « absent/x.png »"), std::string::npos) << Sortie();
  EXPECT_FALSE(std::filesystem::exists("absent"));
}

}  // namespace
