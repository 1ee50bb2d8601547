#include "editor/boites/BDInsererFic.h"

#include <cstdio>

#include "model/Bornes.h"
#include "platform/Dialogues.h"

namespace {
// The edit's text read as %d reads it, `ancien` when it holds no number.
int Lit(const std::string& texte, int ancien) {
  int lu;
  return std::sscanf(texte.substr(0, TBD_InsererFic::LONGUEUR_SAISIE).c_str(), "%d", &lu) == 1 ? lu : ancien;
}

bool Refuse(const std::string& texte, const char* titre) {
  Dialogues().MessageBox(texte, titre);
  return false;
}
}  // namespace

void TBD_InsererFic::SetupWindow() {
  Conserver = Param->Conserver;
  Calcul = Param->Calcul;
  Decaler = Param->Decaler;
  Temps = std::to_string(Param->Temps);
  for (int i = 0; i < NB_CV_MAX; ++i) Correspondance[i] = std::to_string(Param->Correspondance[i]);
  DecalageX = std::to_string(Param->DecalageX);
  DecalageY = std::to_string(Param->DecalageY);
}

bool TBD_InsererFic::CloseWindow(int id) {
  if (id != 1) return true;
  const int dx = Lit(DecalageX, Param->DecalageX);
  if (dx > DECALAGE_MAX || dx < -DECALAGE_MAX) return Refuse("Décalage en x hors limites !!!", "Pb Insérer Fichier");
  const int dy = Lit(DecalageY, Param->DecalageY);
  if (dy > DECALAGE_MAX || dy < -DECALAGE_MAX) return Refuse("Décalage en y hors limites !!!", "Pb Insérer Fichier");
  int corr[NB_CV_MAX];
  for (int i = 0; i < NB_CV_MAX; ++i) corr[i] = Lit(Correspondance[i], Param->Correspondance[i]);
  constexpr const char* titre = "Insérer Fichier Routine";
  char texte[160];
  for (int i = 0; i < NbLignes; ++i)
    if (corr[i] < 1) {
      std::snprintf(texte, sizeof texte, " Erreur de correspondance : N° CV inséré trop faible pour le CV N° %d ! ", i + 1);
      return Refuse(texte, titre);
    }
  for (int i = 0; i < NbLignes; ++i)
    if (corr[i] > Param->NbCVFichier) {
      std::snprintf(texte, sizeof texte,
                    " Erreur de correspondance : N° CV inséré trop élevé pour le CV N° %d ! ( max = %d )", i + 1,
                    Param->NbCVFichier);
      return Refuse(texte, titre);
    }
  for (int i = 0; i < NbLignes; ++i)
    for (int j = i + 1; j < NbLignes; ++j)
      if (corr[i] == corr[j]) {
        std::snprintf(texte, sizeof texte, " Erreur de correspondance : N° CV identiques pour les CV N° %d et %d !",
                      i + 1, j + 1);
        return Refuse(texte, titre);
      }
  const int temps = Lit(Temps, Param->Temps);
  if (Calcul || Decaler) {
    const double decalage = Decaler ? temps : Param->DecalageCalcule;
    for (int i = 0; i < NbLignes; ++i) {
      const int c = corr[i] - 1;
      if (!TempsAdmis(Param->TempsMin[c] + decalage) || !TempsAdmis(Param->TempsMax[c] + decalage))
        return Refuse("Décalage en temps hors limites !!!", "Pb Insérer Fichier");
    }
  }
  Param->DecalageX = dx;
  Param->DecalageY = dy;
  for (int i = 0; i < NB_CV_MAX; ++i) Param->Correspondance[i] = corr[i];
  Param->Temps = temps;
  Param->Conserver = Conserver;
  Param->Calcul = Calcul;
  Param->Decaler = Decaler;
  return true;
}

std::string TBD_InsererFic::LibelleCV(int i) { return "- CV N°" + std::to_string(i + 1) + "     : "; }
