// Follow the leader: the followers' flight is the leader's, later by their delay, and one undo
// takes the whole command back.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "editor/MenuEditeur.h"
#include "equipe/BDSuivre.h"
#include "equipe/Suivre.h"
#include "files/Ecriture.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "support/Fichiers.h"

namespace {
class SuivreTest : public FichiersTest {
protected:
  // The leader's range: elements 2 to 7 of kite 0, its first element on "v.constante".
  void SetUp() override {
    FichiersTest::SetUp();
    ASSERT_TRUE(Ouvre(Donnee("commandes/suivre.rou")));
    premier = static_cast<TElt*>(TabLElt[0].GetPt(2));
    dernier = static_cast<TElt*>(TabLElt[0].GetPt(7));
    ASSERT_TRUE(premier && dernier);
  }
  static TVecteur3 Position(int k, float t) { return Globals.pD3DDemo->Trajectoires[k].Positions.Echantillonne(t); }

  TElt* premier = nullptr;
  TElt* dernier = nullptr;
};

float Ecart(const TVecteur3& a, const TVecteur3& b) {
  return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) + (a.z - b.z) * (a.z - b.z));
}

TEST_F(SuivreTest, EachFollowerFliesTheLeadersTrackItsDelaysLater) {
  const float finPremier = premier->Gett2Param();
  const float finPlage = dernier->Gett2Param();
  ASSERT_TRUE(Suivre(premier, dernier, {{1, 2, 3}, 150, 551}));
  TFenDessin::Demo();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  // Each follower's range is laid on the leader's points, so each sample falls on the same
  // stretch of track. The paste anchors the first element on a whole hundredth: the follower
  // may be up to 1/100 s off, that is, at the leader's speed here (0.11 unit per hundredth),
  // at most 0.12 unit apart.
  for (int n = 1; n <= 3; ++n) {
    for (float t = finPremier; t <= finPlage; t += 5) {
      const float ecart = Ecart(Position(n, t + 150.0f * n), Position(0, t));
      ASSERT_LT(ecart, 0.12f) << "suiveur " << n << " à t = " << t;
    }
    // Before the end of its first element a follower comes from its own start point, not
    // from the leader's track.
    EXPECT_GT(Ecart(Position(n, 150.0f * n + 201), Position(0, 201)), 1.0f) << n;
  }
}

TEST_F(SuivreTest, MirroredModeMirrorsEveryEndAboutTheFollowersLastPoint) {
  const TPointf debut = static_cast<TElt*>(TabLElt[0].GetPt(1))->Getp2Param();
  const TPointf c = static_cast<TElt*>(TabLElt[3].Premier())->Getp2Param();
  ASSERT_TRUE(Suivre(premier, dernier, {{3}, 150, 553}));
  ASSERT_EQ(TabLElt[3].nbNoeud(), 7u);
  for (int i = 0; i < 6; ++i) {
    const auto* meneur = static_cast<TElt*>(TabLElt[0].GetPt(2 + i));
    const auto* suiveur = static_cast<TElt*>(TabLElt[3].GetPt(1 + i));
    const TPointf m = meneur->Getp2Param(), s = suiveur->Getp2Param();
    // A copy starts from whole units: each end may move by up to one unit.
    EXPECT_NEAR(s.x, c.x + (m.x - debut.x), 1.0f) << i;
    EXPECT_NEAR(s.y, c.y - (m.y - debut.y), 1.0f) << i;
    EXPECT_EQ(suiveur->Contrainte, i == 0 ? CONTRAINTE_TEMPS : meneur->Contrainte) << i;
    if (suiveur->Contrainte == CONTRAINTE_TEMPS) {
      EXPECT_NEAR(suiveur->Gett2Param(), meneur->Gett2Param() + 150.0f, 1.0f) << i;
    }
  }
}

