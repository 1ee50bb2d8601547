#include "video/ArgumentsFilm.h"

#include <cstdio>
#include <cstdlib>

namespace {
bool LitNombre(const std::string& texte, int mini, int maxi, int& valeur) {
  char* fin = nullptr;
  const long v = std::strtol(texte.c_str(), &fin, 10);
  if (texte.empty() || *fin != '\0' || v < mini || v > maxi) return false;
  valeur = static_cast<int>(v);
  return true;
}

bool LitTaille(const std::string& texte, int& largeur, int& hauteur) {
  const auto x = texte.find('x');
  return x != std::string::npos && LitNombre(texte.substr(0, x), 0, 1000000, largeur) &&
         LitNombre(texte.substr(x + 1), 0, 1000000, hauteur);
}
}  // namespace

bool LitArgumentsFilm(std::vector<std::string> args, TParametresFilm& p, std::string& erreur) {
  if (!PrendOptionsScene(args, p.Scene, erreur)) return false;
  std::vector<std::string> positionnels;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& o = args[i];
    if (o == "--size" || o == "--fps" || o == "--from" || o == "--to" || o == "--team") {
      if (i + 1 >= args.size()) {
        erreur = "valeur manquante après " + o;
        return false;
      }
      const std::string& v = args[++i];
      const bool bon = o == "--size"   ? LitTaille(v, p.Largeur, p.Hauteur)
                       : o == "--fps"  ? LitNombre(v, 1, 120, p.Fps)
                       : o == "--from" ? LitNombre(v, 0, 100000000, p.De)
                       : o == "--to"   ? LitNombre(v, 0, 100000000, p.A)
                                       : LitNombre(v, 1, 5, p.Equipe);
      if (!bon) {
        erreur = "valeur illisible pour " + o + " : « " + v + " »";
        return false;
      }
    } else if (o.size() > 1 && o[0] == '-') {
      erreur = "option inconnue « " + o + " »";
      return false;
    } else {
      positionnels.push_back(o);
    }
  }
  if (positionnels.size() != 2) {
    erreur = "il faut IN et OUT";
    return false;
  }
  p.Entree = positionnels[0];
  p.Sortie = positionnels[1];
  return true;
}

std::vector<std::string> ArgumentsFilm(const TParametresFilm& p) {
  std::vector<std::string> a = {p.Entree, p.Sortie, "--size", std::to_string(p.Largeur) + "x" + std::to_string(p.Hauteur),
                                "--fps", std::to_string(p.Fps), "--from", std::to_string(p.De), "--team",
                                std::to_string(p.Equipe)};
  if (p.A >= 0) a.insert(a.end(), {"--to", std::to_string(p.A)});
  if (p.Scene.Traines > 0) {
    char secondes[32];
    std::snprintf(secondes, sizeof secondes, "%.17g", p.Scene.Traines);
    a.insert(a.end(), {"--traines", secondes});
  }
  if (p.Scene.Lignes) a.push_back("--lignes");
  if (p.Scene.Sol) a.push_back("--sol");
  if (p.Scene.Fenetre) a.push_back("--fenetre");
  if (p.Scene.Securite) a.push_back("--alertes");
  const char* camera = p.Scene.Camera == TCamera::Pilotes ? "pilotes" : p.Scene.Camera == TCamera::Juge ? "juge" : "public";
  a.insert(a.end(), {"--camera", camera});
  return a;
}
