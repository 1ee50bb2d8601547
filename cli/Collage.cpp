// trajectoires-cli paste IN K FIRST LAST TK TARGET MODE SHIFT OUT: elements FIRST to LAST of
// kite K copied as a range, pasted after element TARGET of kite TK with the paste dialog
// answered MODE and SHIFT, the routine written to OUT. Nothing is painted in between.
#include <cstdio>
#include <string>
#include <vector>

#include "EditeurScript.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"

namespace {
int Usage(const char* raison) {
  std::fprintf(stderr, "trajectoires-cli : paste : %s (voir --help)\n", raison);
  return 2;
}

}  // namespace

int Colle(const std::vector<std::string>& args) {
  if (args.size() != 9) return Usage("il faut IN K FIRST LAST TK TARGET MODE SHIFT OUT");
  int n[7];
  for (int i = 0; i < 7; ++i)
    if (!Entier(args[1 + i], n[i])) return Usage(("« " + args[1 + i] + " » n'est pas un entier").c_str());
  const auto [k, premier, dernier, tk, cible, mode, decalage] = n;
  if (mode < TBD_Coller::ID_PREMIER_MODE || mode > TBD_Coller::ID_DERNIER_MODE)
    return Usage("MODE va de 551 à 555");
  TEditeurScript editeur;
  if (!editeur.Ouvre(args[0])) return 1;
  TElt* debut = premier >= 1 && premier <= dernier ? Element(k, premier) : nullptr;
  TElt* fin = debut ? Element(k, dernier) : nullptr;
  TElt* apres = Element(tk, cible);
  if (!debut || !fin || !apres) return Usage("une position ne désigne aucun élément, ou la plage commence à 0");
  if (!SurUneFeuille(debut, fin)) return Usage("la plage s'étend sur plusieurs feuilles");

  TFenDessin* feuille = editeur.Montre(debut);
  TFenDessin::nCV = k;
  TFenDessin::pEltCourant2 = debut;
  TFenDessin::pEltCourant = fin;
  feuille->Trt_Menu(336);
  feuille = editeur.Montre(apres);
  TFenDessin::nCV = tk;
  TFenDessin::pEltCourant2 = nullptr;
  TFenDessin::pEltCourant = apres;
  std::string erreur;
  editeur.Dialogues.Ajoute({"coller", std::to_string(mode), std::to_string(decalage)}, "", erreur);
  feuille->Trt_Menu(337);
  return editeur.Ecrit(args[8]) ? 0 : 1;
}
