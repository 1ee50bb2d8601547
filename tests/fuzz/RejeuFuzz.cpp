// Any bytes, read as a routine, a line "----", then a script of the editor's events as
// `trajectoires-cli replay` takes them (without the line, all of it is the script and the
// editor starts empty). The editor must neither crash, nor hang, nor read out of bounds,
// whatever the events. It runs in a folder of its own, where a script's dialogs may read and
// write only the files beside it.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Rejeu.h"
#include "model/Document.h"

namespace {
// The figure the scripts of the corpus insert.
constexpr std::string_view FIGURE =
    "POINT   \t0\t0\t2\t1\t0\t\t-20  20\t\t0.4\t\t\n"
    "SEGMENT \t0\t1\t3\t1\t50\t\t0  20\t\t0.4\t\t\n";

void Ecrit(const char* nom, std::string_view texte) {
  std::ofstream(nom, std::ios::binary | std::ios::trunc).write(texte.data(), static_cast<std::streamsize>(texte.size()));
}

// A line naming a path beyond the folder would let the script write anywhere: it is left out.
std::string DansLeDossier(std::string_view script) {
  std::istringstream lignes{std::string(script)};
  std::string gardees;
  for (std::string ligne; std::getline(lignes, ligne);)
    if (ligne.find('/') == std::string::npos) gardees += ligne + "\n";
  return gardees;
}

std::string Dossier;

void EntreDansUnDossierAMoi() {
  if (!Dossier.empty()) return;
  Dossier = (std::filesystem::temp_directory_path() / "traj_fuzz_rejeu_XXXXXX").string();
  if (!mkdtemp(Dossier.data()) || chdir(Dossier.c_str()) != 0) std::abort();
  std::atexit([] {
    std::error_code ignoree;
    std::filesystem::remove_all(Dossier, ignoree);
  });
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
  EntreDansUnDossierAMoi();
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  std::string_view routine, script = octets;
  bool avecRoutine = false;
  if (const std::size_t p = octets.find("\n----\n"); p != std::string_view::npos) {
    routine = octets.substr(0, p + 1);
    script = octets.substr(p + 6);
    avecRoutine = true;
  }
  for (const auto& e : std::filesystem::directory_iterator("."))
    std::filesystem::remove_all(e.path());
  Ecrit("deux.fig", FIGURE);
  Ecrit("script.txt", DansLeDossier(script));
  std::vector<std::string> arguments = {"script.txt", "out.rou"};
  if (avecRoutine) {
    Ecrit("routine.rou", routine);
    arguments.insert(arguments.end(), {"--in", "routine.rou"});
  }
  ReinitialiseDocument();
  Rejoue(arguments);
  ReinitialiseDocument();
  return 0;
}
