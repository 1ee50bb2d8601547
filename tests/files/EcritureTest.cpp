// Writing routines: each record with its exact separators, the numbers, the synchro tail and
// the shifts of a sheet export, and the file written in one go.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

#include "files/Ecriture.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "model/elements/Stop.h"
#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

namespace fs = std::filesystem;

std::string Lit(const fs::path& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

std::string Ligne(TElt& e, int decalageFeuille = 0, float decalageTemps = 0) {
  std::string s;
  e.Enregistrer(s, decalageFeuille, decalageTemps);
  return s;
}

class EcritureTest : public DocumentTest {
protected:
  TFeuilleTest f;
};

TEST_F(EcritureTest, ShortRoutineIsWrittenByteForByte) {
  Team = 2;
  std::strcpy(_FichierMusique, "ouverture.wav");
  nbCV = 2;
  Ajoute<TPt>(f.fen, 0, -50, 10);
  auto* seg = Ajoute<TSegment>(f.fen, 0, 0, 60);
  seg->Set(0, CONTRAINTE_TEMPS, 500, std::sqrt(50.0f * 50 + 50 * 50) / 500);
  Ajoute<TAxel>(f.fen, 0, 0, 60)->Set(0, CONTRAINTE_DUREE, 610, true, 110);
  Ajoute<TPt>(f.fen, 1, 50, 10);
  auto* fils = Ajoute<TSegment>(f.fen, 1, 30, 40);
  fils->Set(0, CONTRAINTE_VCONSTANTE, 0, std::sqrt(20.0f * 20 + 30 * 30) / 500);
  TFenDessin::Synchronise(fils, 0, TabLElt, 1, &f.fen);
  ASSERT_EQ(fils->pPere, seg);
  const std::string attendu = Lit(TRAJ_TEST_DATA "/resave/routine_courte.rou");
  EXPECT_EQ(TexteRoutine(), attendu);

  // No music, no MUSIQUE line; kites from nbCV on are left out.
  _FichierMusique[0] = '\0';
  nbCV = 1;
  std::string partiel = attendu;
  partiel.erase(partiel.find("MUSIQUE"), std::strlen("MUSIQUE   ouverture.wav \n"));
  partiel.erase(partiel.find("POINT   \t1"));
  EXPECT_EQ(TexteRoutine(), partiel);
}

TEST_F(EcritureTest, EachRecordHasItsNameAndSeparators) {
  // Elements outside any list, so that nothing before them moves their end.
  std::vector<std::unique_ptr<TElt>> e;
  auto seul = [&]<class T>(T* elt) {
    e.emplace_back(elt);
    return elt;
  };
  TListeCV* l = &TabLElt[0];
  seul(new TSegRevo(TPoint(10, 20), &f.fen, nullptr, l, 0.0f))->Set(0, CONTRAINTE_VCONSTANTE, 250.5f, 0.25f, 45.0f);
  seul(new TDerapage(TPoint(-7, 33), &f.fen, nullptr, &TabLElt[3]))->Set(0, CONTRAINTE_TEMPS, 300, 0.3f);
  seul(new TArc(TPoint(12, 34), &f.fen, nullptr, l))->Set(0, CONTRAINTE_VCONSTANTE, 400, 0.5f, 25, -1.5708f);
  seul(new TArcRevo(TPoint(12, 34), &f.fen, nullptr, l, 90.0f))
      ->Set(0, CONTRAINTE_VCONSTANTE, 400, 0.5f, 25, 3.14159f, 180);
  seul(new T540(TPoint(5, 6), &f.fen, nullptr, l))->Set(0, CONTRAINTE_DUREE, 720, false, 150);
  seul(new TRot(TPoint(5, 6), &f.fen, nullptr, l, 30.0f))->Set(0, CONTRAINTE_DUREE, 820, 100, -90);
  seul(new TStop(TPoint(5, 6), &f.fen, nullptr, l))->Set(0, CONTRAINTE_DUREE, 920, 75);
  auto* pose = seul(new TPose(TPoint(8, 40), &f.fen, nullptr, l));
  pose->Set(0, CONTRAINTE_VCONSTANTE, 1000, 100, POSE_POINTE_DROITE);
  pose->SetV(0.35f);
  seul(new TAllerA(TPoint(7, 8), &f.fen, nullptr, l))
      ->Set(0, CONTRAINTE_DUREE, 1100, 100, 0, 0.5f, 0.866f, 1, 0, 0, 12.5f);
  // A start point made only to be written, on no sheet and in no track: kite 0, sheet 1.
  e.emplace_back(new TPt(TPoint(3, 4), nullptr, nullptr, nullptr));

  std::string texte;
  for (auto& elt : e) elt->Enregistrer(texte, 0, 0);
  EXPECT_EQ(texte, Lit(TRAJ_TEST_DATA "/enregistrements.txt"));
}

TEST_F(EcritureTest, NumbersAndShiftsOfASheetExport) {
  TFeuilleTest f3(3);
  Ajoute<TPt>(f3.fen, 0, 0, 0);
  Ajoute<TSegment>(f3.fen, 0, 100, 0)->Set(0, CONTRAINTE_TEMPS, 1234567, 0.4f);
  auto* pere = Ajoute<TSegment>(f3.fen, 0, 0, 0);
  pere->Set(0, CONTRAINTE_TEMPS, 750.123456f, 0.123456f);
  pere->Setp2Param(TPointf(12.345f, 98766));
  Ajoute<TPt>(f3.fen, 1, 0, 5);
  auto* fils = Ajoute<TSegment>(f3.fen, 1, 20, 15);
  TFenDessin::Synchronise(fils, 0, TabLElt, 2, &f3.fen);
  ASSERT_EQ(fils->pPere, pere);

  // Times keep six significant digits, coordinates and speeds four.
  EXPECT_EQ(Ligne(*static_cast<TElt*>(TabLElt[0].GetPt(1))), "SEGMENT \t0\t1\t2\t3\t1.23457e+06\t\t100  0\t\t0.4\t\t\n");
  EXPECT_EQ(Ligne(*pere), "SEGMENT \t0\t2\t2\t3\t750.123\t\t12.35  9.877e+04\t\t0.1235\t\t\n");
  EXPECT_EQ(Ligne(*fils), "SEGMENT \t1\t4\t2\t3\t750.123\t\t20  15\t\t0.4\t\t\t0\t2\n");
  // An export from element 1 of kite 0 on: its father is the second line of that kite.
  TabLElt[0].IndexPremier = 1;
  EXPECT_EQ(Ligne(*fils, 2, 250.5f), "SEGMENT \t1\t4\t2\t1\t499.623\t\t20  15\t\t0.4\t\t\t0\t1\n");
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
