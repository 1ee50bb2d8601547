#pragma once
// What the video command is asked, read from its arguments and written back as arguments:
// the companion reads them, the player writes them to run the companion in the background.
#include <string>
#include <vector>

#include "scene/OptionsScene.h"

struct TParametresFilm {
  std::string Entree, Sortie;
  int Largeur = 1280, Hauteur = 720;  // as asked: checked by AjusteTailleFilm
  int Fps = 30;
  int De = 0, A = -1;  // hundredths; -1: the routine's end
  int Equipe = 1;
  TOptionsScene Scene;
  bool operator==(const TParametresFilm&) const = default;
};

// `IN OUT [--size LxH] [--fps N] [--from T] [--to T] [--team N]` and the scene's options, in
// any order. False, with `erreur` in French, on a usage error.
bool LitArgumentsFilm(std::vector<std::string> args, TParametresFilm& p, std::string& erreur);
// The arguments that LitArgumentsFilm reads back as `p`.
std::vector<std::string> ArgumentsFilm(const TParametresFilm& p);
