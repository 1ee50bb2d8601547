#include "equipe/Modeles.h"

#include <filesystem>
#include <optional>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "platform/Donnees.h"
#include "session/Modification.h"

std::string DossierModeles() {
  const std::filesystem::path readme = CheminDonnee("modeles/README.txt");
  std::error_code erreur;
  if (!std::filesystem::is_regular_file(readme, erreur)) return {};
  return readme.parent_path().string();
}

void NouveauModele(TFenDessin& feuille) {
  TFenCadre2* const cadre = feuille.pFenCadre;
  if (!cadre || !cadre->ConfirmePerte()) return;
  const std::string dossier = DossierModeles();
  TDialogueFichier dialogue{"Nouveau d'après un modèle", "routines modèles ROU | *.rou", "rou",
                            dossier.empty() ? std::string() : dossier + "/"};
  const std::optional<std::string> chemin = Dialogues().FichierAOuvrir(dialogue);
  if (!chemin) return;
  NbFenDesOuvertes = 0;
  // Opened under a name of its own, so that the model never joins the recent files.
  feuille.Ouvrir(*chemin, "modèle");
  FichierRoutine[0] = '\0';
  cadre->SetTitre("Dessin Trajectoires");
  MarqueModifie();
}
