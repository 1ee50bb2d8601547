// The two frames' own logic: the sheets a new editor starts with, and the close guards.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

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

TEST_F(FenCadresTest, SheetsAreHalfAsHighAsWideAndTheStripTakesTheRest) {
  TFenCadre2 cadre;
  cadre.SetupWindow();
  cadre.SetHauteurs(30, 31, 20);
  cadre.EvSize(800, 700);
  EXPECT_EQ(cadre.YFeuille, 61);
  EXPECT_EQ(cadre.Hauteur, 700 - 20 - 61);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(cadre.GetFeuille(i)->TailleClient, (TSize{800, 400}));
  EXPECT_EQ(cadre.pFenListe->Hauteur, 700 - 20 - 61 - 400);
  EXPECT_FALSE(cadre.pFenListe->BarreHorizontale);
  // Wide and low: the strip's height goes below zero; narrow: the horizontal bar shows.
  cadre.EvSize(1001, 300);
  EXPECT_EQ(cadre.GetFeuille(1)->TailleClient, (TSize{1001, 500}));
  EXPECT_LT(cadre.pFenListe->Hauteur, 0);
  cadre.pFenListe->XPos = 3;
  cadre.EvSize(750, 700);
  EXPECT_TRUE(cadre.pFenListe->BarreHorizontale);
  EXPECT_EQ(cadre.pFenListe->XPos, 3);
  cadre.EvSize(751, 700);
  EXPECT_FALSE(cadre.pFenListe->BarreHorizontale);
  EXPECT_EQ(cadre.pFenListe->XPos, 0);
}

TEST_F(FenCadresTest, AtMostOneUpdateOptionIsCheckedAndEachChangeBeeps) {
  TFenCadre2 cadre;
  TFenDessin& f = *cadre.pFenDesActive;
  auto coches = [&] { return std::pair(cadre.GetCoche(332), cadre.GetCoche(334)); };
  EXPECT_EQ(coches(), std::pair(false, true));
  f.Trt_Menu(332);
  EXPECT_EQ(coches(), std::pair(true, false));
  EXPECT_TRUE(TFenDessin::MAJPermanente);
  EXPECT_FALSE(TFenDessin::MAJUp);
  f.Trt_Menu(332);
  EXPECT_EQ(coches(), std::pair(false, false));
  f.Trt_Menu(334);
  EXPECT_EQ(coches(), std::pair(false, true));
  f.Trt_Menu(332);
  f.Trt_Menu(334);
  EXPECT_EQ(coches(), std::pair(false, true));
  EXPECT_FALSE(TFenDessin::MAJPermanente);
  f.Trt_Menu(334);
  EXPECT_EQ(coches(), std::pair(false, false));
  EXPECT_EQ(dialogues.Bips, 6);
}

TEST_F(FenCadresTest, EachFileDialogAsksForItsOwnKindOfFile) {
  TFenCadre2 cadre;
  TFenDessin& f = *cadre.pFenDesActive;
  for (unsigned id : {251u, 252u, 249u}) f.Trt_Menu(id);
  ASSERT_EQ(dialogues.Fichiers.size(), 3u);
  const TDialogueFichier& ouvrir = dialogues.Fichiers[0];
  EXPECT_EQ(ouvrir.Titre, "Ouvrir Fichier Routine");
  EXPECT_EQ(ouvrir.Filtre, "fichiers routine ROU | *.rou|fichiers figure  FIG | *.fig|");
  EXPECT_EQ(ouvrir.Extension, "rou");
  EXPECT_EQ(dialogues.Fichiers[1].Titre, "Ouvrir Fichier Musique");
  EXPECT_EQ(dialogues.Fichiers[1].Extension, "wav");
  EXPECT_EQ(dialogues.Fichiers[2].Titre, "Enregistrer Fichier Routine");
  EXPECT_EQ(dialogues.Fichiers[2].Filtre, "fichiers routine ROU | *.rou|fichiers routine FIG | *.fig|");
}

TEST_F(FenCadresTest, ASaveThatFailsSaysSoKeepsTheNameAndOffersAnother) {
  TFenCadre2 cadre;
  const std::string chemin = "/dossier/qui/n/existe/pas.rou";
  dialogues.Textes = {chemin};
  cadre.pFenDesActive->Trt_Menu(249);
  EXPECT_STREQ(FichierRoutine, chemin.c_str());
  EXPECT_EQ(cadre.GetTitre(), "Dessin Trajectoires : " + chemin);
  cadre.pFenDesActive->Trt_Menu(250);
  ASSERT_EQ(dialogues.Boites.size(), 2u);
  for (const auto& b : dialogues.Boites) {
    EXPECT_EQ(b.Texte, "Problème d'enregistrement : vérifiez \n que le fichier n'est pas en 'lecture seule'!!! ");
    EXPECT_EQ(b.Titre, " Enregistrer routine");
  }
  // The failed save of a named routine goes on to the save dialog.
  EXPECT_EQ(dialogues.Fichiers.size(), 2u);
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
