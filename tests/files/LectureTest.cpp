// Reading routines: lines, fields, the document they build, and the bad lines that must
// neither crash nor change more than their own element.
#include <gtest/gtest.h>

#include <vector>

#include "model/elements/Axel.h"
#include "model/elements/Pose.h"
#include "model/elements/Segment.h"
#include "support/Fichiers.h"

namespace {

class LectureTest : public FichiersTest {};

TEST(DecoupeLignes, SplitsOnLineFeedsAndSkipsEmptyLines) {
  std::vector<std::string> lignes;
  std::vector<int> longues;
  const std::string longue(256, 'x');
  DecoupeLignes("a\r\n\n\r\nb\n" + longue + "\nc\rd\ne", [&](std::string_view l) { lignes.emplace_back(l); },
                [&](int n) { longues.push_back(n); });
  EXPECT_EQ(lignes, (std::vector<std::string>{"a", "b", "c\rd", "e"}));
  EXPECT_EQ(longues, (std::vector<int>{5}));
}

TEST(LecteurChamps, ReadsLikeScanfAndRefusesWhatDoesNotFit) {
  TLecteurChamps c("  SEGMENT\t+12 -3 99999999999 1e3 x");
  std::string mot;
  int n = 0;
  float f = 0;
  EXPECT_TRUE(c.Mot(mot));
  EXPECT_EQ(mot, "SEGMENT");
  EXPECT_TRUE(c.Entier(n));
  EXPECT_EQ(n, 12);
  EXPECT_TRUE(c.Reel(f));
  EXPECT_EQ(f, -3.0f);
  EXPECT_FALSE(c.Entier(n));  // too large for an int
  EXPECT_EQ(n, 12);
}

TEST_F(LectureTest, ShortRoutineBuildsTeamMusicKitesAndTheirLink) {
  Team = 4;
  ASSERT_TRUE(Ouvre(Donnee("resave/routine_courte.rou")));
  EXPECT_EQ(Team, 2);
  EXPECT_STREQ(_FichierMusique, "ouverture.wav");
  EXPECT_EQ(nbCV, 2);
  EXPECT_EQ(NbFenDesOuvertes, 1);
  ASSERT_EQ(TabLElt[0].nbNoeud(), 3);
  ASSERT_EQ(TabLElt[1].nbNoeud(), 2);
  auto* pere = static_cast<TElt*>(TabLElt[0].GetPt(1));
  auto* fils = static_cast<TElt*>(TabLElt[1].GetPt(1));
  EXPECT_EQ(fils->pPere, pere);
  EXPECT_EQ(pere->pFils[0], fils);
  EXPECT_EQ(pere->NumSynchro, 1);
  EXPECT_FLOAT_EQ(fils->GetV(), 0.07211f);
  auto* axel = dynamic_cast<TAxel*>(static_cast<TElt*>(TabLElt[0].GetPt(2)));
  ASSERT_NE(axel, nullptr);
  EXPECT_TRUE(axel->Gauche);
  EXPECT_FLOAT_EQ(axel->GetV(), 0.4f);  // carried in the text, dropped by the reader
  EXPECT_EQ(static_cast<TElt*>(TabLElt[1].Dernier())->Num, 4);
  EXPECT_EQ(fils->pFen, cadre->GetFeuille(0));
}

TEST_F(LectureTest, CarriageReturnsMakeNoDifference) {
  std::string texte = Donnee("resave/routine_courte.rou");
  ASSERT_FALSE(texte.empty());
  std::string crlf;
  for (char c : texte) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  crlf.pop_back();  // and the last line without its line feed
  crlf.pop_back();
  ASSERT_TRUE(Ouvre(crlf));
  EXPECT_STREQ(_FichierMusique, "ouverture.wav");
  EXPECT_EQ(TabLElt[1].nbNoeud(), 2);
  EXPECT_NE(static_cast<TElt*>(TabLElt[1].Dernier())->pPere, nullptr);
}

TEST_F(LectureTest, OpeningEmptiesTheDocumentFirst) {
  ASSERT_TRUE(Ouvre(Donnee("resave/routine_courte.rou")));
  ASSERT_TRUE(Ouvre("POINT\t0\t0\t2\t1\t0\t\t5  5\t\t0.4\t\t\n"));
  EXPECT_EQ(Team, 1);
  EXPECT_STREQ(_FichierMusique, "");
  EXPECT_EQ(nbCV, 1);
  EXPECT_EQ(TabLElt[0].nbNoeud(), 1);
  EXPECT_TRUE(TabLElt[1].IsVide());
  EXPECT_EQ(TElt::NbElt, 1);
}

TEST_F(LectureTest, SheetsAreAddedUpToOneMoreThanTheHighestUsed) {
  ASSERT_TRUE(Ouvre("POINT\t0\t0\t2\t3\t0\t\t5  5\t\t0.4\t\t\n"));
  EXPECT_EQ(NbFenDesOuvertes, 3);
  EXPECT_EQ(cadre->nbFeuilles, 4);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[0].Premier())->pFen->Num, 3);
}

