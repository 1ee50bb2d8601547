// Figures: read from their file, placed at the end of the element before them, mirrored by
// composing transformations, copied with their inner list, and guarded against nesting.
#include <gtest/gtest.h>

#include "model/elements/Figure.h"
#include "model/elements/Pt.h"
#include "support/Fichiers.h"
#include "support/Trace.h"

namespace {

class FigureTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    // A point at (0, 0), then a line to (30, -5) at 200 and one on to (40, 10) at 300.
    Ecrit("vague.fig",
          "POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\n"
          "SEGMENT \t0\t1\t3\t1\t200\t\t30  -5\t\t0.4\t\t\n"
          "SEGMENT \t0\t2\t3\t1\t300\t\t40  10\t\t0.4\t\t\n");
  }

  TFigure* Place(const char* fichier, int x = 10, int y = 10) {
    Ajoute<TPt>(f.fen, 0, x, y);
    return Ajoute<TFigure>(f.fen, 0, 0, 0, fichier, true);
  }

  static std::vector<TPointf> Points(TFigure* fig) {
    std::vector<TPointf> v;
    for (TNoeud* n = fig->pListeFig->Premier(); n; n = n->GetSuivant()) v.push_back(static_cast<TElt*>(n)->Getp2Param());
    return v;
  }

  TFeuilleTest f;
};

TEST_F(FigureTest, ReadFromItsFileAndPlacedAfterThePreviousEnd) {
  TFigure* fig = Place("vague.fig");
  EXPECT_EQ(fig->Contrainte, CONTRAINTE_DUREE);
  EXPECT_EQ(fig->Transformation, TRANSFORMATION_PARALLELE);
  EXPECT_STREQ(fig->Nom, "vague");
  EXPECT_EQ(fig->NomFichier, "vague.fig");
  EXPECT_EQ(fig->dx, 40.0f);
  EXPECT_EQ(fig->dy, 10.0f);
  EXPECT_EQ(fig->GetDureeConstante(), 300.0f);
  EXPECT_EQ(fig->Getp2(), TPointf(50, 20));
  EXPECT_EQ(fig->GetVDir(), TVect(10, 15));
  EXPECT_EQ(TElt::NbElt, 2);  // the inner elements take no document number
  for (TNoeud* n = fig->pListeFig->Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    EXPECT_EQ(e->Num, -fig->Num);
    EXPECT_EQ(e->pListeCV, &TabLElt[0]);
    EXPECT_EQ(e->pFen, &f.fen);
    EXPECT_EQ(e->GetpListe(), fig->pListeFig.get());
  }
}

TEST_F(FigureTest, OneElementFileHasNoDisplacementNorDuration) {
  Ecrit("seul.fig", "POINT   \t0\t0\t2\t1\t50\t\t7  7\t\t0.4\t\t\n");
  TFigure* fig = Place("dossier/../seul.fig");
  EXPECT_EQ(fig->NomFichier, "seul.fig");
  EXPECT_EQ(fig->dx, 0.0f);
  EXPECT_EQ(fig->dy, 0.0f);
  EXPECT_EQ(fig->GetDureeConstante(), 0.0f);
}

TEST_F(FigureTest, MissingFileGivesAnEmptyFigure) {
  TFigure* fig = Place("absente.fig");
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "Problème d'ouverture figure '!!! ");
  EXPECT_EQ(dialogues.Boites[0].Titre, " Ouvrir Figure");
  EXPECT_TRUE(fig->pListeFig->IsVide());
  EXPECT_EQ(fig->GetVDir(), TVect(0, 1));
  fig->Set(0, CONTRAINTE_DUREE, 0, 0, TRANSFORMATION_SYMETRIE_X);
  EXPECT_EQ(fig->Getp2(), TPointf(10, 10));
}

TEST_F(FigureTest, TransformationCycleComesBackAfterFourSteps) {
  TFigure* fig = Place("vague.fig");
  const auto depart = Points(fig);
  const int attendues[] = {TRANSFORMATION_SYMETRIE_X, TRANSFORMATION_SYMETRIE_Y, TRANSFORMATION_SYMETRIE_POINT,
                           TRANSFORMATION_PARALLELE};
  const TPointf fins[] = {{40, -10}, {-40, 10}, {-40, -10}, {40, 10}};
  for (int i = 0; i < 4; ++i) {
    fig->ChangeTransformation();
    EXPECT_EQ(fig->Transformation, attendues[i]) << i;
    EXPECT_EQ(Points(fig).back(), fins[i]) << i;
    EXPECT_EQ(TPointf(fig->dx, fig->dy), fins[i]) << i;
  }
  EXPECT_EQ(Points(fig), depart);
}