TEST_F(SuivreTest, OneUndoTakesEveryFollowerBack) {
  // Undo brings back copies, whose points are whole units: the sheet is taken through one
  // undo first, so that what follows compares like with like.
  premier->pFen->MAJUnDo();
  premier->pFen->Undo();
  premier = static_cast<TElt*>(TabLElt[0].GetPt(2));
  dernier = static_cast<TElt*>(TabLElt[0].GetPt(7));
  const std::string avant = TexteRoutine();
  // What the user copied before stays in the copy buffer.
  TFenDessin::pEltCourant2 = TFenDessin::pEltCourant = static_cast<TElt*>(TabLElt[0].GetPt(1));
  premier->pFen->Copier();
  const TPointf debutCopie = PointDebutTampon;
  ASSERT_TRUE(Suivre(premier, dernier, {{3, 1}, 100, 552}));
  ASSERT_EQ(Tampon->nbNoeud(), 1u);
  EXPECT_EQ(static_cast<TElt*>(Tampon->Premier())->Getp2Param().x, -40.0f);
  EXPECT_EQ(PointDebutTampon.x, debutCopie.x);
  EXPECT_NE(TexteRoutine(), avant);
  EXPECT_EQ(TabLElt[1].nbNoeud(), 7u);
  EXPECT_EQ(TabLElt[3].nbNoeud(), 7u);
  premier->pFen->Undo();
  EXPECT_EQ(TexteRoutine(), avant);
}

// The dialog answered by the test: kites 2 and 3 follow, 200 later each, mirrored in y.
class TDialoguesSuivre : public TDialoguesScriptes {
public:
  bool Execute(TBD_Suivre& bd) override {
    ++Montres;
    Meneur = bd.Meneur;
    bd.Param->Suiveurs = {2, 3};
    bd.Param->Delai = 200;
    bd.Param->Mode = 554;
    return Accepte;
  }
  int Montres = 0;
  int Meneur = -1;
  bool Accepte = true;
};

TEST_F(SuivreTest, TheMenuCommandAsksTheDialogAndUndoTakesItBack) {
  TDialoguesSuivre boite;
  SetDialogues(&boite);
  TFenDessin* feuille = premier->pFen;
  // With nothing selected the dialog is not shown.
  TFenDessin::pEltCourant2 = TFenDessin::pEltCourant = nullptr;
  feuille->Trt_Menu(CM_SUIVRE_MENEUR);
  EXPECT_EQ(boite.Montres, 0);
  ASSERT_FALSE(boite.Statuts.empty());
  EXPECT_EQ(boite.Statuts.back(), "!!!! Sélection Vide");

  feuille->MAJUnDo();
  feuille->Undo();  // undo's own rounding, as below
  premier = static_cast<TElt*>(TabLElt[0].GetPt(2));
  dernier = static_cast<TElt*>(TabLElt[0].GetPt(7));
  const std::string avant = TexteRoutine();
  TFenDessin::pEltCourant2 = premier;
  TFenDessin::pEltCourant = dernier;
  boite.Accepte = false;
  feuille->Trt_Menu(CM_SUIVRE_MENEUR);
  EXPECT_EQ(TexteRoutine(), avant);
  boite.Accepte = true;
  feuille->Trt_Menu(CM_SUIVRE_MENEUR);
  EXPECT_EQ(boite.Montres, 2);
  EXPECT_EQ(boite.Meneur, 0);
  EXPECT_EQ(ParamSuivre().Delai, 200);  // kept for the next use
  EXPECT_EQ(TabLElt[2].nbNoeud(), 7u);
  EXPECT_EQ(TabLElt[3].nbNoeud(), 7u);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[3].Dernier())->Gett2Param(), dernier->Gett2Param() + 400.0f);
  feuille->Trt_Menu(333);
  EXPECT_EQ(TexteRoutine(), avant);
  SetDialogues(&dialogues);
  ParamSuivre() = TParamSuivre();
}

