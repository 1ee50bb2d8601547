// The music on SDL2_mixer: what it plays is read back from the disk driver's output, frame by
// frame, so a start a few milliseconds off or a stop that does not stop shows.
#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include "gui/son/SonSDL.h"
#include "SonDisque.h"

namespace {

class SonSDLTest : public ::testing::Test {
protected:
  // Closes the device and reads what was played.
  TSortie Sortie() {
    son.reset();
    return banc.Sortie();
  }

  TBancSon banc;
  std::unique_ptr<TSonSDL> son = std::make_unique<TSonSDL>();
};

TEST_F(SonSDLTest, PlaysFromTheAskedMillisecondUntilStopped) {
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  ASSERT_EQ(son->Jouer("musique", 1500), 0);
  EXPECT_TRUE(son->EnLecture("musique"));
  ASSERT_TRUE(banc.AttendsSortie([](const TSortie& s) { return !s.Passages.empty(); })) << "nothing played";
  ASSERT_EQ(son->Jouer("musique", 250), 0);  // a second start, backwards, while playing
  EXPECT_EQ(son->DernierDepartMs(), 250);
  ASSERT_TRUE(banc.AttendsSortie([](const TSortie& s) { return s.Passages.size() >= 2; }))
      << "the second start played nothing";
  EXPECT_EQ(son->Arreter("musique"), 0);
  EXPECT_FALSE(son->EnLecture("musique"));
  // All that was mixed before the stop is in the file by `arret`; after it, a tenth of a
  // second more, which must be silence.
  const long arret = banc.TramesEcrites() + RETARD_ECRITURE;
  ASSERT_TRUE(banc.AttendsSortie([arret](const TSortie& s) { return s.Trames >= arret + TramesDe(100); }));

  const TSortie s = Sortie();
  ASSERT_EQ(s.Passages.size(), 2u);
  // Each start's first frame is the file's frame at that millisecond, to the frame.
  EXPECT_EQ(s.Passages[0].Premiere, TramesDe(1500));
  EXPECT_EQ(s.Passages[1].Premiere, TramesDe(250));
  EXPECT_LE(s.Passages[1].Debut + s.Passages[1].Longueur, arret) << "played on after the stop";
}

TEST_F(SonSDLTest, PlaysToTheEndOfTheFileThenFallsSilent) {
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  ASSERT_EQ(son->Jouer("musique", 3900), 0);
  EXPECT_TRUE(son->EnLecture("musique"));
  ASSERT_TRUE(Attends([&] { return !son->EnLecture("musique"); })) << "never came to the end";
  EXPECT_EQ(son->Arreter("musique"), 0);

  const TSortie s = Sortie();
  ASSERT_EQ(s.Passages.size(), 1u);
  EXPECT_EQ(s.Passages[0].Premiere, TramesDe(3900));
  EXPECT_EQ(s.Passages[0].Premiere + s.Passages[0].Longueur, TramesDe(4000));
  EXPECT_GT(s.SilenceFinal, 0);
}

TEST_F(SonSDLTest, PositionsOutsideTheFileAreRefusedAndChangeNothing) {
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  ASSERT_EQ(son->Jouer("musique", 1000), 0);
  EXPECT_EQ(son->Jouer("musique", -1), TSonSDL::ErreurPosition);
  EXPECT_EQ(son->Jouer("musique", 4000), TSonSDL::ErreurPosition);
  EXPECT_TRUE(son->EnLecture("musique"));
  EXPECT_EQ(son->DernierDepartMs(), 1000);
  EXPECT_EQ(son->Jouer("musique", 3999), 0);  // the last millisecond is still in the file
}

TEST_F(SonSDLTest, OrdersNeedAnOpenNameAndStoppingASilentOneIsFine) {
  EXPECT_EQ(son->Jouer("musique", 0), TSonSDL::ErreurNomInconnu);
  EXPECT_EQ(son->Arreter("musique"), TSonSDL::ErreurNomInconnu);
  EXPECT_EQ(son->Fermer("musique"), TSonSDL::ErreurNomInconnu);

  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  EXPECT_EQ(son->Arreter("musique"), 0);  // the scene's first frame stops what has not started
  EXPECT_EQ(son->Jouer("Musique", 0), TSonSDL::ErreurNomInconnu);
  EXPECT_EQ(son->Fermer("musique"), 0);
  EXPECT_FALSE(son->Ouvert("musique"));
  EXPECT_EQ(son->Jouer("musique", 0), TSonSDL::ErreurNomInconnu);
  EXPECT_EQ(son->Fermer("musique"), TSonSDL::ErreurNomInconnu);
  EXPECT_EQ(son->DernierDepartMs(), -1);
}

TEST_F(SonSDLTest, AFileThatCannotBeReadLeavesNothingOpen) {
  EXPECT_EQ(son->Ouvrir((banc.Dossier / "absent.wav").string(), "musique"), TSonSDL::ErreurFichier);
  EXPECT_FALSE(son->Ouvert("musique"));
  EXPECT_EQ(son->Jouer("musique", 0), TSonSDL::ErreurNomInconnu);

  std::ofstream(banc.Dossier / "texte.wav") << "RIFF mais pas du son";
  EXPECT_EQ(son->Ouvrir((banc.Dossier / "texte.wav").string(), "musique"), TSonSDL::ErreurFichier);

  // A failed reopening has closed the file that was there.
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  EXPECT_EQ(son->Ouvrir((banc.Dossier / "absent.wav").string(), "musique"), TSonSDL::ErreurFichier);
  EXPECT_FALSE(son->Ouvert("musique"));
}

TEST_F(SonSDLTest, ReopeningANameReplacesItsFileOtherNamesStand) {
  EcritRampe(banc.Dossier / "courte.wav", 1.0);
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
  ASSERT_EQ(son->Ouvrir(banc.Rampe().string(), "autre"), 0);
  ASSERT_EQ(son->Jouer("autre", 0), 0);
  ASSERT_EQ(son->Jouer("musique", 0), 0);  // takes the place of the other
  EXPECT_FALSE(son->EnLecture("autre"));
  EXPECT_EQ(son->Arreter("autre"), 0);
  EXPECT_EQ(son->Fermer("autre"), 0);
  EXPECT_TRUE(son->EnLecture("musique"));

  ASSERT_EQ(son->Ouvrir((banc.Dossier / "courte.wav").string(), "musique"), 0);
  EXPECT_FALSE(son->EnLecture("musique"));
  EXPECT_EQ(son->Jouer("musique", 1500), TSonSDL::ErreurPosition);  // the one-second file now
  EXPECT_EQ(son->Jouer("musique", 500), 0);
}

TEST_F(SonSDLTest, APathWithBlanksAndAccentsPlays) {
  const auto dossier = banc.Dossier / "Mes Documents" / "musiques d'été";
  std::filesystem::create_directories(dossier);
  const auto fichier = dossier / "vent à 5 nœuds.wav";
  std::filesystem::copy_file(banc.Rampe(), fichier);
  ASSERT_EQ(son->Ouvrir(fichier.string(), "musique"), 0);
  ASSERT_EQ(son->Jouer("musique", 1000), 0);
  ASSERT_TRUE(banc.AttendsSortie([](const TSortie& s) { return !s.Passages.empty(); })) << "nothing played";
  son->Arreter("musique");

  const TSortie s = Sortie();
  ASSERT_EQ(s.Passages.size(), 1u);
  EXPECT_EQ(s.Passages[0].Premiere, TramesDe(1000));
}

TEST_F(SonSDLTest, WithoutADeviceNothingOpensUntilOneIsThere) {
  setenv("SDL_AUDIODRIVER", "aucun", 1);
  EXPECT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), TSonSDL::ErreurPeripherique);
  EXPECT_FALSE(son->Ouvert("musique"));
  setenv("SDL_AUDIODRIVER", "disk", 1);
  EXPECT_EQ(son->Ouvrir(banc.Rampe().string(), "musique"), 0);
}

}  // namespace
