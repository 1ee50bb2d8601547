#include "EditeurScript.h"

#include <cstdio>
#include <cctype>
#include <filesystem>

#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "files/Lignes.h"
#include "model/Document.h"
#include "model/Elt.h"

namespace {
constexpr int LARGEUR = 880;
constexpr int HAUTEUR_BANDE = 200;
}  // namespace

TEditeurScript::TEditeurScript() {
  SetDialogues(&Dialogues);
  Cadre.SetHauteurs(0, 0, 0);
  Cadre.SetupWindow();
  Cadre.EvSize(LARGEUR, LARGEUR / 2 + HAUTEUR_BANDE);
}

TEditeurScript::~TEditeurScript() { SetDialogues(nullptr); }

bool TEditeurScript::Ouvre(const std::string& chemin) {
  std::error_code erreur;
  if (!std::filesystem::is_regular_file(chemin, erreur) || !LitFichier(chemin)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", chemin.c_str());
    return false;
  }
  Cadre.pFenDesActive->Ouvrir(chemin);
  return true;
}

bool TEditeurScript::Ecrit(const std::string& chemin) {
  if (EcritFichier(chemin, TexteRoutine())) return true;
  std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", chemin.c_str());
  return false;
}

TFenDessin* TEditeurScript::Montre(TElt* e) {
  if (Cadre.pFenDesActive != e->pFen) Cadre.TabSelChange(e->pFen->Num - 1);
  return Cadre.pFenDesActive;
}

TElt* Element(int k, int i) {
  return k >= 0 && k < nbCV && i >= 0 ? static_cast<TElt*>(TabLElt[k].GetPt(i)) : nullptr;
}

bool SurUneFeuille(TElt* debut, TElt* fin) {
  for (TElt* e = debut; e != fin; e = e->GetEltSuivant())
    if (e->pFen != fin->pFen) return false;
  return true;
}

bool Entier(const std::string& s, int& n) {
  std::size_t fin = 0;
  if (s.empty() || (s[0] != '-' && s[0] != '+' && !std::isdigit(static_cast<unsigned char>(s[0])))) return false;
  try {
    n = std::stoi(s, &fin);
  } catch (...) {
    return false;
  }
  return fin == s.size();
}
