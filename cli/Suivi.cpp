// trajectoires-cli follow IN K FIRST LAST DELAY OUT --followers A,B,... [--mode M]: elements
// FIRST to LAST of kite K led, the kites A, B... following them DELAY, 2 x DELAY... later,
// as "Suivre le meneur..." does; the routine written to OUT.
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "EditeurScript.h"
#include "editor/FenDessin.h"
#include "equipe/Suivre.h"

namespace {
int Usage(const std::string& raison) {
  std::fprintf(stderr, "trajectoires-cli : follow : %s (voir --help)\n", raison.c_str());
  return 2;
}

// Kites separated by commas, each a plain integer; whether they exist is the command's to say.
bool Suiveurs(const std::string& texte, std::vector<int>& suiveurs) {
  std::istringstream flux(texte);
  for (std::string v; std::getline(flux, v, ',');) {
    int n = 0;
    if (!Entier(v, n)) return false;
    suiveurs.push_back(n);
  }
  return !suiveurs.empty() && texte.back() != ',';
}
}  // namespace

int Suit(const std::vector<std::string>& args) {
  std::vector<std::string> positionnels;
  TParamSuivre param;
  bool nommes = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a != "--followers" && a != "--mode") {
      positionnels.push_back(a);
      continue;
    }
    if (i + 1 >= args.size()) return Usage("il manque la valeur de " + a);
    const std::string& v = args[++i];
    if (a == "--followers" && Suiveurs(v, param.Suiveurs))
      nommes = true;
    else if (!(a == "--mode" && Entier(v, param.Mode) && param.Mode >= TBD_Coller::ID_PREMIER_MODE &&
               param.Mode <= TBD_Coller::ID_DERNIER_MODE))
      return Usage("valeur incorrecte pour " + a + " : « " + v + " »");
  }
  if (positionnels.size() != 6) return Usage("il faut IN K FIRST LAST DELAY OUT --followers A,B,...");
  if (!nommes) return Usage("il faut --followers A,B,...");
  int n[4];
  for (int i = 0; i < 4; ++i)
    if (!Entier(positionnels[1 + i], n[i])) return Usage("« " + positionnels[1 + i] + " » n'est pas un entier");
  const auto [k, premier, dernier, delai] = n;
  param.Delai = delai;
  TEditeurScript editeur;
  if (!editeur.Ouvre(positionnels[0])) return 1;
  TElt* debut = premier >= 1 && premier <= dernier ? Element(k, premier) : nullptr;
  TElt* fin = debut ? Element(k, dernier) : nullptr;
  if (!debut || !fin) return Usage("une position ne désigne aucun élément, ou la plage commence à 0");
  if (!SurUneFeuille(debut, fin)) return Usage("la plage s'étend sur plusieurs feuilles");
  editeur.Montre(debut);
  TFenDessin::nCV = k;
  if (!Suivre(debut, fin, param)) return 1;
  return editeur.Ecrit(positionnels[5]) ? 0 : 1;
}
