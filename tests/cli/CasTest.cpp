// The companion run on every case of tests/data/resave, solve, keys and sample: NAME.rou,
// with the figures it names beside it, run from its own folder, must give NAME.attendu byte
// for byte: the OUT file for resave and solve, then standard output, then standard error,
// then "(code N)" when the exit status is not 0. A sample case takes its time T from its name,
// NAME@T.rou. A replay case, NAME.rep (with NAME.rou as --in when there is one), runs in a
// copy of its folder, so that its dialogs may write there: the OUT file, "----", both streams
// in their order, the code, then each file new or changed in the copy. A case of commandes/ or securite/,
// NAME.cmd, holds the arguments of one command, OUT standing for the file it writes, and runs
// and reports as a replay does; so does a finding of trouvailles/, a folder NAME holding its
// files, `cmd` and `attendu`. TRAJ_REGENERE=1 rewrites the expected files
// (tests/data/README.md).
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/Attendu.h"

namespace fs = std::filesystem;

namespace {

struct TCas {
  std::string Commande;
  fs::path Routine;
};

// The folders whose cases are command lines, NAME.cmd: commandes/ and one per capability.
bool EnLigne(const std::string& dossier) { return dossier == "commandes" || dossier == "securite"; }

void PrintTo(const TCas& c, std::ostream* os) { *os << c.Commande << " " << c.Routine.string(); }

std::vector<TCas> Cas() {
  std::vector<TCas> cas;
  // A finding is a folder of its own: its files and `cmd`, the arguments run inside it.
  std::vector<fs::path> trouvailles;
  for (const auto& e : fs::directory_iterator(fs::path(TRAJ_CAS) / "trouvailles"))
    if (fs::exists(e.path() / "cmd")) trouvailles.push_back(e.path() / "cmd");
  std::sort(trouvailles.begin(), trouvailles.end());
  for (const fs::path& t : trouvailles) cas.push_back({"trouvailles", t});
  for (const std::string commande : {"resave", "solve", "keys", "sample", "replay", "commandes", "securite"}) {
    const char* extension = commande == "replay" ? ".rep" : EnLigne(commande) ? ".cmd" : ".rou";
    std::vector<fs::path> routines;
    for (const auto& e : fs::directory_iterator(fs::path(TRAJ_CAS) / commande))
      if (e.path().extension() == extension) routines.push_back(e.path());
    std::sort(routines.begin(), routines.end());
    for (const fs::path& r : routines) cas.push_back({commande, r});
  }
  return cas;
}

class CasTest : public ::testing::TestWithParam<TCas> {
protected:
  void SetUp() override {
    fs::remove_all(dossier);
    fs::create_directories(dossier);
  }
  void TearDown() override { fs::remove_all(dossier); }

  // Runs the companion from the case's folder, or from `depuis`; its exit status, -1 when it
  // did not exit. With `unFlux`, standard error goes into "sortie" too.
  int Lance(const std::vector<std::string>& arguments, fs::path depuis = {}, bool unFlux = false) {
    if (depuis.empty()) depuis = GetParam().Routine.parent_path();
    std::string commande = "cd " + Cite(depuis.string()) + " && exec " + Cite(TRAJ_CLI);
    for (const std::string& a : arguments) commande += " " + Cite(a);
    commande += " >" + Cite((dossier / "sortie").string()) +
                (unFlux ? std::string(" 2>&1") : " 2>" + Cite((dossier / "erreurs").string()));
    const int statut = std::system(commande.c_str());
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }

  // The command runs in a copy of the case's folder; what it wrote or changed there is shown
  // after it.
  std::string EnCopie(const fs::path& cas, const std::vector<std::string>& arguments) {
    const fs::path source = cas.parent_path();
    const fs::path copie = dossier / "copie";
    fs::copy(source, copie);
    const int code = Lance(arguments, copie, true);
    std::string obtenu = LitTout(dossier / "out.rou") + "----\n" + LitTout(dossier / "sortie");
    if (code != 0) obtenu += "(code " + std::to_string(code) + ")\n";
    std::vector<fs::path> fichiers;
    for (const auto& e : fs::directory_iterator(copie)) fichiers.push_back(e.path());
    std::sort(fichiers.begin(), fichiers.end());
    for (const fs::path& f : fichiers)
      if (!fs::exists(source / f.filename()) || LitTout(f) != LitTout(source / f.filename()))
        obtenu += "---- " + f.filename().string() + "\n" + LitTout(f);
    return obtenu;
  }

  const fs::path dossier = fs::temp_directory_path() / ("trajectoires-cas-" + std::to_string(getpid()));
};

TEST_P(CasTest, GivesItsExpectedFile) {
  const TCas& c = GetParam();
  fs::path attendu = c.Routine;
  attendu.replace_extension(".attendu");
  const std::string out = (dossier / "out.rou").string();
  if (c.Commande == "replay") {
    std::vector<std::string> arguments = {"replay", c.Routine.filename().string(), out};
    if (fs::path entree = c.Routine; fs::exists(entree.replace_extension(".rou")))
      arguments.insert(arguments.end(), {"--in", entree.filename().string()});
    return CompareAvecAttendu(EnCopie(c.Routine, arguments), attendu, dossier / "obtenu");
  }
  if (EnLigne(c.Commande) || c.Commande == "trouvailles") {
    std::istringstream ligne(LitTout(c.Routine));
    std::vector<std::string> arguments;
    for (std::string mot; ligne >> mot;) arguments.push_back(mot == "OUT" ? out : mot);
    if (c.Commande == "trouvailles") attendu = c.Routine.parent_path() / "attendu";
    return CompareAvecAttendu(EnCopie(c.Routine, arguments), attendu, dossier / "obtenu");
  }
  const std::string nom = c.Routine.stem().string();
  const bool fichier = c.Commande == "resave" || c.Commande == "solve";
  std::vector<std::string> arguments = {c.Commande, c.Routine.filename().string()};
  if (fichier) arguments.push_back((dossier / "out.rou").string());
  if (c.Commande == "sample") arguments.push_back(nom.substr(nom.rfind('@') + 1));
  const int code = Lance(arguments);
  std::string obtenu =
      (fichier ? LitTout(dossier / "out.rou") : "") + LitTout(dossier / "sortie") + LitTout(dossier / "erreurs");
  if (code != 0) obtenu += "(code " + std::to_string(code) + ")\n";
  CompareAvecAttendu(obtenu, attendu, dossier / "obtenu");
  // What the companion saves, it reads back to the same bytes.
  if (c.Commande == "resave" && code == 0 && !IsSkipped()) {
    Lance({"resave", (dossier / "out.rou").string(), (dossier / "encore.rou").string()});
    EXPECT_EQ(LitTout(dossier / "encore.rou"), LitTout(dossier / "out.rou"));
  }
}

INSTANTIATE_TEST_SUITE_P(Cli, CasTest, ::testing::ValuesIn(Cas()), [](const auto& info) {
  const fs::path& r = info.param.Routine;
  std::string nom = info.param.Commande + "_" + (r.filename() == "cmd" ? r.parent_path().filename() : r.stem()).string();
  for (char& ch : nom)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return nom;
});

}  // namespace