TEST_F(FigureTest, MirrorOfTheRoutineComposesWithTheFiguresOwn) {
  TFigure* fig = Place("vague.fig");
  fig->Set(0, CONTRAINTE_DUREE, 0, 300, TRANSFORMATION_SYMETRIE_X);
  EXPECT_EQ(Points(fig).back(), TPointf(40, -10));
  fig->Transforme(TPointf(0, 0), TPointf(0, 0), TRANSFORMATION_SYMETRIE_Y);
  EXPECT_EQ(fig->Transformation, TRANSFORMATION_SYMETRIE_POINT);
  EXPECT_EQ(TPointf(fig->dx, fig->dy), TPointf(-40, -10));
}

TEST_F(FigureTest, CopyHasItsOwnInnerList) {
  TFigure* fig = Place("vague.fig");
  fig->Set(0, CONTRAINTE_TEMPS, 700, 300, TRANSFORMATION_SYMETRIE_Y);
  auto* copie = dynamic_cast<TFigure*>(fig->Copie(Tampon, false));
  ASSERT_NE(copie, nullptr);
  EXPECT_NE(copie->Num, fig->Num);
  EXPECT_EQ(copie->Transformation, TRANSFORMATION_SYMETRIE_Y);
  EXPECT_EQ(copie->NomFichier, "vague.fig");
  EXPECT_EQ(copie->GetDureeConstante(), 300.0f);
  ASSERT_NE(copie->pListeFig, nullptr);
  EXPECT_NE(copie->pListeFig.get(), fig->pListeFig.get());
  EXPECT_EQ(Points(copie), Points(fig));
  EXPECT_EQ(static_cast<TElt*>(copie->pListeFig->Premier())->Num, -fig->Num);
  delete copie;
}

TEST_F(FigureTest, FigureThatContainsItselfIsReadOnce) {
  Ecrit("a.fig", "POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\nFIGURE  \t0\t1\t5\t1\t0\t\t0  0\t\t0.4\t0\tb.fig\t552\t\t\n");
  Ecrit("b.fig", "POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\nFIGURE  \t0\t1\t5\t1\t0\t\t0  0\t\t0.4\t0\ta.fig\t552\t\t\n");
  TFigure* a = Place("a.fig");
  ASSERT_EQ(a->pListeFig->nbNoeud(), 2);
  auto* b = dynamic_cast<TFigure*>(static_cast<TElt*>(a->pListeFig->Dernier()));
  ASSERT_NE(b, nullptr);
  ASSERT_EQ(b->pListeFig->nbNoeud(), 2);
  auto* aDansB = dynamic_cast<TFigure*>(static_cast<TElt*>(b->pListeFig->Dernier()));
  ASSERT_NE(aDansB, nullptr);
  EXPECT_TRUE(aDansB->pListeFig->IsVide());
  EXPECT_EQ(dialogues.Statuts.back(), "!!!!  Figure 'a.fig' : elle se contient elle-même, ignorée");
}

TEST_F(FigureTest, RoutineReadsItsFiguresFromTheCurrentFolder) {
  ASSERT_TRUE(Ouvre("POINT   \t0\t0\t2\t1\t0\t\t10  10\t\t0.4\t\t\n"
                    "FIGURE  \t0\t1\t2\t1\t450\t\t50  20\t\t0.4\t300\tvague.fig\t555\t\t\n"));
  ASSERT_EQ(TabLElt[0].nbNoeud(), 2);
  auto* fig = dynamic_cast<TFigure*>(static_cast<TElt*>(TabLElt[0].Dernier()));
  ASSERT_NE(fig, nullptr);
  EXPECT_EQ(fig->Transformation, TRANSFORMATION_SYMETRIE_POINT);
  EXPECT_FLOAT_EQ(fig->Gett2Param(), 450);
  EXPECT_EQ(fig->Getp2(), TPointf(-30, 0));
}

}  // namespace
