// Where the scene finds its models and backdrop: the current directory first, then the
// installation's data, whatever directory the program was started from.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Donnees.h"
#include "support/Fichiers.h"

namespace {

namespace fs = std::filesystem;

class DonneesTest : public FichiersTest {
protected:
  void TearDown() override {
    SetDossierDonnees("");
    unsetenv("TRAJECTOIRES_DATA");
    FichiersTest::TearDown();
  }
};

TEST_F(DonneesTest, StartedAnywhereTheProgramStillFindsItsModels) {
  // The scratch folder holds no data: the installation's is found all the same.
  const fs::path modele = CheminDonnee("CV1_1.x");
  ASSERT_NE(modele, fs::path("CV1_1.x"));
  EXPECT_TRUE(fs::is_regular_file(modele));
  EXPECT_TRUE(fs::is_regular_file(CheminDonnee("Nuages.bmp")));
  // A name that nothing holds comes back as it is, for the caller's "missing".
  EXPECT_EQ(CheminDonnee("CV9_9.x"), "CV9_9.x");
}

TEST_F(DonneesTest, CurrentDirectoryThenEnvironmentThenChosenFolder) {
  fs::create_directories("ailleurs");
  Ecrit("ailleurs/CV1_1.x", "de l'environnement");
  setenv("TRAJECTOIRES_DATA", (dossier / "ailleurs").c_str(), 1);
  EXPECT_EQ(fs::path(CheminDonnee("CV1_1.x")), dossier / "ailleurs" / "CV1_1.x");

  Ecrit("CV1_1.x", "d'ici");
  EXPECT_EQ(CheminDonnee("CV1_1.x"), "CV1_1.x");

  // A chosen folder stands alone: neither the environment nor the installation counts.
  fs::remove("CV1_1.x");
  SetDossierDonnees((dossier / "vide").string());
  EXPECT_EQ(CheminDonnee("CV1_1.x"), "CV1_1.x");
  EXPECT_EQ(CheminDonnee("Nuages.bmp"), "Nuages.bmp");
}

}  // namespace
