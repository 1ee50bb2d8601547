// The modified state of the document and the list of recent routines: what the caption, the
// close question and "Fichiers &récents" are built on.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "model/Document.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"

namespace fs = std::filesystem;

namespace {

class SessionTest : public ::testing::Test {
protected:
  void SetUp() override { ReinitialiseDocument(); }
  void TearDown() override { ReinitialiseDocument(); }
};

TEST_F(SessionTest, TheStateChangesOnlyWhenTheTextOrAMarkSaysSoAndObserversHearEachChangeOnce) {
  MarqueIntact();
  std::vector<bool> entendus;
  const int numero = AjouteObservateurModification([&](bool m) { entendus.push_back(m); });

  VerifieModification();  // nothing changed
  EXPECT_FALSE(DocumentModifie());
  Team = 3;  // the TEAM line changes
  VerifieModification();
  VerifieModification();
  EXPECT_TRUE(DocumentModifie());
  // Back to the saved text: still modified, as an undo after a change is a change.
  Team = 1;
  VerifieModification();
  EXPECT_TRUE(DocumentModifie());
  MarqueIntact();
  EXPECT_FALSE(DocumentModifie());
  // A change the text does not show.
  MarqueModifie();
  EXPECT_TRUE(DocumentModifie());
  RetireObservateurModification(numero);
  MarqueIntact();
  EXPECT_EQ(entendus, (std::vector<bool>{true, false, true}));
}

TEST_F(SessionTest, TheNameOfTheDocumentIsItsFilesOrSansTitre) {
  EXPECT_EQ(NomDocument(), "Sans titre");
  const std::string chemin = "/home/équipe/routines/grand huit.rou";
  chemin.copy(FichierRoutine, chemin.size());
  FichierRoutine[chemin.size()] = '\0';
  EXPECT_EQ(NomDocument(), "grand huit.rou");
  EXPECT_EQ(NomFichier("sans_dossier.rou"), "sans_dossier.rou");
}

TEST_F(SessionTest, RecentRoutinesComeNewestFirstWithoutRepeatsAndAtMostTen) {
  TFichiersRecents& recents = FichiersRecents();
  int changements = 0;
  recents.Observateur = [&] { ++changements; };
  for (int i = 0; i < 12; ++i) recents.Ajoute("/r/" + std::to_string(i) + ".rou");
  recents.Ajoute("/r/5.rou");
  recents.Ajoute("");  // a routine with no name is not listed
  const std::vector<std::string> attendus = {"/r/5.rou", "/r/11.rou", "/r/10.rou", "/r/9.rou", "/r/8.rou",
                                             "/r/7.rou", "/r/6.rou",  "/r/4.rou",  "/r/3.rou", "/r/2.rou"};
  EXPECT_EQ(recents.Tous(), attendus);
  EXPECT_EQ(changements, 13);

  // As read back from settings written by hand: blanks and repeats go, ten at most stay.
  std::vector<std::string> lus = {"", "/a.rou", "/a.rou", "relatif.rou", std::string("/nul\0.rou", 9), "/b.rou"};
  for (int i = 0; i < 20; ++i) lus.push_back("/c" + std::to_string(i) + ".rou");
  recents.Remplace(lus);
  ASSERT_EQ(recents.Tous().size(), NB_FICHIERS_RECENTS);
  EXPECT_EQ(recents.Tous()[0], "/a.rou");
  EXPECT_EQ(recents.Tous()[1], "/b.rou");
  recents.Efface();
  EXPECT_TRUE(recents.Tous().empty());
  // A routine named from the folder the program runs in is listed by its whole path.
  recents.Ajoute("ici/../la.rou");
  EXPECT_EQ(recents.Tous(), std::vector<std::string>{(fs::current_path() / "la.rou").string()});
}

TEST_F(SessionTest, OnlyRecentRoutinesStillOnDiskAreOffered) {
  const fs::path dossier = fs::temp_directory_path() / ("trajectoires-recents-" + std::to_string(getpid()));
  fs::create_directories(dossier);
  std::ofstream(dossier / "la.rou") << "TEAM 1\n";
  fs::create_directories(dossier / "dossier.rou");
  TFichiersRecents& recents = FichiersRecents();
  recents.Remplace({(dossier / "partie.rou").string(), (dossier / "la.rou").string(), (dossier / "dossier.rou").string()});
  EXPECT_EQ(recents.Presents(), std::vector<std::string>{(dossier / "la.rou").string()});
  EXPECT_EQ(recents.Tous().size(), 3u);  // kept: the file may come back, on a disk plugged in again
  fs::remove_all(dossier);
}

}  // namespace
