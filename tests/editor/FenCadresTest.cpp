// The two frames' own logic: the sheets a new editor starts with, and the close guards.
#include <gtest/gtest.h>

#include <cstring>

#include "demo/player/FenApp.h"
#include "demo/player/FenCadre.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "support/DocumentTest.h"

namespace {

class FenCadresTest : public DocumentTest {};

TEST_F(FenCadresTest, NewEditorHasSheetOneAndASpareSheetTwo) {
  std::strcpy(FichierRoutine, "ancienne.rou");
  nbCV = 4;
  TabLElt[3].SetNumCoul(0, TColor::White);
  TFenCadre2 cadre;
  EXPECT_STREQ(FichierRoutine, "");
  EXPECT_EQ(nbCV, 1);
  EXPECT_EQ(TabLElt[3].Num, 3);
  EXPECT_EQ(TabLElt[3].Couleur, TColor::LtGreen);
  ASSERT_EQ(cadre.nbFeuilles, 1);
  EXPECT_EQ(pFenDes0, cadre.GetFeuille(0));
  EXPECT_EQ(cadre.pFenDesActive, pFenDes0);
  EXPECT_EQ(pFenDes0->Num, 1);
  EXPECT_EQ(cadre.GetLabelOnglet(0), "1 - ");

  cadre.SetupWindow();
  ASSERT_EQ(cadre.nbFeuilles, 2);
  EXPECT_EQ(cadre.GetFeuille(1)->Num, 2);
  EXPECT_EQ(cadre.GetLabelOnglet(1), "2 - ");
  EXPECT_EQ(cadre.pFenDesActive, pFenDes0);
}

TEST_F(FenCadresTest, NoMoreThan200Sheets) {
  TFenCadre2 cadre;
  while (cadre.nbFeuilles < NB_FEUILLES_MAX) ASSERT_TRUE(cadre.AddFeuille());
  EXPECT_FALSE(cadre.AddFeuille());
  EXPECT_EQ(cadre.nbFeuilles, 200);
  EXPECT_EQ(cadre.GetFeuille(199)->Num, 200);
}

TEST_F(FenCadresTest, EditorClosesOnlyOnOKAndTheSceneEndsWithIt) {
  TFenCadre2 cadre;
  TFenCadre lecteur;
  lecteur.Client().Paint();  // the player's first scene
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  dialogues.Reponses = {TReponse::Annuler, TReponse::OK};
  EXPECT_FALSE(cadre.CanClose());
  EXPECT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_TRUE(cadre.CanClose());
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.blDemoOK, 0);
  ASSERT_EQ(dialogues.Boites.size(), 2u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "Fermeture Définitive ?");
  EXPECT_EQ(dialogues.Boites[0].Titre, "CV");
  EXPECT_EQ(dialogues.Boites[0].Boutons, TBoutons::OKAnnuler);
  EXPECT_EQ(dialogues.Boites[0].Icone, TIcone::Question);
}

TEST_F(FenCadresTest, PlayerNeverClosesByItselfAndBeeps) {
  TFenCadre lecteur;
  EXPECT_FALSE(lecteur.CanClose());
  EXPECT_EQ(dialogues.Bips, 1);
  EXPECT_TRUE(dialogues.Boites.empty());
}

}  // namespace
