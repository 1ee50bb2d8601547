#include "EditeurScript.h"

#include <cstdio>
#include <cctype>
#include <filesystem>

#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "files/Lignes.h"

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
