#include "DialoguesScript.h"

#include <cstdio>
#include <filesystem>
#include <sstream>

#include "editor/boites/BDColler.h"
#include "editor/boites/BDFeuille.h"
#include "editor/boites/BDInsererFic.h"
#include "securite/BDSecurite.h"

TReponse TDialoguesScript::MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons, TIcone) {
  std::fprintf(stderr, "%s: %s\n", titre.c_str(), texte.c_str());
  if (boutons == TBoutons::OK) return TReponse::OK;  // nothing to choose
  if (boutons == TBoutons::EnregistrerAbandonnerAnnuler) {
    const std::optional<TReponseScript> r = Prend({"save", "discard", "cancel"});
    if (!r || r->Genre == "cancel") return TReponse::Annuler;
    return r->Genre == "save" ? TReponse::Oui : TReponse::Non;
  }
  const std::optional<TReponseScript> r = Prend({"ok", "cancel"});
  if (!r || r->Genre == "cancel") return boutons == TBoutons::OKAnnuler ? TReponse::Annuler : TReponse::Non;
  return boutons == TBoutons::OKAnnuler ? TReponse::OK : TReponse::Oui;
}

void TDialoguesScript::MessageBeep(int) { std::fprintf(stderr, "beep\n"); }

void TDialoguesScript::MessageStatut(const std::string& texte) {
  // The editor's errors carry their own mark, "!!!! ".
  if (texte.rfind("!!!! ", 0) == 0)
    std::fprintf(stderr, "%s\n", texte.c_str());
  else
    std::fprintf(stderr, "status: %s\n", texte.c_str());
}

std::optional<std::string> TDialoguesScript::FichierAOuvrir(TDialogueFichier&) {
  const std::optional<std::string> chemin = Fichier();
  // An open dialog only returns a file that is there.
  std::error_code erreur;
  if (chemin && !std::filesystem::is_regular_file(*chemin, erreur)) {
    Message = "impossible de lire « " + *chemin + " »";
    Issue = TIssue::Illisible;
    return std::nullopt;
  }
  return chemin;
}

std::optional<std::string> TDialoguesScript::FichierAEnregistrer(TDialogueFichier&) { return Fichier(); }

std::optional<std::string> TDialoguesScript::Saisie(const std::string&, const std::string&, const std::string&) {
  const std::optional<TReponseScript> r = Prend({"texte", "cancel"});
  if (!r || r->Genre == "cancel") return std::nullopt;
  return r->Mots[0];
}

// Each of the editor's boxes takes answers until one passes its CloseWindow: a refused one
// has shown its message and leaves the box open for the next.
template <class Boite, class Remplit>
bool TDialoguesScript::Repond(const char* genre, Boite& bd, Remplit remplit) {
  while (const std::optional<TReponseScript> r = Prend({genre, "cancel"})) {
    if (r->Genre == "cancel") return false;
    remplit(r->Mots);
    if (bd.CloseWindow(1)) return true;
  }
  return false;
}

bool TDialoguesScript::Execute(TBD_Coller& bd) {
  return Repond("coller", bd, [&](const std::vector<std::string>& mots) {
    const int mode = std::stoi(mots[0]);
    for (int id = TBD_Coller::ID_PREMIER_MODE; id <= TBD_Coller::ID_DERNIER_MODE; ++id)
      bd.Coche[id - TBD_Coller::ID_PREMIER_MODE] = id == mode;
    bd.Decalage = mots[1];
  });
}

bool TDialoguesScript::Execute(TBD_Feuille& bd) {
  return Repond("feuilles", bd, [&](const std::vector<std::string>& mots) {
    if (mots.size() == 1) {
      bd.Tout = true;
      bd.Feuilles = false;
    } else {
      bd.TrtFeuille();
      bd.Premiere = mots[0];
      bd.Derniere = mots[1];
    }
  });
}

bool TDialoguesScript::Execute(TBD_InsererFic& bd) {
  return Repond("inserer", bd, [&](const std::vector<std::string>& mots) {
    const std::string& temps = mots[0];
    bd.Conserver = temps == "keep";
    bd.Calcul = temps == "calc";
    bd.Decaler = !bd.Conserver && !bd.Calcul;
    if (bd.Decaler) bd.Temps = temps;
    bd.DecalageX = mots[1];
    bd.DecalageY = mots[2];
    for (int i = 0; i < NB_CV_MAX; ++i) bd.Correspondance[i] = mots[3 + i];
  });
}

bool TDialoguesScript::Execute(TBD_Securite& bd) {
  return Repond("securite", bd, [&](const std::vector<std::string>& mots) {
    for (std::size_t i = 0; i < mots.size() && i < bd.Textes.size(); ++i) bd.Textes[i] = mots[i];
  });
}

bool TDialoguesScript::Ajoute(const std::vector<std::string>& mots, const std::string& texte, std::string& erreur) {
  const std::string genre = mots.empty() ? std::string() : mots[0];
  const std::size_t n = mots.size();
  auto entier = [](const std::string& s) {
    std::size_t fin = 0;
    try {
      std::stoi(s, &fin);
    } catch (...) {
      return false;
    }
    return fin == s.size();
  };
  if ((genre == "ok" || genre == "cancel" || genre == "save" || genre == "discard") && n == 1) {
    Reponses.push_back({genre, {}});
  } else if ((genre == "file" || genre == "texte") && n >= 2) {
    Reponses.push_back({genre, {texte}});
  } else if (genre == "coller" && n == 3 && entier(mots[1]) && std::stoi(mots[1]) >= TBD_Coller::ID_PREMIER_MODE &&
             std::stoi(mots[1]) <= TBD_Coller::ID_DERNIER_MODE) {
    Reponses.push_back({genre, {mots[1], mots[2]}});
  } else if (genre == "feuilles" && ((n == 2 && mots[1] == "tout") || n == 3)) {
    Reponses.push_back({genre, std::vector<std::string>(mots.begin() + 1, mots.end())});
  } else if (genre == "securite" && (n == 5 || n == 6)) {
    // L D W V, and the pilots' spacing if given: as typed in the box.
    Reponses.push_back({genre, std::vector<std::string>(mots.begin() + 1, mots.end())});
  } else if (genre == "inserer" && n == 5) {
    // TIMES DX DY MAP, the map being six values separated by commas.
    std::vector<std::string> valeurs(mots.begin() + 1, mots.begin() + 4);
    std::istringstream carte(mots[4]);
    for (std::string v; std::getline(carte, v, ',');) valeurs.push_back(v);
    if (valeurs.size() != 3 + NB_CV_MAX) {
      erreur = "la correspondance d'« inserer » a six valeurs séparées par des virgules";
      return false;
    }
    Reponses.push_back({genre, valeurs});
  } else {
    erreur = "réponse mal formée";
    return false;
  }
  return true;
}

std::optional<std::string> TDialoguesScript::Fichier() {
  const std::optional<TReponseScript> r = Prend({"file", "cancel"});
  if (!r || r->Genre == "cancel") return std::nullopt;
  return r->Mots[0];
}

std::optional<TReponseScript> TDialoguesScript::Prend(std::initializer_list<const char*> genres) {
  if (Reponses.empty() || Issue != TIssue::Continue) return std::nullopt;
  TReponseScript r = Reponses.front();
  Reponses.pop_front();
  for (const char* g : genres)
    if (r.Genre == g) return r;
  Message = "réponse « " + r.Genre + " » inattendue pour ce dialogue";
  Issue = TIssue::Usage;
  return std::nullopt;
}
