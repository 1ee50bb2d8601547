// What the windows show under the mouse: every button and text gadget of both control bars,
// and every control of every kind of property bar, says in French what it is for.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "demo/player/Commandes.h"
#include "editor/FenCadre2.h"
#include "editor/MenuEditeur.h"
#include "editor/bars/BD.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "support/DocumentTest.h"

namespace {

// Every button and text gadget of the bar has its own tip, which no other repeats.
void ChaqueGadgetDitCeQuIlFait(std::span<const TGadgetBarre> barre, const char* nom) {
  std::set<std::string> vues;
  int gadgets = 0;
  for (const TGadgetBarre& g : barre) {
    if (g.Genre == TGenreGadget::Separateur) continue;
    ++gadgets;
    ASSERT_NE(g.Bulle, nullptr) << nom << " : " << g.Id;
    EXPECT_GT(std::string(g.Bulle).size(), 5u) << nom << " : " << g.Id;
    EXPECT_TRUE(vues.insert(g.Bulle).second) << nom << " : « " << g.Bulle << " » deux fois";
  }
  EXPECT_GT(gadgets, 0) << nom;
}

TEST(BullesTest, EveryButtonAndGadgetOfBothControlBarsHasItsOwnTip) {
  ChaqueGadgetDitCeQuIlFait(BarreEditeur(), "éditeur");
  ChaqueGadgetDitCeQuIlFait(BarreLecteur(), "lecteur");
  for (const TGadgetStatut& g : BarreStatutLecteur()) {
    ASSERT_NE(g.Bulle, nullptr) << g.Id;
    EXPECT_GT(std::string(g.Bulle).size(), 5u) << g.Id;
  }
  EXPECT_GT(std::string(BULLE_GADGET_POSITION).size(), 5u);
}

// In the folder of the routine, whose figures are named from there.
class BullesBarresTest : public DocumentTest {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    avant = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::path(TRAJ_TEST_DATA) / "resave");
  }
  void TearDown() override {
    std::filesystem::current_path(avant);
    DocumentTest::TearDown();
  }
  std::filesystem::path avant;
};

TEST_F(BullesBarresTest, EveryControlOfEveryKindOfBarHasATip) {
  TFenCadre2 cadre;
  cadre.SetupWindow();
  ASSERT_TRUE(LitRoutine(cadre, "chaque_classe.rou"));
  std::set<int> controles;
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
      auto* e = static_cast<TElt*>(n);
      if (!e->pBD) e->OpenBD();
      ASSERT_NE(e->pBD, nullptr) << e->Num;
      for (int id : e->pBD->Controles()) {
        EXPECT_FALSE(e->pBD->Bulle(id).empty()) << "élément " << e->Num << ", contrôle " << id;
        controles.insert(id);
      }
    }
  // The routine holds one element of each kind: between them their bars have every control.
  for (int id = IDC_NOM; id <= IDC_ANGLE_REVO; ++id)
    if (id != 506 && id != 507) {
      EXPECT_TRUE(controles.count(id)) << "contrôle " << id << " jamais vu";
    }
}

}  // namespace
