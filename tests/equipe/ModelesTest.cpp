// The ready-made team routines of data/modeles: each one opens, flies, and keeps its kites
// apart and within a safe speed, sampled as the player samples them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "editor/FenDessin.h"
#include "editor/MenuEditeur.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"
#include "support/Fichiers.h"

namespace {
namespace fs = std::filesystem;

// 3 m at the default 30 m lines, and 60 units a second, in hundredths.
constexpr float DISTANCE_MIN = 7.0f;
constexpr float VITESSE_MAX = 0.6f;
constexpr float PAS = 2.0f;

// Shipped with the program's data, beside the kite models.
const fs::path DOSSIER = fs::path(TRAJ_TEST_DATA) / ".." / ".." / "data" / "modeles";

class ModelesTest : public FichiersTest {};

float Distance(const TVecteur3& a, const TVecteur3& b) {
  return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

TEST_F(ModelesTest, EachFliesItsKitesApartAndWithinSpeed) {
  std::set<std::string> vus;
  for (const auto& entree : fs::directory_iterator(DOSSIER)) {
    if (entree.path().extension() != ".rou") continue;
    const std::string nom = entree.path().filename().string();
    vus.insert(nom);
    SCOPED_TRACE(nom);
    ASSERT_TRUE(Ouvre(Donnee("../../data/modeles/" + nom)));
    ASSERT_GE(nbCV, 3);
    ASSERT_LE(nbCV, 6);
    TFenDessin::Demo();
    ASSERT_NE(Globals.pD3DDemo, nullptr);
    const TD3DDemo& scene = *Globals.pD3DDemo;
    ASSERT_GT(scene.tFin, 300.0f);
    float proche = 1e9f, rapide = 0;
    for (float t = 0; t + PAS <= scene.tFin; t += PAS)
      for (int i = 0; i < nbCV; ++i) {
        const TVecteur3 p = scene.Trajectoires[i].Positions.Echantillonne(t);
        rapide = std::max(rapide, Distance(p, scene.Trajectoires[i].Positions.Echantillonne(t + PAS)) / PAS);
        for (int j = i + 1; j < nbCV; ++j) proche = std::min(proche, Distance(p, scene.Trajectoires[j].Positions.Echantillonne(t)));
      }
    EXPECT_GE(proche, DISTANCE_MIN);
    EXPECT_LT(rapide, VITESSE_MAX);
  }
  EXPECT_GE(vus.size(), 6u);
}

TEST_F(ModelesTest, NewFromAModelOpensAnUntitledChangedCopy) {
  ASSERT_TRUE(Ouvre(""));
  TFenDessin& feuille = *cadre->pFenDesActive;
  const fs::path modele = fs::canonical(DOSSIER / "vague.rou");
  const std::string texte = Donnee("../../data/modeles/vague.rou");
  // Cancelled: nothing changes.
  feuille.Trt_Menu(CM_NOUVEAU_MODELE);
  ASSERT_EQ(dialogues.Fichiers.size(), 1u);
  EXPECT_EQ(dialogues.Fichiers[0].Titre, "Nouveau d'après un modèle");
  EXPECT_FALSE(DocumentModifie());
  EXPECT_EQ(nbCV, 1);

  dialogues.Textes.push_back(modele.string());
  feuille.Trt_Menu(CM_NOUVEAU_MODELE);
  EXPECT_EQ(nbCV, 6);
  EXPECT_EQ(std::string(FichierRoutine), "");
  EXPECT_EQ(cadre->GetTitre(), "Dessin Trajectoires");
  EXPECT_TRUE(DocumentModifie());
  const auto& recents = FichiersRecents().Tous();
  EXPECT_EQ(std::find(recents.begin(), recents.end(), modele.string()), recents.end());
  EXPECT_EQ(TexteRoutine(), texte);  // the model's own tracks and times, unchanged

  // A second model asks first about the changes of the copy.
  dialogues.Reponses.push_back(TReponse::Annuler);
  feuille.Trt_Menu(CM_NOUVEAU_MODELE);
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Fichiers.size(), 2u);
  EXPECT_EQ(nbCV, 6);
}
}  // namespace