TEST_F(SuivreTest, AFollowerStartsWhereTheRangeStartsAndLandsBeforeItsLaterSheets) {
  // Kite 1 starts on sheet 2 only; kite 2 has its start on sheet 1 and an element on sheet 2;
  // kite 3 has nothing yet.
  ASSERT_TRUE(Ouvre("TEAM   1 \n"
                    "POINT   \t0\t0\t2\t1\t0\t\t-60  30\t\t0.4\t\t\n"
                    "SEGMENT \t0\t1\t2\t1\t200\t\t-40  30\t\t0.4\t\t\n"
                    "SEGMENT \t0\t2\t2\t1\t400\t\t-20  30\t\t0.4\t\t\n"
                    "SEGMENT \t0\t3\t2\t2\t600\t\t0  30\t\t0.4\t\t\n"
                    "POINT   \t1\t4\t2\t2\t0\t\t60  30\t\t0.4\t\t\n"
                    "SEGMENT \t1\t5\t2\t2\t600\t\t40  30\t\t0.4\t\t\n"
                    "POINT   \t2\t6\t2\t1\t0\t\t60  60\t\t0.4\t\t\n"
                    "SEGMENT \t2\t7\t2\t2\t600\t\t40  60\t\t0.4\t\t\n"));
  nbCV = 4;
  ASSERT_TRUE(TabLElt[3].IsVide());
  premier = static_cast<TElt*>(TabLElt[0].GetPt(1));
  dernier = static_cast<TElt*>(TabLElt[0].GetPt(2));
  dialogues.Statuts.clear();
  EXPECT_FALSE(Suivre(premier, dernier, {{2, 1}, 100, 551}));
  ASSERT_FALSE(dialogues.Statuts.empty());
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Suivre impossible : le CV n°2 commence sur une feuille suivante");

  ASSERT_TRUE(Suivre(premier, dernier, {{2, 3}, 100, 551}));
  // Kite 2: its start, the two copies on sheet 1, then its element of sheet 2.
  ASSERT_EQ(TabLElt[2].nbNoeud(), 4u);
  const auto* copie = static_cast<TElt*>(TabLElt[2].GetPt(2));
  EXPECT_EQ(copie->pFen, premier->pFen);
  EXPECT_EQ(copie->Getp2Param().x, -20.0f);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[2].Dernier())->Getp2Param().x, 40.0f);
  // Kite 3: a start point where the range starts, then the copies, 200 later.
  ASSERT_EQ(TabLElt[3].nbNoeud(), 3u);
  const auto* depart = static_cast<TElt*>(TabLElt[3].Premier());
  EXPECT_EQ(depart->Getp2Param().x, -60.0f);
  EXPECT_EQ(depart->Getp2Param().y, 30.0f);
  EXPECT_EQ(depart->pFen, premier->pFen);
  EXPECT_FLOAT_EQ(static_cast<TElt*>(TabLElt[3].Dernier())->Gett2Param(), dernier->Gett2Param() + 200.0f);
}

TEST_F(SuivreTest, RefusalsLeaveTheDocumentAsItWas) {
  const std::string avant = TexteRoutine();
  const struct {
    TParamSuivre p;
    const char* message;
  } cas[] = {
      {{{1, 0}, 150, 551}, "!!!! Suivre impossible : le CV n°1 est le meneur"},
      {{{1, 4}, 150, 551}, "!!!! Suivre impossible : pas de CV n°5"},
      {{{-1}, 150, 551}, "!!!! Suivre impossible : pas de CV n°0"},
      {{{2, 3, 2}, 150, 551}, "!!!! Suivre impossible : le CV n°3 est nommé deux fois"},
      {{{}, 150, 551}, "!!!! Suivre impossible : aucun CV suiveur"},
  };
  for (const auto& c : cas) {
    dialogues.Statuts.clear();
    EXPECT_FALSE(Suivre(premier, dernier, c.p));
    ASSERT_EQ(dialogues.Statuts.size(), 1u) << c.message;
    EXPECT_EQ(dialogues.Statuts[0], c.message);
    EXPECT_EQ(TexteRoutine(), avant) << c.message;
  }
}
}  // namespace
