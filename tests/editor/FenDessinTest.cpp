// The mapping of the wind window onto a sheet's pixels, and the status-line report.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "editor/FenDessin.h"
#include "support/DocumentTest.h"

namespace {

class FenDessinTest : public DocumentTest {
protected:
  TFenDessin fen{nullptr, nullptr, 1};
  TDCEnregistreur dc;

  void Taille(int w, int h) {
    fen.SetTailleClient(w, h);
    fen.SetEchelle(dc);
  }
};

TEST_F(FenDessinTest, SetEchelleShows220By110UnitsFromTheTopLeftCorner) {
  TFenDessin::EchIE = 3.0f;
  Taille(880, 440);
  EXPECT_EQ(fen.EchelleX, 4.0f);
  EXPECT_EQ(fen.EchelleY, -4.0f);
  EXPECT_EQ(fen.Origine, TPoint(-112, 102));
  EXPECT_EQ(TFenDessin::EchIE, 1.0f);
  EXPECT_EQ(fen.LPtoDP(TPointf(0, 0)), TPoint(448, 408));
  EXPECT_EQ(fen.LPtoDP(TPointf(-100, 100)), TPoint(48, 8));

  ASSERT_EQ(dc.Appels.size(), 4u);
  EXPECT_EQ(dc.Appels[0].Nom, "SetMapMode");
  EXPECT_EQ(dc.Appels[0].Valeurs[0], static_cast<int>(TMapMode::Anisotrope));
  EXPECT_EQ(dc.Appels[1].Valeurs, (std::vector<int>{220, -110}));
  EXPECT_EQ(dc.Appels[2].Valeurs, (std::vector<int>{880, 440}));
  EXPECT_EQ(dc.Appels[3].Nom, "SetWindowOrg");
  EXPECT_EQ(dc.Appels[3].Valeurs, (std::vector<int>{-112, 102}));
}

TEST_F(FenDessinTest, ConversionsBothWaysOnAWideSheet) {
  Taille(1100, 550);
  EXPECT_EQ(fen.DPtoLP(TPoint(0, 0)), TPointf(-112, 102));
  EXPECT_EQ(fen.LPtoDP(TPointf(-100, 0)), TPoint(60, 510));
  // Whole logical units only, truncated towards zero.
  EXPECT_EQ(fen.DPtoLP(TPoint(563, 512)), TPointf(0, -0.0f));
  EXPECT_EQ(fen.DPtoLP(TPoint(567, 500)), TPointf(1, 2));
}

TEST_F(FenDessinTest, ZeroCoversTwiceAsManyPixelsAsOtherUnits) {
  Taille(880, 440);
  EXPECT_EQ(fen.DPtoLP(TPoint(445, 0)).x, 0.0f);  // -0.75
  EXPECT_EQ(fen.DPtoLP(TPoint(451, 0)).x, 0.0f);  // 0.75
  EXPECT_EQ(fen.DPtoLP(TPoint(444, 0)).x, -1.0f);
  EXPECT_EQ(fen.DPtoLP(TPoint(452, 0)).x, 1.0f);
}

TEST_F(FenDessinTest, WindowWithoutSizeMapsEverythingToTheOrigin) {
  Taille(0, 0);
  EXPECT_EQ(fen.DPtoLP(TPoint(100, 50)), TPointf(0, 0));
  Taille(200, 0);
  EXPECT_EQ(fen.DPtoLP(TPoint(100, 50)), TPointf(0, 0));
  EXPECT_EQ(fen.LPtoDP(TPointf(5, 5)), TPoint(106, 0));  // (5 + 112) * 200 / 220 = 106.4
}

TEST_F(FenDessinTest, MessageErreurBeepsOnceAndCutsAt160Characters) {
  char court[] = "Erreur possible";
  fen.MessageErreur(court);
  ASSERT_EQ(dialogues.Statuts.size(), 1u);
  EXPECT_EQ(dialogues.Statuts[0], "!!!! Erreur possible");
  EXPECT_EQ(dialogues.Bips, 1);

  std::string long_(200, 'a');
  long_[159] = 'z';
  std::vector<char> tampon(long_.begin(), long_.end());
  tampon.push_back('\0');
  fen.MessageErreur(tampon.data());
  EXPECT_EQ(std::strlen(tampon.data()), 160u);  // cut in the caller's buffer
  EXPECT_EQ(dialogues.Statuts[1], "!!!! " + std::string(159, 'a') + "z");
  EXPECT_EQ(dialogues.Bips, 2);

  fen.MessageErreur(long_);
  EXPECT_EQ(dialogues.Statuts[2], dialogues.Statuts[1]);
}

}  // namespace
