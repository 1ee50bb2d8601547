#include "Commandes.h"

#include <cstdio>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"

namespace {

// Reads IN as the editor opens a routine, optionally solves, writes OUT as the editor saves.
int Reenregistre(const std::vector<std::string>& args, bool resoudre) {
  if (args.size() != 2) {
    std::fprintf(stderr, "trajectoires-cli : il faut deux fichiers, IN et OUT (voir --help)\n");
    return 2;
  }
  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, args[0])) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", args[0].c_str());
    return 1;
  }
  if (resoudre) TFenDessin::MiseAJourVTotale();
  if (!EcritFichier(args[1], TexteRoutine())) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", args[1].c_str());
    return 1;
  }
  return 0;
}

}  // namespace

const std::vector<TCommande>& Commandes() {
  static const std::vector<TCommande> commandes = {
      {"resave", "IN OUT", "relit la routine IN et l'écrit dans OUT, sans rien recalculer",
       [](const std::vector<std::string>& a) { return Reenregistre(a, false); }},
      {"solve", "IN OUT", "relit IN, recalcule tous les temps et vitesses, écrit OUT",
       [](const std::vector<std::string>& a) { return Reenregistre(a, true); }},
  };
  return commandes;
}
