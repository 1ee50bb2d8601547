// trajectoires-cli frise: the timeline of a routine, as a picture or as text.
#include "Commandes.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "EditeurScript.h"
#include "FrisePng.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "frise/Onde.h"
#include "frise/TexteFrise.h"
#include "model/Bornes.h"
#include "model/Document.h"

namespace {

constexpr int LARGEUR_MIN = 16;
constexpr int LARGEUR_MAX = 16384;

int Usage(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; frise IN OUT.png [--width W] [--from T] [--to T] [--texte] (voir --help)\n",
               pourquoi.c_str());
  return 2;
}

bool Temps(const std::string& s, double& t) {
  char* fin = nullptr;
  t = std::strtod(s.c_str(), &fin);
  return !s.empty() && fin && *fin == '\0' && std::isfinite(t) && TempsAdmis(t);
}

}  // namespace

int Frise(const std::vector<std::string>& args) {
  std::vector<std::string> positionnels;
  int largeur = 1600;
  double de = 0, a = 0;
  bool avecDe = false, avecA = false, texte = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& o = args[i];
    if (o == "--width" || o == "--from" || o == "--to") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après " + o);
      const std::string& v = args[++i];
      if (o == "--width") {
        if (!Entier(v, largeur) || largeur < LARGEUR_MIN || largeur > LARGEUR_MAX)
          return Usage("--width attend un entier de " + std::to_string(LARGEUR_MIN) + " à " +
                       std::to_string(LARGEUR_MAX) + ", pas « " + v + " »");
      } else if (!Temps(v, o == "--from" ? de : a)) {
        return Usage(o + " attend un temps en centièmes, pas « " + v + " »");
      } else {
        (o == "--from" ? avecDe : avecA) = true;
      }
    } else if (o == "--texte") {
      texte = true;
    } else if (o.rfind("--", 0) == 0) {
      return Usage("option inconnue « " + o + " »");
    } else {
      positionnels.push_back(o);
    }
  }
  if (positionnels.size() != 2) return Usage("il faut IN et OUT");
  const std::string& in = positionnels[0];
  const std::string& out = positionnels[1];
  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, in)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", in.c_str());
    return 1;
  }
  // The times as the editor shows them once it has opened the routine: a stretch flown at even
  // speed gets its times from its length.
  TFenDessin::MiseAJourVTotale();
  const TFrise frise = ConstruitFrise();
  if (!avecDe) de = frise.Debut;
  if (!avecA) a = std::max(static_cast<double>(frise.Fin), de + 100);
  if (a <= de) return Usage("--to doit venir après --from");
  if (texte) {
    if (!EcritFichier(out, TexteFrise(frise, Tempo, Reperes, de, a))) {
      std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", out.c_str());
      return 1;
    }
    return 0;
  }
#ifndef TRAJ_AVEC_RENDU
  std::fprintf(stderr, "trajectoires-cli : frise demande la surface de dessin Qt, que cette version ne contient pas\n");
  return 2;
#else
  // Without --from and --to the whole routine, with room at both ends as the dock fits it.
  TVueTemps vue = Ajuste(de, a, largeur);
  if (avecDe || avecA) {
    vue.Debut = de;
    vue.PixelsParCentieme = largeur / (a - de);
  }
  std::string raison;
  if (!PeintFrisePng(frise, vue, largeur, CheminMusique(_FichierMusique, in), out, raison)) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", out.c_str());
    return 1;
  }
  if (!raison.empty()) std::fprintf(stderr, "trajectoires-cli : %s\n", raison.c_str());
  return 0;
#endif
}
