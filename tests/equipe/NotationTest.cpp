// The pilots' notation of points read from tests/data/equipe/notation.txt: "x y => text".
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "equipe/Notation.h"

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
