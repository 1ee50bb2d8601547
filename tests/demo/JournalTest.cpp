// The scene's error log: one line a failure, in order, kept from one run to the next.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "demo/Journal.h"
#include "files/Lignes.h"
#include "platform/ErreursRendu.h"

namespace {

namespace fs = std::filesystem;

class JournalTest : public ::testing::Test {
protected:
  void SetUp() override {
    // One folder per process: the test runner starts several at once.
    dossier = fs::temp_directory_path() / ("trajectoires-journal-" + std::to_string(getpid()));
    fs::remove_all(dossier);
    fs::create_directories(dossier / "bin");
    avant = fs::current_path();
    fs::current_path(dossier / "bin");
  }
  void TearDown() override {
    fs::current_path(avant);
    fs::remove_all(dossier);
  }
  fs::path dossier;
  fs::path avant;
};

TEST_F(JournalTest, RecordsAreAppendedInOrderAndNamedByTheirTable) {
  const std::string chemin = (dossier / "DXError.txt").string();
  DXERROR_DirectDraw(chemin.c_str(), 7, DISPERR_PARAMETRE);
  DXERROR_Direct3DRM(chemin.c_str(), 12, SCENEERR_CADREABSENT);
  // A second run finds the file as the first one left it.
  DXERROR_Direct3DRM(chemin.c_str(), 3, DISPERR_MEMOIRE);
  DXERROR_Direct3DRM(chemin.c_str(), 4, DISPERR_SHADER);  // not among the scene's
  DXERROR_DirectDraw(chemin.c_str(), 5, 9999);
  DXERROR_Com(chemin.c_str(), 1, 1);
  DXERROR_Com(chemin.c_str(), 2, 0x80004002);
  EXPECT_EQ(LitFichier(chemin).value_or(""),
            "(7) DISPERR_PARAMETRE\n(12) SCENEERR_CADREABSENT\n(3) DISPERR_MEMOIRE\n(4) UNKNOWN !\n"
            "(5) UNKNOWN !\n(1) S_FALSE\n(2) UNKNOWN !\n");
}

TEST_F(JournalTest, UnwritableLogHarmsNobody) {
  DXERROR_DirectDraw((dossier / "absent" / "DXError.txt").string().c_str(), 1, DISPERR_MEMOIRE);
  EXPECT_FALSE(fs::exists(dossier / "absent"));
}

TEST_F(JournalTest, LogLivesInDataBesideTheCurrentFolderOrInTheUsersStateFolder) {
  const char* ancien = std::getenv("XDG_STATE_HOME");
  const std::string sauve = ancien ? ancien : "";
  setenv("XDG_STATE_HOME", (dossier / "etat").string().c_str(), 1);
  EXPECT_EQ(CheminJournal(), (dossier / "etat" / "trajectoires" / "DXError.txt").string());
  EXPECT_TRUE(fs::is_directory(dossier / "etat" / "trajectoires"));
  fs::create_directories(dossier / "data");
  EXPECT_EQ(CheminJournal(), "../data/DXError.txt");
  if (ancien)
    setenv("XDG_STATE_HOME", sauve.c_str(), 1);
  else
    unsetenv("XDG_STATE_HOME");
}

}  // namespace
