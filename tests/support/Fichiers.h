#pragma once
// A scratch folder for tests that read and write files, made the current directory while the
// test runs, since figure files are looked up by their bare name.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Elt.h"
#include "files/Lecture.h"
#include "files/Lignes.h"
#include "support/DocumentTest.h"

class FichiersTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    avant = std::filesystem::current_path();
    // Named after the test and the process: the test runner starts several at once, and two
    // suites may hold tests of the same name.
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string nom =
        "trajectoires-" + std::string(test->test_suite_name()) + "-" + test->name() + "-" + std::to_string(getpid());
    std::replace(nom.begin(), nom.end(), '/', '_');  // parameterised tests have slashes in their names
    dossier = std::filesystem::temp_directory_path() / nom;
    std::filesystem::remove_all(dossier);
    std::filesystem::create_directories(dossier);
    std::filesystem::current_path(dossier);
  }
  void TearDown() override {
    std::filesystem::current_path(avant);
    std::filesystem::remove_all(dossier);
    DocumentTest::TearDown();
  }

  static void Ecrit(const std::string& nom, const std::string& texte) {
    std::ofstream(nom, std::ios::binary) << texte;
  }
  static std::string Donnee(const std::string& nom) {
    return LitFichier(std::string(TRAJ_TEST_DATA) + "/" + nom).value_or("");
  }
  // Reads `texte` as a routine file into the document, through a new editor frame.
  bool Ouvre(const std::string& texte) {
    Ecrit("routine.rou", texte);
    if (!cadre) {
      cadre = std::make_unique<TFenCadre2>();
      cadre->SetupWindow();
    }
    return LitRoutine(*cadre, "routine.rou");
  }

  std::filesystem::path avant;
  std::filesystem::path dossier;
  std::unique_ptr<TFenCadre2> cadre;
};
