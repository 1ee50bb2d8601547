// Writing: the shifts of a sheet export and the kites a routine leaves out, which no routine
// read from a file can show, and the file replaced in one go. Every record's text is in the
// companion's cases (tests/data/resave).
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "files/Ecriture.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

namespace fs = std::filesystem;

std::string Lit(const fs::path& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

class EcritureTest : public DocumentTest {};

TEST_F(EcritureTest, SheetExportShiftsSheetTimeAndFatherAndRoutineStopsAtNbCV) {
  TFeuilleTest f3(3);
  Ajoute<TPt>(f3.fen, 0, 0, 0);
  Ajoute<TSegment>(f3.fen, 0, 100, 0);
  auto* pere = Ajoute<TSegment>(f3.fen, 0, 0, 0);
  pere->Sett2Param(750.123456f);
  Ajoute<TPt>(f3.fen, 1, 0, 5);
  auto* fils = Ajoute<TSegment>(f3.fen, 1, 20, 15);
  TFenDessin::Synchronise(fils, 0, TabLElt, 2, &f3.fen);
  ASSERT_EQ(fils->pPere, pere);
  // An export from element 1 of kite 0 on: its father is the second line of that kite.
  TabLElt[0].IndexPremier = 1;
  std::string ligne;
  fils->Enregistrer(ligne, 2, 250.5f);
  EXPECT_EQ(ligne, "SEGMENT \t1\t4\t2\t1\t499.623\t\t20  15\t\t0.4\t\t\t0\t1\n");

  // A start point made only to be written, in no track and on no sheet: kite 0, sheet 1.
  const std::unique_ptr<TPt> seul(new TPt(TPoint(3, 4), nullptr, nullptr, nullptr));
  ligne.clear();
  seul->Enregistrer(ligne, 0, 0);
  EXPECT_EQ(ligne, "POINT   \t0\t5\t2\t1\t0\t\t3  4\t\t0.4\t\t\n");

  nbCV = 1;
  EXPECT_NE(TexteRoutine().find("POINT   \t0\t"), std::string::npos);
  EXPECT_EQ(TexteRoutine().find("POINT   \t1\t"), std::string::npos);  // kite 1 is past nbCV
}

class EcritureFichierTest : public ::testing::Test {
protected:
  void SetUp() override {
    fs::remove_all(dossier);
    fs::create_directories(dossier);
  }
  void TearDown() override { fs::remove_all(dossier); }
  bool Seul(const fs::path& p) const {
    return fs::exists(p) && std::distance(fs::directory_iterator(dossier), fs::directory_iterator()) == 1;
  }

  const fs::path dossier = fs::temp_directory_path() / ("traj_ecriture_" + std::to_string(getpid()));
  const fs::path p = dossier / "r.rou";
};

TEST_F(EcritureFichierTest, ReplacesTheFileWithTheBytesAndItsPermissions) {
  const std::string texte = "TEAM   1 \nMUSIQUE   d\xe9part.wav \n\tfin\n";
  const fs::perms droits = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  ASSERT_TRUE(EcritFichier(p.string(), std::string(500, 'x')));
  fs::permissions(p, droits);
  ASSERT_TRUE(EcritFichier(p.string(), texte));
  EXPECT_EQ(Lit(p), texte);
  EXPECT_EQ(fs::status(p).permissions(), droits);
  EXPECT_TRUE(Seul(p));  // nothing left of the provisional file
}

TEST_F(EcritureFichierTest, FailsWithoutTouchingWhatIsThere) {
  EXPECT_FALSE(EcritFichier((dossier / "absent" / "r.rou").string(), "x"));
  EXPECT_TRUE(fs::is_empty(dossier));
  fs::create_directory(p);
  EXPECT_FALSE(EcritFichier(p.string(), "x"));
  EXPECT_TRUE(fs::is_directory(p) && Seul(p));
  if (geteuid() == 0) return;  // permissions do not bind the superuser
  fs::remove(p);
  ASSERT_TRUE(EcritFichier(p.string(), "avant"));
  fs::permissions(p, fs::perms::owner_read);
  EXPECT_FALSE(EcritFichier(p.string(), "après"));
  EXPECT_EQ(Lit(p), "avant");
  EXPECT_TRUE(Seul(p));
}

}  // namespace
