// The global tables of the document and the one call that brings them back to the start.
#include <gtest/gtest.h>

#include <cstring>

#include "support/DocumentTest.h"
#include "support/Trace.h"

namespace {

class TablesTest : public DocumentTest {};

TEST_F(TablesTest, NewEditorNumbersAndColoursTheSixKites) {
  const TColor attendues[] = {TColor::Black, TColor::LtRed, TColor::LtBlue, TColor::LtGreen,
                              TColor::LtMagenta, TColor::LtCyan};
  for (int i = 0; i < NB_CV_MAX; ++i) {
    EXPECT_EQ(TabLElt[i].Num, i);
    EXPECT_EQ(TabLElt[i].Couleur, attendues[i]);
    EXPECT_EQ(TabLElt[i].IndexPremier, 0);
  }
}

TEST_F(TablesTest, ReinitialiseBringsEveryGlobalBack) {
  TFeuilleTest f;
  Ajoute<TPt>(f.fen, 0, 0, 0);
  Ajoute<TSegment>(f.fen, 0, 10, 10);
  Ajoute<TPt>(f.fen, 5, 0, 0);
  Tampon->Append(new TPt(TPoint(1, 1), &f.fen, nullptr, Tampon));
  std::swap(AncTabLElt, TLE);  // as an undo leaves them
  TabLElt[2].IndexPremier = 9;
  nbCV = 6;
  Team = 3;
  ChargementFichierEnCours = true;
  MiseAJourVTotaleEnCours = true;
  NbFenDesOuvertes = 12;
  NumFActive = 4;
  std::strcpy(FichierRoutine, "a.rou");
  std::strcpy(_FichierMusique, "b.wav");
  PointDebutTampon = TPointf(3, 4);
  pFenDes0 = &f.fen;
  Globals.blActif = Globals.blDemoOK = 1;
  TFenDessin::Fonction = 305;
  TFenDessin::Etape = 2;
  TFenDessin::pEltCourant = TabLElt[0].Dernier() ? static_cast<TElt*>(TabLElt[0].Dernier()) : nullptr;
  TFenDessin::nCV = 5;
  TFenDessin::MAJPermanente = true;
  TFenDessin::MAJUp = false;

  TListeCV* const document = TabLElt;
  TListeCV* const ancienne = TLE;  // the undo table before the swap
  ReinitialiseDocument();

  EXPECT_EQ(TabLElt, document);
  EXPECT_EQ(AncTabLElt, ancienne);
  for (int i = 0; i < NB_CV_MAX; ++i) {
    EXPECT_TRUE(TabLElt[i].IsVide());
    EXPECT_EQ(TabLElt[i].IndexPremier, 0);
  }
  EXPECT_TRUE(Tampon->IsVide());
  EXPECT_EQ(TElt::NbElt, 0);
  EXPECT_EQ(nbCV, 1);
  EXPECT_EQ(Team, 1);
  EXPECT_FALSE(ChargementFichierEnCours);
  EXPECT_FALSE(MiseAJourVTotaleEnCours);
  EXPECT_EQ(NbFenDesOuvertes, 0);
  EXPECT_EQ(NumFActive, 0);
  EXPECT_STREQ(FichierRoutine, "");
  EXPECT_STREQ(_FichierMusique, "");
  EXPECT_EQ(PointDebutTampon, TPointf(0, 0));
  EXPECT_EQ(pFenDes0, nullptr);
  EXPECT_EQ(Globals.blActif, 0);
  EXPECT_EQ(Globals.blDemoOK, 0);
  EXPECT_EQ(TFenDessin::Fonction, FONCTION_MODIFICATION);
  EXPECT_EQ(TFenDessin::Etape, 0);
  EXPECT_EQ(TFenDessin::pEltCourant, nullptr);
  EXPECT_EQ(TFenDessin::nCV, 0);
  EXPECT_FALSE(TFenDessin::MAJPermanente);
  EXPECT_TRUE(TFenDessin::MAJUp);
}

}  // namespace
