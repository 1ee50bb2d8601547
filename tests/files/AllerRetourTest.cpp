// A routine with every kind of element, written, read back and written again.
#include <gtest/gtest.h>

#include "files/Ecriture.h"
#include "support/Fichiers.h"

namespace {

class AllerRetourTest : public FichiersTest {};

TEST_F(AllerRetourTest, ShortRoutineComesBackByteForByte) {
  const std::string courte = Donnee("resave/routine_courte.rou");
  ASSERT_TRUE(Ouvre(courte));
  EXPECT_EQ(TexteRoutine(), courte);
}

TEST_F(AllerRetourTest, EveryClassSheetsLinksAndMirroredFiguresComeBackTheSame) {
  Ecrit("vague.fig",
        "TEAM   4 \n"
        "POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\n"
        "ARC     \t0\t1\t3\t1\t157.1\t\t10  10\t\t0.1\t10\t\t-1.571\t\t\n"
        "AXEL   \t0\t2\t5\t1\t267.1\t\t10  10\t\t0.4\t\t\t0\t\t110\t\n");
  const std::string routine =
      "TEAM   3 \n"
      "MUSIQUE   vent.wav \n"
      "POINT   \t0\t0\t2\t1\t0\t\t-80  20\t\t0.4\t\t\n"
      "SEGMENT \t0\t1\t3\t1\t125\t\t-30  20\t\t0.4\t\t\n"
      "SEGREVO \t0\t2\t2\t1\t300\t\t-30  60\t\t0.2286\t\t-45\t\t\n"
      "ARC     \t0\t3\t3\t1\t378.5\t\t-20  70\t\t0.2\t10\t\t1.571\t\t\n"
      "ARCREVO \t0\t4\t3\t2\t457\t\t-10  60\t\t0.2\t10\t1.571\t30\t\t\n"
      "DERAPAGE\t0\t5\t2\t2\t600\t\t20  60\t\t0.2098\t\t\n"
      "540     \t0\t6\t5\t2\t710\t\t20  60\t\t0.4\t\t\t1\t\t110\t\n"
      "ROT   \t0\t7\t5\t2\t810\t\t20  60\t\t0.4\t\t\t100\t90\t\n"
      "STOP   \t0\t8\t2\t2\t950\t\t20  60\t\t0.4\t\t\t140\t\n"
      "POSE   \t0\t9\t3\t2\t1184\t\t20  2\t\t0.4\t\t\t100\t\t2\t\t\n"
      "ALLERA \t0\t10\t5\t2\t1284\t\t40  50\t\t0.4\t\t100\t0.5\t0\t1\t0\t1\t0\t12\t\t\n"
      "FIGURE  \t0\t11\t5\t2\t1551.1\t\t50  50\t\t0.4\t\t267.1\tvague.fig\t552\t\t\n"
      "FIGURE  \t0\t12\t5\t2\t1818.2\t\t50  30\t\t0.4\t\t267.1\tvague.fig\t553\t\t\n"
      "FIGURE  \t0\t13\t5\t2\t2085.3\t\t40  20\t\t0.4\t\t267.1\tvague.fig\t554\t\t\n"
      "FIGURE  \t0\t14\t5\t2\t2352.4\t\t30  30\t\t0.4\t\t267.1\tvague.fig\t555\t\t\n"
      "POINT   \t1\t15\t2\t1\t0\t\t80  20\t\t0.4\t\t\n"
      "SEGMENT \t1\t16\t2\t1\t300\t\t50  40\t\t0.1202\t\t\t0\t2\n"
      "SEGMENT \t1\t17\t2\t2\t950\t\t60  40\t\t0.01538\t\t\t0\t8\n"
      "POINT   \t2\t18\t2\t1\t0\t\t0  90\t\t0.4\t\t\n"
      "SEGMENT \t2\t19\t2\t2\t950\t\t0  70\t\t0.02105\t\t\t0\t8\n";
  ASSERT_TRUE(Ouvre(routine));
  EXPECT_EQ(Team, 4);  // a figure saved as a routine brings its own team line along
  const std::string premier = TexteRoutine();
  ASSERT_TRUE(Ouvre(premier));
  const std::string second = TexteRoutine();
  EXPECT_EQ(second, premier);
  EXPECT_EQ(premier.substr(0, 29), "TEAM   4 \nMUSIQUE   vent.wav ");
  // Both children of the stop share its number on sheet 2; the first link is sheet 1's.
  EXPECT_EQ(static_cast<TElt*>(TabLElt[0].GetPt(2))->NumSynchro, 1);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[0].GetPt(8))->NumSynchro, 1);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[2].GetPt(1))->pPere, static_cast<TElt*>(TabLElt[0].GetPt(8)));
  EXPECT_EQ(cadre->nbFeuilles, 3);
  EXPECT_EQ(TabLElt[0].nbNoeud(), 15);
}

}  // namespace
