// Every case of tests/data/paint/: NAME.args holds "IN SHEET [options]" for
// `trajectoires-cli paint`, run in that folder, and NAME.log the journal it must write. When
// the command fails or says something, the expected text ends with "--- code N" and what it
// wrote on standard error. TRAJ_REGENERE=1 rewrites the expected files from what is drawn.
#include <gtest/gtest.h>

#include "support/Attendu.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const fs::path DOSSIER = fs::path(TRAJ_TEST_DATA) / "paint";

std::vector<std::string> Cas() {
  std::vector<std::string> noms;
  for (const auto& f : fs::directory_iterator(DOSSIER))
    if (f.path().extension() == ".args") noms.push_back(f.path().stem().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

// The journal `paint` writes for case `nom`, with its exit code and standard error when it
// failed or said something.
std::string Peins(const std::string& nom, const fs::path& brouillon) {
  const fs::path sortie = brouillon / "sortie.log";
  const fs::path erreurs = brouillon / "erreurs.txt";
  fs::remove(sortie);
  // IN and SHEET, then OUT, then the options.
  std::istringstream args(LitTout(DOSSIER / (nom + ".args")));
  std::vector<std::string> mots;
  for (std::string m; args >> m;) mots.push_back(m);
  if (mots.size() < 2) return nom + ".args doit commencer par IN et SHEET\n";
  mots.insert(mots.begin() + 2, sortie.string());
  std::string commande = "cd " + Cite(DOSSIER.string()) + " && " + Cite(TRAJ_CLI) + " paint";
  for (const std::string& m : mots) commande += " " + Cite(m);
  commande += " 2>" + Cite(erreurs.string());
  const int statut = std::system(commande.c_str());
  const int code = WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  std::string obtenu = fs::exists(sortie) ? LitTout(sortie) : "";
  const std::string err = LitTout(erreurs);
  if (code != 0 || !err.empty()) obtenu += "--- code " + std::to_string(code) + "\n" + err;
  return obtenu;
}

// One test for the whole folder, so that a new case runs without a new build.
TEST(PeintureCas, ChaqueJournalEstLAttendu) {
  // Per process: ctest may run this beside another build's tests.
  const fs::path brouillon = fs::temp_directory_path() / ("trajectoires-peinture-" + std::to_string(getpid()));
  fs::remove_all(brouillon);
  fs::create_directories(brouillon);
  const std::vector<std::string> cas = Cas();
  EXPECT_FALSE(cas.empty());
  for (const std::string& nom : cas) {
    SCOPED_TRACE("cas " + nom);
    CompareAvecAttendu(Peins(nom, brouillon), DOSSIER / (nom + ".log"), brouillon / "obtenu.log");
  }
  fs::remove_all(brouillon);
}

}  // namespace
