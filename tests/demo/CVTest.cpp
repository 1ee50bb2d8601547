// The flight generator: the keys each kind of element lays, and the reports of bad times.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "demo/D3DDemo.h"
#include "model/elements/Figure.h"
#include "support/DocumentTest.h"
#include "support/Fichiers.h"
#include "support/Trace.h"

namespace {

std::vector<float> Temps(const TTrajectoire& tr, bool positions) {
  std::vector<float> v;
  for (const TClePosee& c : tr.Ordre)
    if (c.Position == positions) v.push_back(c.t);
  return v;
}

class CVTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    cv.Trajectoire(&tr);
  }
  CV cv;
  TTrajectoire tr;
};

TEST_F(CVTest, SegmentTurnsInATenthThenFliesStraight) {
  cv.Point(0, 0, 0, 0);
  cv.Segment(1, 500, 30, 40, 10.0f);
  EXPECT_EQ(Temps(tr, true), (std::vector<float>{0, 500}));
  EXPECT_EQ(Temps(tr, false), (std::vector<float>{10, 500}));
  const TOrientation o = tr.Orientations.Echantillonne(500);
  EXPECT_FLOAT_EQ(o.Y.x, 0.6f);
  EXPECT_FLOAT_EQ(o.Y.y, 0.8f);
  EXPECT_EQ(o.Z.z, 1.0f);
  // A segment shorter than its turn lays that key after its own end: the track sorts it.
  cv.Segment(2, 505, 30, 50, 10.0f);
  EXPECT_EQ(tr.Orientations.GetCles().back().first, 510.0f);
  EXPECT_EQ(tr.Orientations.GetCles()[tr.Orientations.nbCles() - 2].first, 505.0f);
}

TEST_F(CVTest, AxelKeysSplitItsDurationInElevenWithAPauseAfterTheFirst) {
  cv.Point(0, 100, 10, 10);
  cv.AxelG(1, 400, 110);
  EXPECT_EQ(Temps(tr, false), (std::vector<float>{110, 310, 320, 330, 370, 400}));
  EXPECT_EQ(Temps(tr, true), (std::vector<float>{100, 400}));
  EXPECT_FLOAT_EQ(tr.Orientations.Echantillonne(320).Z.x, 0.24f);  // leaning into the axel
  EXPECT_EQ(cv.xY, -1.0f);
  // Squeezed: more duration than time leaves no pause and ends exactly at t.
  cv.AxelD(2, 455, 110);
  EXPECT_EQ(Temps(tr, false).back(), 455.0f);
  EXPECT_FLOAT_EQ(Temps(tr, false)[6], 405.0f);
  EXPECT_EQ(cv.xY, 1.0f);
}

TEST_F(CVTest, RotationLaysAKeyEveryQuarterTurn) {
  cv.Point(0, 0, 0, 0);
  cv.Rot(1, 100, 200);
  EXPECT_EQ(Temps(tr, false), (std::vector<float>{45, 90, 100}));
  EXPECT_NEAR(tr.Orientations.Echantillonne(45).Y.x, 1, 1e-6);
  EXPECT_NEAR(tr.Orientations.Echantillonne(90).Y.y, -1, 1e-6);
  tr = TTrajectoire();
  cv.Point(0, 0, 0, 0);
  cv.Rot(1, 100, 90);  // exactly a quarter: the intermediate key falls on the final one
  EXPECT_EQ(Temps(tr, false), (std::vector<float>{100, 100}));
  cv.Rot(2, 200, 92);  // under 3 degrees: the final key alone
  EXPECT_EQ(Temps(tr, false), (std::vector<float>{100, 100, 200}));
}

TEST_F(CVTest, ArcKeysStandEveryTenthAndAtTheEndUnlessTooClose) {
  for (const auto& [duree, attendu] : std::vector<std::pair<float, std::vector<float>>>{
           {25, {10, 20, 25}}, {30, {10, 20, 30}}, {31, {10, 20, 30}}, {32, {10, 20, 30, 32}}, {8, {10}}}) {
    tr = TTrajectoire();
    cv.Point(0, 0, 0, 0);
    cv.Arc(1, duree, 10, 0, 20, 0, false);
    std::vector<float> v = Temps(tr, true);
    v.erase(v.begin());  // the point's
    EXPECT_EQ(v, attendu) << duree;
    EXPECT_EQ(Temps(tr, false), attendu) << duree;
  }
  // Under 10, the one key lies past the end of the arc.
  EXPECT_GT(std::hypot(cv.X - 20, cv.Y), 1.0);
  // Half a turn round (10, 0), clockwise on the sheet: the last key is at the end point.
  tr = TTrajectoire();
  cv.Point(0, 0, 0, 0);
  cv.Arc(1, 30, 10, 0, 20, 0, false);
  EXPECT_NEAR(cv.X, 20, 1e-3);
  EXPECT_NEAR(cv.Y, 0, 1e-3);
  EXPECT_NEAR(tr.Positions.Echantillonne(20).y, 10 * std::sin(3.14159265 / 3), 1e-3);
  cv.Arc(2, 50, 20, 0, 30, 0, true);
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Fonction Arc N°2 : rayon nul!!!");
}

