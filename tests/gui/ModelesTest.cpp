// The player's shipped data: the 30 kite models as Assimp reads them, the cloud backdrop,
// and data/ staying exactly what the generator writes.

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "model/Document.h"
#include "model/ListeCV.h"

namespace fs = std::filesystem;

namespace {

std::string nomModele(int equipe, int cv) {
  return "CV" + std::to_string(equipe) + "_" + std::to_string(cv) + ".x";
}

std::string lit(const fs::path& p) {
  std::ifstream f(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

// What the tests need of one model, gathered once per file.
struct Resume {
  bool charge = false, noeud = false, diffuses = true;
  unsigned faces = 0, materiaux = 0;
  aiVector3D mini{1e9f, 1e9f, 1e9f}, maxi{-1e9f, -1e9f, -1e9f};
  aiVector3D sommeNormales;       // area-weighted: the closed spars and two-sided fins cancel
  unsigned facesAlEnvers = 0;     // winding disagreeing with the stored normal
  aiColor4D principale;           // diffuse colour covering the most area
};

Resume resume(int equipe, int cv) {
  Resume r;
  Assimp::Importer imp;
  const aiScene* s = imp.ReadFile(std::string(TRAJ_DATA) + "/" + nomModele(equipe, cv), aiProcess_Triangulate);
  if (!s || !s->mRootNode) return r;
  r.charge = true;
  r.noeud = s->mRootNode->FindNode(("FRAME_CV" + std::to_string(cv)).c_str()) != nullptr;
  r.materiaux = s->mNumMaterials;
  std::vector<float> aires(s->mNumMaterials, 0.f);
  for (unsigned m = 0; m < s->mNumMeshes; ++m) {
    const aiMesh* me = s->mMeshes[m];
    for (unsigned f = 0; f < me->mNumFaces; ++f) {
      const aiFace& fa = me->mFaces[f];
      if (fa.mNumIndices != 3) continue;
      ++r.faces;
      const aiVector3D &a = me->mVertices[fa.mIndices[0]], &b = me->mVertices[fa.mIndices[1]],
                       &c = me->mVertices[fa.mIndices[2]];
      aiVector3D n = (b - a) ^ (c - a);
      r.sommeNormales += n;
      aires[me->mMaterialIndex] += n.Length() / 2;
      if (me->HasNormals() && n * me->mNormals[fa.mIndices[0]] <= 0) ++r.facesAlEnvers;
      for (const aiVector3D* p : {&a, &b, &c}) {
        r.mini = {std::min(r.mini.x, p->x), std::min(r.mini.y, p->y), std::min(r.mini.z, p->z)};
        r.maxi = {std::max(r.maxi.x, p->x), std::max(r.maxi.y, p->y), std::max(r.maxi.z, p->z)};
      }
    }
  }
  for (unsigned m = 0; m < s->mNumMaterials; ++m) {
    aiColor4D c;
    if (s->mMaterials[m]->Get(AI_MATKEY_COLOR_DIFFUSE, c) != AI_SUCCESS) r.diffuses = false;
    if (aires[m] == *std::max_element(aires.begin(), aires.end())) r.principale = c;
  }
  return r;
}

// All 30 summaries, read once for the whole suite.
const std::map<std::pair<int, int>, Resume>& tous() {
  static const auto t = [] {
    std::map<std::pair<int, int>, Resume> m;
    for (int e = 1; e <= 5; ++e)
      for (int k = 1; k <= 6; ++k) m[{e, k}] = resume(e, k);
    return m;
  }();
  return t;
}

}  // namespace

TEST(Modeles, ChaqueCerfVolantSeChargeAvecSonCadreEtSesProportions) {
  for (const auto& [cle, r] : tous()) {
    SCOPED_TRACE(nomModele(cle.first, cle.second));
    ASSERT_TRUE(r.charge);
    EXPECT_TRUE(r.noeud) << "FRAME_CV" << cle.second << " missing";
    EXPECT_GT(r.faces, 10u);
    EXPECT_TRUE(r.diffuses);
    const float largeur = r.maxi.x - r.mini.x, hauteur = r.maxi.y - r.mini.y;
    EXPECT_GE(largeur, 7.f);
    EXPECT_LE(largeur, 9.f);
    EXPECT_GT(largeur, hauteur);
    EXPECT_GT(r.maxi.y, 2.5f);              // nose up
    EXPECT_GT(r.maxi.z - r.mini.z, 0.3f);   // a real 3D object, not a flat sheet
    EXPECT_EQ(r.facesAlEnvers, 0u);
    // The sail faces the pilot: +z once loaded.
    EXPECT_GT(r.sommeNormales.z, 10 * std::abs(r.sommeNormales.x));
    EXPECT_GT(r.sommeNormales.z, 10 * std::abs(r.sommeNormales.y));
  }
}

TEST(Modeles, LesSixCerfsVolantsDUneEquipeOntChacunSaCouleur) {
  for (int e = 1; e <= 5; ++e)
    for (int a = 1; a <= 6; ++a)
      for (int b = a + 1; b <= 6; ++b) {
        const aiColor4D &ca = tous().at({e, a}).principale, &cb = tous().at({e, b}).principale;
        EXPECT_GT(std::abs(ca.r - cb.r) + std::abs(ca.g - cb.g) + std::abs(ca.b - cb.b), 0.3f)
            << nomModele(e, a) << " / " << nomModele(e, b);
      }
}

// Team 1 shows each kite in the colour the sheets draw it in.
TEST(Modeles, LEquipeUnPorteLesCouleursDeLEditeur) {
  ReinitialiseDocument();
  InitialiseNumCoul();
  for (int k = 1; k <= 6; ++k) {
    const TColor e = TabLElt[k - 1].Couleur;
    const aiColor4D& c = tous().at({1, k}).principale;
    EXPECT_NEAR(c.r, e.Red() / 255.0f, 0.01f) << nomModele(1, k);
    EXPECT_NEAR(c.g, e.Green() / 255.0f, 0.01f) << nomModele(1, k);
    EXPECT_NEAR(c.b, e.Blue() / 255.0f, 0.01f) << nomModele(1, k);
  }
  ReinitialiseDocument();
}

TEST(Modeles, ChaqueEquipeASonDessin) {
  for (int k = 1; k <= 6; ++k) {
    std::set<std::string> dessins;
    for (int e = 1; e <= 5; ++e) {
      const Resume& r = tous().at({e, k});
      dessins.insert(std::to_string(r.faces) + "/" + std::to_string(r.materiaux) + "/" +
                     std::to_string(static_cast<int>(r.mini.y * 10)));
    }
    EXPECT_EQ(dessins.size(), 5u) << "kite " << k;
  }
}

TEST(Donnees, LeCielANuagesEstUnBmp24BitsDeNuagesSurFondBleu) {
  const std::string f = lit(fs::path(TRAJ_DATA) / "Nuages.bmp");
  ASSERT_GE(f.size(), 54u);
  auto u32 = [&](std::size_t o) {
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i) v = v << 8 | static_cast<std::uint8_t>(f[o + i]);
    return v;
  };
  EXPECT_EQ(f.substr(0, 2), "BM");
  EXPECT_EQ(u32(14), 40u);
  EXPECT_EQ(u32(18), 1024u);
  EXPECT_EQ(u32(22), 512u);
  EXPECT_EQ(u32(28) & 0xffff, 24u);
  EXPECT_EQ(u32(30), 0u);
  ASSERT_EQ(f.size(), u32(10) + 1024u * 3 * 512);
  std::size_t blancs = 0, bleus = 0;
  for (std::size_t p = u32(10); p + 2 < f.size(); p += 3) {
    const int b = static_cast<std::uint8_t>(f[p]), g = static_cast<std::uint8_t>(f[p + 1]),
              r = static_cast<std::uint8_t>(f[p + 2]);
    if (r > 215 && g > 215 && b > 215) ++blancs;
    if (b > r + 60) ++bleus;
  }
  const std::size_t pixels = 1024 * 512;
  EXPECT_GT(blancs, pixels / 50);
  EXPECT_GT(bleus, pixels / 4);
}

// The generator is run afresh and must reproduce data/ byte for byte: the shipped files
// come from an earlier run, so this also shows the output does not vary between runs.
TEST(Donnees, LeGenerateurRefaitExactementLesDonneesLivrees) {
  const fs::path tmp = fs::temp_directory_path() / ("traj_donnees_" + std::to_string(getpid()));
  fs::remove_all(tmp);
  ASSERT_EQ(std::system(("\"" TRAJ_GENERATEUR "\" \"" + tmp.string() + "\"").c_str()), 0);
  std::set<std::string> livres, generes;
  // The ready-made routines in data/modeles/ are written by hand, not by the generator.
  for (const auto& e : fs::directory_iterator(TRAJ_DATA))
    if (e.is_regular_file()) livres.insert(e.path().filename().string());
  for (const auto& e : fs::directory_iterator(tmp)) generes.insert(e.path().filename().string());
  EXPECT_EQ(generes.size(), 31u);
  EXPECT_EQ(livres, generes);
  for (const std::string& nom : generes)
    EXPECT_TRUE(lit(tmp / nom) == lit(fs::path(TRAJ_DATA) / nom)) << nom << " differs from data/";
  fs::remove_all(tmp);
}
