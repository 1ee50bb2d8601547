#include "securite/BDSecurite.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/Nombres.h"
#include "platform/Dialogues.h"
#include "securite/Reglages.h"

namespace {
constexpr double TReglagesSecurite::*Champs[TBD_Securite::NB_CHAMPS] = {
    &TReglagesSecurite::Ligne, &TReglagesSecurite::Distance, &TReglagesSecurite::Enroulement,
    &TReglagesSecurite::Vitesse, &TReglagesSecurite::Espacement};

// A number typed with a comma or a point, blanks around it allowed; false when it is none.
bool LitNombre(std::string texte, double& v) {
  std::replace(texte.begin(), texte.end(), ',', '.');
  const char* debut = texte.c_str();
  char* fin = nullptr;
  v = std::strtod(debut, &fin);
  if (fin == debut) return false;
  while (*fin == ' ') ++fin;
  return *fin == '\0' && std::isfinite(v);
}
}  // namespace

const char* TBD_Securite::Libelle(int champ) {
  static const char* const libelles[NB_CHAMPS] = {"Longueur des lignes", "Distance minimale entre CV",
                                                   "Enroulement maximal des lignes", "Vitesse maximale",
                                                   "Espacement des pilotes"};
  return champ >= 0 && champ < NB_CHAMPS ? libelles[champ] : "";
}

const char* TBD_Securite::Unite(int champ) {
  static const char* const unites[NB_CHAMPS] = {"m", "m", "tours", "m/s", "m"};
  return champ >= 0 && champ < NB_CHAMPS ? unites[champ] : "";
}

void TBD_Securite::SetupWindow() {
  for (int i = 0; i < NB_CHAMPS; ++i) {
    std::string texte = Gcvt(static_cast<float>(ReglagesSecurite.*Champs[i]), 6);
    std::replace(texte.begin(), texte.end(), '.', ',');
    Textes[i] = texte;
  }
}

bool TBD_Securite::CloseWindow(int id) {
  if (id != 1) return true;
  TReglagesSecurite r = ReglagesSecurite;
  for (int i = 0; i < NB_CHAMPS; ++i) {
    double v = 0;
    TReglagesSecurite essai = r;
    // Kept as the routine's line will read it back.
    if (LitNombre(Textes[i].substr(0, LONGUEUR_SAISIE), v)) essai.*Champs[i] = static_cast<float>(v);
    if (!LitNombre(Textes[i].substr(0, LONGUEUR_SAISIE), v) || !essai.Valides() ||
        ((i == LIGNE || i == VITESSE) && essai.*Champs[i] <= 0)) {
      Dialogues().MessageBox(std::string("Valeur incorrecte pour « ") + Libelle(i) + " » : " + Textes[i],
                             "Sécurité", TBoutons::OK, TIcone::Avertissement);
      return false;
    }
    r = essai;
  }
  ReglagesSecurite = r;
  return true;
}