TEST_F(CVTest, LandingHoldsThenComesDownAndStays) {
  cv.Point(0, 0, 0, 80);
  cv.Segment(1, 100, 0, 80.5f, 10);  // nearly level at height 80
  cv.Pose2(2, 200, 300);
  EXPECT_EQ(Temps(tr, true), (std::vector<float>{0, 100, 120, 201, 300}));
  EXPECT_FLOAT_EQ(tr.Positions.Echantillonne(120).y, 80.5f);
  EXPECT_FLOAT_EQ(tr.Positions.Echantillonne(201).y, 2.7f);
  EXPECT_FLOAT_EQ(cv.Y, 2.7f);
  cv.PoseGauche(3, 310, 320);  // touch-down within 20: no holding key
  EXPECT_EQ(Temps(tr, true).size(), 7u);
  EXPECT_FLOAT_EQ(cv.Y, 5.0f);
}

TEST_F(CVTest, BadTimeIsReportedAndTheNextElementGoesOnFromTheSameState) {
  cv.Point(0, 0, 0, 0);
  cv.Segment(1, 100, 10, 0, 10);
  const std::size_t avant = tr.Ordre.size();
  cv.Segment(2, 100, 20, 0, 10);  // same end time as the element before
  cv.Stop(3, 100);
  EXPECT_EQ(tr.Ordre.size(), avant);
  cv.Segment(-7, 50, 5, 5, 10);   // inside figure 7
  cv.Segment(-7, 150, 10, 0, 10); // no length
  cv.Derapage(-7, 160, 10, 0);
  const std::vector<std::string> attendus = {
      "!!!! Fonction Segment N°2 : durée <= 0!!!", "!!!! Fonction Stop N°3 : durée  <= 0!!!",
      "!!!! Fonction Segment de la FigureN°7 : durée <= 0!!!", "!!!! Fonction Segment N°-7: longueur nulle!!!",
      "!!!! Fonction Dérapage de la Figure N°7: longueur nulle!!!"};
  EXPECT_EQ(dialogues.Statuts, attendus);
  cv.AxelD(-3, 10, 110);
  cv.Flat540G(4, 10);
  cv.ArcRevo(-2, 10, 0, 0, 5, 5, true, 0);
  cv.Pose2(6, 5, 10);
  const std::vector<std::string> suite = {"!!!! Fonction AxelD de la Figure N°3: Pb Temps Axel Droite!!!",
                                          "!!!! Fonction 540 N°4: Pb Temps 540 Gauche!!!",
                                          "!!!! Fonction ArcREvo de la Figure N°2 : durée <= 0!!!",
                                          "!!!! Fonction Posé2 N°6 : durée trop faible!!!"};
  EXPECT_EQ(std::vector<std::string>(dialogues.Statuts.end() - 4, dialogues.Statuts.end()), suite);
  cv.Derapage(4, 200, 40, 0);
  EXPECT_EQ(Temps(tr, false).back(), 200.0f);
  EXPECT_EQ(cv.X, 40.0f);
}

class DirectXTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    int ok = 0;
    demo = std::make_unique<TD3DDemo>(rendu, &ok, 1, 1000.0f, 1);
    Globals.pD3DDemo = demo.get();
  }
  void TearDown() override {
    Globals.pD3DDemo = nullptr;
    demo.reset();
    FichiersTest::TearDown();
  }
  TRenduAbsent rendu;
  std::unique_ptr<TD3DDemo> demo;
  TFeuilleTest f;
};

TEST_F(DirectXTest, ElementsHandThemselvesToTheirKite) {
  Ajoute<TPt>(f.fen, 2, 0, 0);
  auto* s = Ajoute<TSegment>(f.fen, 2, 30, 40);
  s->Sett2Param(500);
  for (TNoeud* n = TabLElt[2].Premier(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->DirectX();
  EXPECT_EQ(Temps(demo->Trajectoires[2], true), (std::vector<float>{0, 500}));
  EXPECT_TRUE(demo->Trajectoires[0].Ordre.empty());
}

TEST_F(DirectXTest, FigureLaysNoKeyForItsAnchorHoweverOftenItRuns) {
  Ecrit("coin.fig",
        "POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\n"
        "SEGMENT \t0\t1\t3\t1\t100\t\t10  0\t\t0.1\t\t\n");
  Ajoute<TPt>(f.fen, 0, 50, 50)->Sett2Param(40);
  auto* fig = Ajoute<TFigure>(f.fen, 0, 0, 0, "coin.fig", true);
  for (int fois = 0; fois < 2; ++fois) {
    demo->Trajectoires[0] = TTrajectoire();
    demo->TabCV[0].Trajectoire(&demo->Trajectoires[0]);
    for (TNoeud* n = TabLElt[0].Premier(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->DirectX();
    EXPECT_EQ(Temps(demo->Trajectoires[0], true), (std::vector<float>{40, 140})) << fois;
    EXPECT_EQ(demo->Trajectoires[0].Positions.Echantillonne(140).x, 60.0f) << fois;
  }
  // Inside the figure, a report names the figure.
  auto* inner = static_cast<TElt*>(fig->pListeFig->Dernier());
  inner->Sett2Param(-1000);
  demo->TabCV[0].T = 5000;
  inner->DirectX();
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Fonction Segment de la FigureN°" + std::to_string(fig->Num) + " : durée <= 0!!!");
}

}  // namespace
