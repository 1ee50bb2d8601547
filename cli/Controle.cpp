// trajectoires-cli check IN [--ligne L] [--distance D] [--enroulement W] [--vitesse V]: the
// routine's flight checked for kites too close, lines wrapped, kites out of the window and
// kites too fast, one line per finding.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "editor/FenCadre2.h"
#include "files/Lecture.h"
#include "securite/Controle.h"

namespace {
int Usage(const std::string& raison) {
  std::fprintf(stderr, "trajectoires-cli : check : %s (voir --help)\n", raison.c_str());
  return 2;
}

bool Reel(const std::string& texte, double& v) {
  char* fin = nullptr;
  v = std::strtod(texte.c_str(), &fin);
  return fin != texte.c_str() && *fin == '\0' && std::isfinite(v);
}
}  // namespace

int Controle(const std::vector<std::string>& args) {
  std::string in;
  // The options are laid over the routine's own settings, which are known once it is read.
  std::vector<std::pair<double TReglagesSecurite::*, double>> options;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    double TReglagesSecurite::*champ = nullptr;
    if (a == "--ligne")
      champ = &TReglagesSecurite::Ligne;
    else if (a == "--distance")
      champ = &TReglagesSecurite::Distance;
    else if (a == "--enroulement")
      champ = &TReglagesSecurite::Enroulement;
    else if (a == "--vitesse")
      champ = &TReglagesSecurite::Vitesse;
    if (champ) {
      double v = 0;
      if (i + 1 >= args.size() || !Reel(args[i + 1], v)) return Usage(a + " prend un nombre");
      options.emplace_back(champ, v);
      ++i;
    } else if (a.starts_with("--") || !in.empty()) {
      return Usage("argument inattendu « " + a + " »");
    } else {
      in = a;
    }
  }
  if (in.empty()) return Usage("il faut un fichier, IN");
  // Checked before reading, so that a bad number is a usage error whatever the routine holds.
  TReglagesSecurite essai;
  for (const auto& [champ, v] : options) essai.*champ = v;
  if (!essai.Valides()) return Usage("une longueur, une distance, un enroulement ou une vitesse hors des limites");

  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, in)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", in.c_str());
    return 1;
  }
  TReglagesSecurite reglages = ReglagesSecurite;
  for (const auto& [champ, v] : options) reglages.*champ = v;
  if (!reglages.Valides()) return Usage("une longueur, une distance, un enroulement ou une vitesse hors des limites");
  bool conflit = false;
  for (const TConstat& c : ControleVol(VolHorsScene(), nbCV, reglages)) {
    std::printf("%s\n", LigneConstat(c).c_str());
    conflit = conflit || c.Compte;
  }
  return conflit ? 3 : 0;
}
