// The scene's music orders reaching SDL2_mixer: pause silences it, forward plays it again
// from the routine's time, as the disk driver's output shows.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "platform/Horloge.h"
#include "gui/son/SonSDL.h"
#include "support/DocumentTest.h"
#include "SonDisque.h"

namespace {

class SonSceneTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    avant = std::filesystem::current_path();
    std::filesystem::current_path(banc.Dossier);
    std::ofstream("CV1_1.x") << "modèle";  // the scene looks for the kite's model here
    SetHorloge(&horloge);
    SetSon(son.get());
  }
  void TearDown() override {
    FermeDemo();
    SetSon(nullptr);
    SetHorloge(nullptr);
    son.reset();
    std::filesystem::current_path(avant);
    DocumentTest::TearDown();
  }

  TBancSon banc;
  THorlogeTest horloge;
  std::unique_ptr<TSonSDL> son = std::make_unique<TSonSDL>();
  std::filesystem::path avant;
};

TEST_F(SonSceneTest, PauseSilencesTheMusicAndForwardResumesAtTheRoutinesTime) {
  // A folder with a blank in its name: the path reaches the mixer whole.
  const auto fichier = banc.Dossier / "ma musique.wav";
  std::filesystem::copy_file(banc.Rampe(), fichier);
  std::snprintf(_FichierMusique, sizeof _FichierMusique, "%s", fichier.c_str());
  InitDemo(1, 100000.0f);
  ASSERT_EQ(Globals.blDemoOK, 1);
  ASSERT_TRUE(TD3DDemo::MusiqueEnCours);
  TD3DDemo& scene = *Globals.pD3DDemo;

  scene.Go();  // paused at the start
  EXPECT_FALSE(son->EnLecture("musique"));
  scene.Mode = MODE_AVANT;
  scene.Go();
  EXPECT_TRUE(son->EnLecture("musique"));
  EXPECT_EQ(son->DernierDepartMs(), 0);

  ASSERT_TRUE(banc.AttendsSortie([](const TSortie& s) { return !s.Passages.empty(); })) << "nothing played";

  horloge.Ms += 1500;
  scene.Go();
  scene.Mode = MODE_PAUSE;
  scene.Go();
  EXPECT_FALSE(son->EnLecture("musique"));
  // All that was mixed before the pause is in the file by `pause`; the pause goes on while a
  // tenth of a second more is played.
  const long pause = banc.TramesEcrites() + RETARD_ECRITURE;
  ASSERT_TRUE(banc.AttendsSortie([pause](const TSortie& s) { return s.Trames >= pause + TramesDe(100); }));
  horloge.Ms += 700;
  scene.Go();
  EXPECT_FALSE(son->EnLecture("musique"));

  scene.Mode = MODE_AVANT;
  scene.Go();
  EXPECT_EQ(scene.tCourant, 150u);
  EXPECT_TRUE(son->EnLecture("musique"));
  EXPECT_EQ(son->DernierDepartMs(), static_cast<int>(scene.tCourant) * 10);
  ASSERT_TRUE(banc.AttendsSortie([](const TSortie& s) { return s.Passages.size() >= 2; }))
      << "forward after the pause played nothing";

  FermeDemo();
  EXPECT_FALSE(son->Ouvert("musique"));
  EXPECT_TRUE(dialogues.Boites.empty());  // no order failed
  son.reset();
  const TSortie s = banc.Sortie();
  ASSERT_EQ(s.Passages.size(), 2u);
  EXPECT_EQ(s.Passages[0].Premiere, 0);
  EXPECT_EQ(s.Passages[1].Premiere, TramesDe(1500));
  // The pause was heard as silence, not as the music going on.
  EXPECT_LE(s.Passages[0].Debut + s.Passages[0].Longueur, pause);
}

}  // namespace
