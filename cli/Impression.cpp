// trajectoires-cli print: every sheet of a routine printed as the editor's print commands
// print them, with the printer's defaults, into a PDF file.
#include "Commandes.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include <QGuiApplication>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "gui/qt/ImprimanteQt.h"

namespace {

// The sheets are printed as a window of this width shows them: labels and grid included.
constexpr int LargeurEcran = 880;

int Usage(const char* pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; print IN OUT.pdf [--per-page 1|2|4|8] [--pilote K] (voir --help)\n", pourquoi);
  return 2;
}

}  // namespace

int Imprime(const std::vector<std::string>& args) {
  std::vector<std::string> positionnels;
  int parPage = 8;
  int pilote = 0;  // 0: every kite alike; K: a sheet for the pilot of kite K, from 1
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--per-page") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après --per-page");
      const std::string& v = args[++i];
      if (v != "1" && v != "2" && v != "4" && v != "8") return Usage("--per-page vaut 1, 2, 4 ou 8");
      parPage = std::stoi(v);
    } else if (args[i] == "--pilote") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après --pilote");
      const std::string& v = args[++i];
      if (v.size() != 1 || v[0] < '1' || v[0] > '0' + NB_CV_MAX) return Usage("--pilote vaut de 1 à 6");
      pilote = v[0] - '0';
    } else if (args[i].rfind("--", 0) == 0) {
      return Usage(("option inconnue « " + args[i] + " »").c_str());
    } else {
      positionnels.push_back(args[i]);
    }
  }
  if (positionnels.size() != 2) return Usage("il faut IN et OUT.pdf");
  const std::string& in = positionnels[0];
  const std::string& out = positionnels[1];

  // Fonts and the PDF writer need a GUI application, but no display.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int argc = 1;
  char nom[] = "trajectoires-cli";
  char* argv[] = {nom, nullptr};
  QGuiApplication application(argc, argv);

  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, in)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", in.c_str());
    return 1;
  }
  if (pilote > nbCV) return Usage(("la routine n'a pas de CV " + std::to_string(pilote)).c_str());
  // The header names the routine as the editor does once it has opened it.
  FichierRoutine[in.copy(FichierRoutine, TAILLE_FICHIER_ROUTINE - 1)] = '\0';
  for (int i = 0; i < cadre.nbFeuilles; ++i) cadre.GetFeuille(i)->SetTailleClient(LargeurEcran, LargeurEcran / 2);

  TPeripheriqueQt pdf;
  SetPeripheriqueImpression(&pdf);
  TFenDessin::Printer->GetDonnees().Fichier = out;
  TFenDessin::Imp.SetNbParPage(parPage);
  TFenDessin::Imp.Pilote = pilote - 1;
  // The failure is told below, in the companion's words, rather than in a box.
  TDialoguesMuets muets;
  TDialogues& avant = Dialogues();
  SetDialogues(&muets);
  const bool imprime = TFenDessin::Printer->Print(TFenDessin::Imp, false);
  SetDialogues(&avant);
  SetPeripheriqueImpression(nullptr);
  if (!imprime) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", out.c_str());
    return 1;
  }
  return 0;
}
