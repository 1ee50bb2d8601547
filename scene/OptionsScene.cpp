#include "scene/OptionsScene.h"

#include <cmath>
#include <cstdlib>

namespace {
bool EstNombre(const std::string& texte) {
  char* fin = nullptr;
  std::strtod(texte.c_str(), &fin);
  return fin != texte.c_str() && *fin == '\0';
}

// A number of seconds as the trail takes it: finite, above 0, at most a minute.
bool LitSecondes(const std::string& texte, double& s) {
  char* fin = nullptr;
  s = std::strtod(texte.c_str(), &fin);
  return fin != texte.c_str() && *fin == '\0' && std::isfinite(s) && s > 0 && s <= 60;
}
}  // namespace

bool PrendOptionsScene(std::vector<std::string>& args, TOptionsScene& options, std::string& erreur) {
  std::vector<std::string> reste;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--traines") {
      options.Traines = TRAINES_DEFAUT;
      // The length is optional: a following word that is a number is it, and must fit.
      if (i + 1 < args.size() && EstNombre(args[i + 1])) {
        if (!LitSecondes(args[i + 1], options.Traines)) {
          erreur = "la durée des traînées est un nombre de secondes au-dessus de 0, au plus 60, pas « " + args[i + 1] + " »";
          return false;
        }
        ++i;
      }
    } else if (a == "--lignes") {
      options.Lignes = true;
    } else if (a == "--alertes") {
      options.Securite = true;
    } else if (a == "--sol") {
      options.Sol = true;
    } else if (a == "--fenetre") {
      options.Fenetre = true;
    } else if (a == "--camera") {
      const std::string v = i + 1 < args.size() ? args[++i] : "";
      if (v == "public")
        options.Camera = TCamera::Public;
      else if (v == "pilotes")
        options.Camera = TCamera::Pilotes;
      else if (v == "juge")
        options.Camera = TCamera::Juge;
      else {
        erreur = "--camera prend public, pilotes ou juge, pas « " + v + " »";
        return false;
      }
    } else {
      reste.push_back(a);
    }
  }
  args = std::move(reste);
  return true;
}
