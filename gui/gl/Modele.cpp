#include "gui/gl/Modele.h"

#include "platform/ErreursRendu.h"

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace {
// Assimp hands .x files over right-handed, z mirrored and winding flipped; the scene is
// told in the file's left-handed coordinates, so z is mirrored back.
QVector3D VersGauche(const aiVector3D& v) { return {v.x, v.y, -v.z}; }

void Ajoute(const aiScene& scene, const aiNode& noeud, const aiMatrix4x4& transformation, TModele& modele) {
  for (unsigned m = 0; m < noeud.mNumMeshes; ++m) {
    const aiMesh* maillage = scene.mMeshes[noeud.mMeshes[m]];
    aiColor4D diffuse(0.8f, 0.8f, 0.8f, 1.0f);
    if (maillage->mMaterialIndex < scene.mNumMaterials)
      scene.mMaterials[maillage->mMaterialIndex]->Get(AI_MATKEY_COLOR_DIFFUSE, diffuse);
    const QVector3D couleur(diffuse.r, diffuse.g, diffuse.b);
    for (unsigned f = 0; f < maillage->mNumFaces; ++f) {
      const aiFace& face = maillage->mFaces[f];
      if (face.mNumIndices != 3) continue;  // points and lines carry no surface
      QVector3D p[3];
      for (int k = 0; k < 3; ++k) p[k] = VersGauche(transformation * maillage->mVertices[face.mIndices[k]]);
      const QVector3D normale = QVector3D::normal(p[0], p[1], p[2]);
      for (const QVector3D& sommet : p) modele.Sommets.push_back({sommet, normale, couleur});
    }
  }
  for (unsigned c = 0; c < noeud.mNumChildren; ++c) {
    const aiNode& enfant = *noeud.mChildren[c];
    Ajoute(scene, enfant, transformation * enfant.mTransformation, modele);
  }
}
}  // namespace

long ChargeModeleX(const std::string& fichier, const std::string& nomCadre, TModele& modele) {
  Assimp::Importer importeur;
  // No step that flattens the node graph: the named frame must survive the import.
  const aiScene* scene = importeur.ReadFile(fichier, aiProcess_Triangulate | aiProcess_SortByPType);
  if (!scene || !scene->mRootNode) return SCENEERR_FICHIERMODELE;
  const aiNode* cadre = scene->mRootNode->FindNode(nomCadre.c_str());
  if (!cadre) return SCENEERR_CADREABSENT;
  modele.Sommets.clear();
  // The frame's own placement is what the key tracks replace; its children keep theirs.
  Ajoute(*scene, *cadre, aiMatrix4x4(), modele);
  if (modele.Sommets.empty()) return SCENEERR_FORMATMODELE;
  return 0;
}
