// The pilots' notation of points read from tests/data/equipe/notation.txt: "x y => text".
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "equipe/Notation.h"
#include "support/DocumentTest.h"

TEST(NotationTest, CornersCentreAndTruncatedValues) {
  std::ifstream f(std::string(TRAJ_TEST_DATA) + "/equipe/notation.txt");
  ASSERT_TRUE(f) << "notation.txt";
  int cas = 0;
  for (std::string ligne; std::getline(f, ligne);) {
    if (ligne.empty() || ligne[0] == '#') continue;
    const auto fleche = ligne.find(" => ");
    ASSERT_NE(fleche, std::string::npos) << ligne;
    std::istringstream xy(ligne.substr(0, fleche));
    float x = 0, y = 0;
    ASSERT_TRUE(xy >> x >> y) << ligne;
    EXPECT_EQ(NotationPilote({x, y}), ligne.substr(fleche + 4)) << ligne;
    ++cas;
  }
  EXPECT_GE(cas, 10);
}

// The editor's position gadget: the mouse's logical coordinates, then the same point in the
// pilots' notation.
class PositionTest : public DocumentTest {};

TEST_F(PositionTest, TheGadgetShowsTheNotationBesideTheCoordinates) {
  TFenCadre2 cadre;
  cadre.SetHauteurs(0, 0, 0);
  cadre.SetupWindow();
  cadre.EvSize(880, 640);
  TFenDessin& feuille = *cadre.pFenDesActive;
  TDCEnregistreur dc;
  feuille.SetEchelle(dc);
  const std::pair<TPointf, const char*> cas[] = {
      {{-70, 10}, "-70 , 10   <70 ^10"}, {{45, 80}, "45 , 80   >45 ^80"}, {{0, 50}, "0 , 50   <>0 ^50"}};
  for (const auto& [p, attendu] : cas) {
    feuille.EvMouseMove(0, feuille.LPtoDP(p));
    EXPECT_EQ(cadre.GetTextePosition(), attendu);
  }
}
