// trajectoires-cli: the routine tools of the editor, for scripts and other programs.
#include <cstdio>
#include <string>
#include <vector>

#include "Commandes.h"
#include "SonFichier.h"
#include "Version.h"

namespace {
void Aide(std::FILE* sortie) {
  std::fprintf(sortie,
               "Usage: trajectoires-cli COMMANDE [ARGUMENTS...]\n"
               "       trajectoires-cli --help | --version\n\n"
               "Outils en ligne de commande pour les routines (.rou) et figures (.fig).\n"
               "Les figures citées par une routine sont cherchées par leur nom, dans le dossier courant.\n"
               "Les messages de l'éditeur vont sur la sortie d'erreur ; code de sortie 0 si OUT est écrit,\n"
               "1 si un fichier ne peut être lu ou écrit ou si l'éditeur refuse l'opération, 2 pour une\n"
               "erreur d'usage.\n\n"
               "Commandes :\n");
  for (const TCommande& c : Commandes())
    std::fprintf(sortie, "  %-8s %-20s %s\n", c.Nom.c_str(), c.Usage.c_str(), c.Resume.c_str());
  std::fprintf(sortie, "  --help   %-20s affiche cette aide\n", "");
  std::fprintf(sortie, "  --version %-19s affiche le numéro de version, %s\n", "", TRAJ_VERSION);
}
}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) {
    Aide(stderr);
    return 2;
  }
  if (args[0] == "--help" || args[0] == "-h") {
    Aide(stdout);
    return 0;
  }
  if (args[0] == "--version") {
    std::printf("trajectoires-cli %s\n", TRAJ_VERSION);
    return 0;
  }
  for (const TCommande& c : Commandes())
    if (c.Nom == args[0]) {
      TSonFichier son;
      SetSon(&son);
      const int code = c.Executer(std::vector<std::string>(args.begin() + 1, args.end()));
      SetSon(nullptr);
      return code;
    }
  std::fprintf(stderr, "trajectoires-cli : commande inconnue « %s » (voir --help)\n", args[0].c_str());
  return 2;
}
