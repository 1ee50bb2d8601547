// Pictures of the scene drawn by the OpenGL renderer, looked at pixel by pixel.
#include <gtest/gtest.h>

#include <QColor>
#include <QSet>

#include <filesystem>
#include <fstream>

#include "Scene.h"
#include "demo/Journal.h"

namespace {

// From the default camera, (0, 54, -215) with a horizontal half-tangent of 0.5, the plane
// z = 0 shows x from -107.5 to 107.5 and y from 0.25 to 107.75 in a 2:1 picture.
QPointF OuTombe(float x, float y, int largeur, int hauteur) {
  return {largeur / 2.0 * (1 + x / 107.5), hauteur / 2.0 * (1 - (y - 54) / 53.75)};
}

TEST_F(SceneGLTest, KitesLandWhereTheDefaultCameraPutsThem) {
  const QImage vide = Vide();
  ASSERT_FALSE(vide.isNull());
  ASSERT_EQ(vide.size(), QSize(800, 400));
  for (float x : {80.0f, -80.0f}) {
    const QRect zone = ZoneDifferente(vide, Dessine({{{x, 50, 0}, NEZ_EN_HAUT}}));
    ASSERT_FALSE(zone.isEmpty()) << x;
    const QPointF attendu = OuTombe(x, 50, 800, 400);
    EXPECT_NEAR(zone.center().x(), attendu.x(), 10) << x;
    EXPECT_NEAR(zone.center().y(), attendu.y(), 10) << x;
    // A wingspan of about 8 units is about 30 pixels at this distance.
    EXPECT_GT(zone.width(), 20);
    EXPECT_LT(zone.width(), 45);
  }
}

TEST_F(SceneGLTest, OrientationTurnsTheModelAsTheFlightSays) {
  // Nearer the camera, so that the shape has enough pixels to be read.
  const TVecteur3 ici{0, 54, -135};
  const QImage vide = Vide();
  const QImage enHaut = Dessine({{ici, NEZ_EN_HAUT}});
  const QRect zoneHaut = ZoneDifferente(vide, enHaut);
  EXPECT_GT(zoneHaut.width(), zoneHaut.height());  // the wingspan lies across
  const TSilhouette haut = Silhouette(vide, enHaut, zoneHaut);
  EXPECT_LT(haut.LargeurHaut, haut.LargeurBas);  // the nose is the narrow end, at the top

  const QImage aDroite = Dessine({{ici, NEZ_A_DROITE}});
  const QRect zoneDroite = ZoneDifferente(vide, aDroite);
  EXPECT_GT(zoneDroite.height(), zoneDroite.width());  // level flight stands the kite upright
  const TSilhouette droite = Silhouette(vide, aDroite, zoneDroite);
  EXPECT_LT(droite.HauteurDroite, droite.HauteurGauche);  // nose to the right of the picture
}

TEST_F(SceneGLTest, BackdropFillsThePictureAwayFromTheKites) {
  const QImage image = Dessine({{{80, 50, 0}, NEZ_EN_HAUT}});
  QImage nuages(QString::fromStdString(CheminDonnee("Nuages.bmp")));
  ASSERT_FALSE(nuages.isNull());
  nuages = nuages.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QSet<QRgb> couleurs;
  int proches = 0, total = 0;
  for (int y = 4; y < 400; y += 12)
    for (int x = 4; x < 600; x += 12) {  // the kite is further right
      couleurs.insert(image.pixel(x, y));
      proches += Ecart(image.pixel(x, y), nuages.pixel(x, y)) < 40;
      ++total;
    }
  EXPECT_GT(couleurs.size(), 100);  // not a flat colour
  EXPECT_GT(proches, total * 9 / 10);  // the clouds, upright, stretched to the picture
}

TEST_F(SceneGLTest, EachFaceIsDrawnInOneColour) {
  const QImage vide = Vide();
  const QImage image = Dessine({{{0, 54, -160}, NEZ_EN_HAUT}});
  const QRect zone = ZoneDifferente(vide, image);
  ASSERT_GT(zone.width(), 40);
  // Inside the kite, neighbours differ only where two faces meet.
  int paires = 0, egales = 0;
  for (int y = zone.top(); y <= zone.bottom(); ++y)
    for (int x = zone.left(); x < zone.right(); ++x) {
      const bool dedans = Ecart(vide.pixel(x, y), image.pixel(x, y)) > 24 &&
                          Ecart(vide.pixel(x + 1, y), image.pixel(x + 1, y)) > 24;
      if (!dedans) continue;
      ++paires;
      egales += image.pixel(x, y) == image.pixel(x + 1, y);
    }
  ASSERT_GT(paires, 300);
  EXPECT_GT(egales, paires * 8 / 10);
  // And the light makes the faces differ from their bare material: no face is black and
  // none is lit beyond white.
  QSet<QRgb> teintes;
  for (int y = zone.top(); y <= zone.bottom(); ++y)
    for (int x = zone.left(); x <= zone.right(); ++x)
      if (Ecart(vide.pixel(x, y), image.pixel(x, y)) > 24) teintes.insert(image.pixel(x, y));
  EXPECT_GT(teintes.size(), 2);
}

TEST_F(SceneGLTest, SunOnTheOtherSideLeavesTheSailInTheDark) {
  const TVecteur3 ici{0, 54, -160};
  const QImage vide = Vide();
  const QImage eclaire = Dessine({{ici, NEZ_EN_HAUT}});
  const QRect zone = ZoneDifferente(vide, eclaire);
  ASSERT_FALSE(zone.isEmpty());
  // Flat on its back the kite's sail faces up; a level sun grazes it, and with no ambient
  // light what it does not reach is black.
  const QImage aPlat = Dessine({{ici, {{0, 1, 0}, {0, 0, 1}}}});
  const QRect zonePlat = ZoneDifferente(vide, aPlat);
  ASSERT_FALSE(zonePlat.isEmpty());
  int noirs = 0, pixels = 0;
  for (int y = zonePlat.top(); y <= zonePlat.bottom(); ++y)
    for (int x = zonePlat.left(); x <= zonePlat.right(); ++x)
      if (Ecart(vide.pixel(x, y), aPlat.pixel(x, y)) > 24) {
        ++pixels;
        noirs += qGray(aPlat.pixel(x, y)) < 40;
      }
  EXPECT_GT(noirs, pixels / 2);
}

TEST_F(SceneGLTest, NewSizeRemakesTheDeviceAndKeepsTheScene) {
  Dessine({{{80, 50, 0}, NEZ_EN_HAUT}});
  surface.SetTaille(QSize(400, 200));
  ASSERT_TRUE(Globals.pD3DDemo->blCreateDeviceAndViewport());
  Globals.pD3DDemo->Go();
  const QImage petite = surface.Image();
  ASSERT_EQ(petite.size(), QSize(400, 200));
  // The kite is still there, at the same place in proportion.
  Globals.pD3DDemo->Trajectoires[0].Positions.Vide();
  Globals.pD3DDemo->Trajectoires[0].PosePosition(0, {0, 0, -500});
  Globals.pD3DDemo->Go();
  const QRect zone = ZoneDifferente(surface.Image(), petite);
  ASSERT_FALSE(zone.isEmpty());
  EXPECT_NEAR(zone.center().x(), OuTombe(80, 50, 400, 200).x(), 6);
}

// A folder with the backdrop and the models of team 1 except those the test spoils. The
// test runs from a folder beside the log's ../data, all inside its scratch folder.
class DonneesPartiellesTest : public SceneGLTest {
protected:
  void SetUp() override {
    SceneGLTest::SetUp();
    std::filesystem::create_directories(dossier / "donnees");
    std::filesystem::create_directories(dossier / "data");
    std::filesystem::create_directories(dossier / "bin");
    std::filesystem::current_path(dossier / "bin");
    SetDossierDonnees((dossier / "donnees").string());
  }
  void Copie(const std::string& nom) {
    std::filesystem::copy_file(std::filesystem::path(TRAJ_DATA) / nom, dossier / "donnees" / nom);
  }
  std::string Journal() { return LitFichier("../data/DXError.txt").value_or(""); }
};

TEST_F(DonneesPartiellesTest, MissingOrBrokenModelShowsItsBoxAndTheKiteIsLeftOut) {
  Copie("Nuages.bmp");
  Copie("CV1_3.x");
  Ecrit("../donnees/CV1_2.x", "xof 0303txt 0032\nFrame FRAME_CV2 {");  // cut short
  const QImage image = Dessine({{{-80, 50, 0}, NEZ_EN_HAUT}, {{0, 50, 0}, NEZ_EN_HAUT}, {{80, 50, 0}, NEZ_EN_HAUT}});
  ASSERT_EQ(dialogues.Boites.size(), 2u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "fichier CV1.x inexistant");
  EXPECT_EQ(dialogues.Boites[0].Titre, "Ouvrir fichier CV.x");
  EXPECT_EQ(dialogues.Boites[1].Texte, "Echec chargement CV2.x : ça va planter!!!");
  EXPECT_EQ(dialogues.Boites[1].Titre, "CreateScene()");
  EXPECT_EQ(Globals.blDemoOK, 1);
  // Only the third kite is drawn.
  const QImage vide = Dessine({{{0, 0, -500}, NEZ_EN_HAUT}, {{0, 0, -500}, NEZ_EN_HAUT}, {{0, 0, -500}, NEZ_EN_HAUT}});
  const QRect zone = ZoneDifferente(vide, image);
  ASSERT_FALSE(zone.isEmpty());
  EXPECT_GT(zone.left(), 600);
}

TEST_F(DonneesPartiellesTest, MissingBackdropLeavesOneRecordAndAPlainBackground) {
  // Kite 2, red: kite 1 is black, as on the sheets, and would not show on a black ground.
  Copie("CV1_1.x");
  Copie("CV1_2.x");
  const QImage image = Dessine({{{0, 0, -500}, NEZ_EN_HAUT}, {{80, 50, 0}, NEZ_EN_HAUT}});
  EXPECT_EQ(Journal(), "(30) SCENEERR_FICHIERFOND\n");
  EXPECT_EQ(Globals.blDemoOK, 1);
  EXPECT_TRUE(dialogues.Boites.empty());
  ASSERT_FALSE(image.isNull());
  // Plain away from the kite, and the kite is drawn.
  QSet<QRgb> fond;
  for (int y = 0; y < 400; y += 10)
    for (int x = 0; x < 500; x += 10) fond.insert(image.pixel(x, y));
  EXPECT_EQ(fond.size(), 1);
  EXPECT_NE(image.pixel(OuTombe(80, 50, 800, 400).toPoint()), *fond.begin());
}

}  // namespace