TEST_F(LectureTest, CoordinatesAreTruncatedAndALandingStandsAtHeightTwo) {
  ASSERT_TRUE(Ouvre("POINT\t0\t0\t2\t1\t0\t\t12.7  -12.7\t\t0.4\t\t\n"
                    "POSE   \t0\t1\t3\t1\t300\t\t12  80\t\t0.4\t\t100\t\t3\t\t\n"));
  EXPECT_EQ(static_cast<TElt*>(TabLElt[0].Premier())->Getp2Param(), TPointf(12, -12));
  auto* pose = dynamic_cast<TPose*>(static_cast<TElt*>(TabLElt[0].Dernier()));
  ASSERT_NE(pose, nullptr);
  EXPECT_EQ(pose->Getp2Param(), TPointf(12, 2));
  EXPECT_EQ(pose->TypePose, POSE_POINTE_DROITE);
  EXPECT_EQ(pose->Contrainte, CONTRAINTE_VCONSTANTE);
}

TEST_F(LectureTest, BadLinesAreDroppedAndSaySo) {
  ASSERT_TRUE(Ouvre("# un commentaire\n"
                    "POINT\t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\n"
                    "SEGMENT\t0\t1\t3\t1\t500\t\t10\n"                                 // fields missing
                    "SEGMENT\t9\t1\t3\t1\t500\t\t10  10\t\t0.4\t\t\n"                   // no kite 9
                    "SEGMENT\t0\t1\t3\t250\t500\t\t10  10\t\t0.4\t\t\n"                 // no sheet 250
                    "SEGMENT\t0\t1\t3\t99999999999\t500\t\t10  10\t\t0.4\t\t\n"         // not an int
                    "SEGMENT\t0\t1\t3\t1\t500\t\t10  10\t\t0.4\t\t\t0\t99\n"            // no father there
                    "SEGMENT\t0\t1\t3\t1\t600\t\t20  10\t\t0.4\t\t\t7\n"                // half a tail
                    "FIGURE  \t0\t7\t5\t1\t0\t\t0  0\t\t0.4\t0\tabsente.fig\t552\t\t\n" // no such file
                    + std::string(300, 'A') + "\n"));
  EXPECT_EQ(TabLElt[0].nbNoeud(), 3);
  EXPECT_EQ(static_cast<TElt*>(TabLElt[0].Dernier())->pPere, nullptr);
  const std::vector<std::string> attendus = {
      "!!!! Ligne SEGMENT illisible : ignorée", "!!!! Ligne SEGMENT illisible : ignorée",
      "!!!! Ligne SEGMENT illisible : ignorée", "!!!! Ligne SEGMENT illisible : ignorée",
      "!!!!  Figure 7  : fichier 'absente.fig' inexistant", "!!!! Ligne 10 trop longue : ignorée"};
  EXPECT_EQ(dialogues.Statuts, attendus);
}

TEST_F(LectureTest, MissingFileEmptiesTheDocumentAndSaysSo) {
  ASSERT_TRUE(Ouvre(Donnee("resave/routine_courte.rou")));
  EXPECT_FALSE(LitRoutine(*cadre, "nulle-part.rou"));
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "Problème d'ouverture !!! ");
  EXPECT_EQ(dialogues.Boites[0].Titre, " Ouvrir routine");
  EXPECT_TRUE(TabLElt[0].IsVide());
  EXPECT_FALSE(ChargementFichierEnCours);
}

TEST_F(LectureTest, InsertionStartsWithASegmentAndPlacesSheetsAfterTheActiveOne) {
  cadre = std::make_unique<TFenCadre2>();
  cadre->SetupWindow();
  TFenDessin* fen = cadre->GetFeuille(0);
  NumFActive = 1;
  Team = 3;
  TListeCV* table = AncTabLElt;  // any table of six tracks
  fen->CreeElementInsere("TEAM   5 ", table);
  fen->CreeElementInsere("POINT\t1\t0\t2\t1\t40\t\t5  5\t\t0.3\t\t", table);
  fen->CreeElementInsere("SEGMENT\t1\t1\t2\t1\t90\t\t10  10\t\t0.3\t\t\t1\t0", table);
  EXPECT_EQ(Team, 3);
  EXPECT_EQ(nbCV, 1);
  EXPECT_EQ(NbFenDesOuvertes, 1);
  EXPECT_EQ(cadre->nbFeuilles, 3);
  ASSERT_EQ(table[1].nbNoeud(), 2);
  auto* debut = dynamic_cast<TSegment*>(static_cast<TElt*>(table[1].Premier()));
  ASSERT_NE(debut, nullptr);
  EXPECT_EQ(debut->Contrainte, CONTRAINTE_VCONSTANTE);
  EXPECT_FLOAT_EQ(debut->Gett2Param(), 40);
  EXPECT_FLOAT_EQ(debut->GetV(), 0.3f);
  EXPECT_EQ(debut->pFen->Num, 2);  // the sheet after the active one
  EXPECT_EQ(static_cast<TElt*>(table[1].Dernier())->pPere, nullptr);  // same kite: refused
}

}  // namespace
