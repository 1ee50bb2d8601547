// trajectoires-cli export and insert: "Enregistrer &feuilles sous..." and "In&sérer fichier
// après feuille active ..." of the editor, their dialogs answered from the arguments.
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "EditeurScript.h"
#include "editor/FenDessin.h"
#include "model/Document.h"

namespace {

int Usage(const char* texte) {
  std::fprintf(stderr, "trajectoires-cli : %s (voir --help)\n", texte);
  return 2;
}

// Queues one answer built by the companion itself, so always well formed.
void Repond(TEditeurScript& editeur, const std::vector<std::string>& mots, const std::string& texte = {}) {
  std::string erreur;
  editeur.Dialogues.Ajoute(mots, texte, erreur);
}

// Exit code once the editor's command has run: 1 when it refused or a file could not be
// read, otherwise that of writing OUT as "E&nregistrer" does, when `ecrire`.
int Issue(TEditeurScript& editeur, bool fait, const std::string& sortie, bool ecrire) {
  if (editeur.Dialogues.Issue != TIssue::Continue) {
    std::fprintf(stderr, "trajectoires-cli : %s\n", editeur.Dialogues.Message.c_str());
    return editeur.Dialogues.Issue == TIssue::Usage ? 2 : 1;
  }
  if (!fait) return 1;
  return !ecrire || editeur.Ecrit(sortie) ? 0 : 1;
}

// The value of --map: one to six plain integers separated by commas, the kites after them
// keeping their own numbers.
bool Carte(const std::string& texte, std::string& carte) {
  std::vector<std::string> valeurs;
  std::istringstream flux(texte);
  for (std::string v; std::getline(flux, v, ',');) {
    int n = 0;
    if (!Entier(v, n)) return false;
    valeurs.push_back(v);
  }
  if (valeurs.empty() || valeurs.size() > NB_CV_MAX || texte.back() == ',') return false;
  for (std::size_t i = valeurs.size(); i < NB_CV_MAX; ++i) valeurs.push_back(std::to_string(i + 1));
  carte.clear();
  for (const std::string& v : valeurs) carte += (carte.empty() ? "" : ",") + v;
  return true;
}

}  // namespace

int Exporte(const std::vector<std::string>& args) {
  int premiere = 0, derniere = 0;
  if (args.size() != 4) return Usage("export prend IN FIRST LAST OUT");
  if (!Entier(args[1], premiere) || !Entier(args[2], derniere))
    return Usage("FIRST et LAST sont des nombres entiers");
  TEditeurScript editeur;
  if (!editeur.Ouvre(args[0])) return 1;
  // The range, the file, and yes to replacing it when it is there.
  Repond(editeur, {"feuilles", args[1], args[2]});
  Repond(editeur, {"file", args[3]}, args[3]);
  Repond(editeur, {"ok"});
  const bool ecrit = editeur.Cadre.pFenDesActive->EnregistrerFeuille();
  return Issue(editeur, ecrit, args[3], false);
}

int Insere(const std::vector<std::string>& args) {
  std::vector<std::string> positionnels;
  std::string temps = "keep", dx = "0", dy = "0", carte = "1,2,3,4,5,6";
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a != "--times" && a != "--dx" && a != "--dy" && a != "--map") {
      positionnels.push_back(a);
      continue;
    }
    if (i + 1 >= args.size()) return Usage(("il manque la valeur de " + a).c_str());
    const std::string& v = args[++i];
    int n = 0;
    if (a == "--times" && (v == "keep" || v == "calc" || Entier(v, n)))
      temps = v;
    else if ((a == "--dx" || a == "--dy") && Entier(v, n))
      (a == "--dx" ? dx : dy) = v;
    else if (!(a == "--map" && Carte(v, carte)))
      return Usage(("valeur incorrecte pour " + a + " : « " + v + " »").c_str());
  }
  int apres = 0;
  if (positionnels.size() != 4) return Usage("insert prend IN FILE AFTER OUT, et ses options");
  if (!Entier(positionnels[2], apres)) return Usage("AFTER est un nombre entier");
  TEditeurScript editeur;
  if (!editeur.Ouvre(positionnels[0])) return 1;
  if (apres < 1 || apres > editeur.Cadre.nbFeuilles)
    return Usage(("la feuille " + positionnels[2] + " n'existe pas").c_str());
  editeur.Cadre.TabSelChange(apres - 1);
  Repond(editeur, {"file", positionnels[1]}, positionnels[1]);
  Repond(editeur, {"inserer", temps, dx, dy, carte});
  const bool insere = editeur.Cadre.pFenDesActive->OuvrirFeuille();
  return Issue(editeur, insere, positionnels[3], true);
}
