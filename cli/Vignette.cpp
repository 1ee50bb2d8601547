// trajectoires-cli vignette: sheet 1 of a routine as a small picture, for the thumbnails of a
// file manager, which runs it as `trajectoires-cli vignette %i %o --size %s`.
#include "Commandes.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "EditeurScript.h"
#include "Peinture.h"
#include "editor/FenCadre2.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

namespace {

constexpr int TAILLE_MIN = 16;
constexpr int TAILLE_MAX = 4096;

int Usage(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; vignette IN OUT.png [--size N] (voir --help)\n", pourquoi.c_str());
  return 2;
}

// Whatever happens, the file manager is told only by the exit code: the editor's boxes about
// the routine's lines, which it reads over, would go nowhere useful.
class TSilence {
public:
  TSilence() : avant_(Dialogues()) { SetDialogues(&muets_); }
  ~TSilence() { SetDialogues(&avant_); }
  TSilence(const TSilence&) = delete;
  TSilence& operator=(const TSilence&) = delete;

private:
  TDialoguesMuets muets_;
  TDialogues& avant_;
};

}  // namespace

int Vignette(const std::vector<std::string>& args) {
  std::vector<std::string> positionnels;
  int taille = 256;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--size") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après --size");
      const std::string& v = args[++i];
      if (!Entier(v, taille) || taille < TAILLE_MIN || taille > TAILLE_MAX)
        return Usage("--size attend un entier de " + std::to_string(TAILLE_MIN) + " à " + std::to_string(TAILLE_MAX) +
                     ", pas « " + v + " »");
    } else if (args[i].rfind("--", 0) == 0) {
      return Usage("option inconnue « " + args[i] + " »");
    } else {
      positionnels.push_back(args[i]);
    }
  }
  if (positionnels.size() != 2) return Usage("il faut IN et OUT.png");
#ifndef TRAJ_AVEC_RENDU
  std::fprintf(stderr, "trajectoires-cli : vignette demande la surface de dessin Qt, que cette version ne contient pas\n");
  return 2;
#else
  const std::string& in = positionnels[0];
  const std::string& out = positionnels[1];
  TSilence silence;
  TFenCadre2 cadre;
  cadre.SetupWindow();
  // The routine's own folder is where its figures are looked for after the current one: the
  // file manager runs this from anywhere. A name too long to keep leaves the current folder only.
  FichierRoutine[0] = '\0';
  if (in.size() < TAILLE_FICHIER_ROUTINE) FichierRoutine[in.copy(FichierRoutine, TAILLE_FICHIER_ROUTINE - 1)] = '\0';
  // A file that is no routine, or an empty one, reads as an empty routine: its picture is
  // the empty sheet.
  if (!LitRoutine(cadre, in)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", in.c_str());
    return 1;
  }
  // A picture N wide and N/2 high: the sheet's own shape, filling the N by N box a file
  // manager gives a thumbnail as wide as it may be.
  DimensionneFeuilles(cadre, taille);
  // Never the session's platform: a file manager may run thumbnailers where no display can be
  // reached, and Qt aborts when the one it is told to use can't start.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  if (!PeintPng(*cadre.GetFeuille(0), taille, out)) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", out.c_str());
    return 1;
  }
  return 0;
#endif
}
