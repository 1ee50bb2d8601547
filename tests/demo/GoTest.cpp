// The playback clock of the scene: modes, stops at both ends, steps, speed changes, the
// music's orders, the models placed from their tracks, and failures sent to the log.
#include <gtest/gtest.h>

#include "platform/Donnees.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "demo/D3DDemo.h"
#include "platform/ErreursRendu.h"
#include "platform/Horloge.h"
#include "platform/Son.h"
#include "support/Fichiers.h"

namespace {

class TSonEnregistreur : public TSon {
public:
  int Ouvrir(const std::string& f, const std::string&) override { return Note("open " + f); }
  int Jouer(const std::string&, int ms) override { return Note("play " + std::to_string(ms)); }
  int Arreter(const std::string&) override { return Note("stop"); }
  int Fermer(const std::string&) override { return Note("close"); }
  std::vector<std::string> Ordres;
  int Resultat = 0;

private:
  int Note(const std::string& o) {
    Ordres.push_back(o);
    return Resultat;
  }
};

// Records where frames are put, and fails the call named in `Echec` with `Code`.
class TRenduEnregistreur : public TRenduAbsent {
public:
  long Connecte() override { return Echoue("Connecte"); }
  long Efface() override { return Echoue("Efface"); }
  long ChargeFond(const std::string&) override { return Echoue("ChargeFond"); }
  long PlaceCadre(TIdCadre c, const TVecteur3& p) override {
    Places.push_back({c, p});
    return Echoue("PlaceCadre");
  }
  struct Place {
    TIdCadre Cadre;
    TVecteur3 P;
  };
  std::vector<Place> Places;
  std::string Echec;
  long Code = 0;

private:
  long Echoue(const std::string& appel) { return appel == Echec ? Code : 0; }
};

class GoTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    SetHorloge(&horloge);
    SetSon(&son);
    setenv("XDG_STATE_HOME", (dossier / "etat").string().c_str(), 1);
    Ecrit("CV1_1.x", "modèle");  // the first kite's model, which every scene loads
    SetDossierDonnees(dossier.string());  // the installation's models must not stand in
  }
  void TearDown() override {
    demo.reset();
    SetHorloge(nullptr);
    SetSon(nullptr);
    unsetenv("XDG_STATE_HOME");
    SetDossierDonnees("");
    FichiersTest::TearDown();
  }
  TD3DDemo& Scene(float tFin = 100, int kites = 1) {
    int ok = 0;
    demo = std::make_unique<TD3DDemo>(rendu, &ok, kites, tFin, 1);
    EXPECT_EQ(ok, 1);
    return *demo;
  }
  // Advances the clock by ms and plays one frame.
  unsigned Joue(int ms) {
    horloge.Ms += static_cast<std::uint32_t>(ms);
    demo->Go();
    return demo->tCourant;
  }
  std::string Journal() { return LitFichier((dossier / "etat" / "trajectoires" / "DXError.txt").string()).value_or(""); }

  THorlogeTest horloge;
  TSonEnregistreur son;
  TRenduEnregistreur rendu;
  std::unique_ptr<TD3DDemo> demo;
};

TEST_F(GoTest, ForwardPlayStopsOneHundredthBeforeTheEnd) {
  TD3DDemo& s = Scene(100);
  EXPECT_EQ(Joue(0), 0u);
  EXPECT_EQ(Joue(505), 50u);
  EXPECT_EQ(Joue(2000), 99u);
  EXPECT_EQ(s.Mode, MODE_AVANT);
  EXPECT_EQ(Joue(1000), 99u);
}

TEST_F(GoTest, BackwardPlayStopsAtTheStartAndNeverGoesBelowZero) {
  TD3DDemo& s = Scene(100);
  s.tDebut = 30;
  EXPECT_EQ(Joue(0), 30u);
  EXPECT_EQ(Joue(500), 80u);
  s.Mode = MODE_ARRIERE;
  EXPECT_EQ(Joue(200), 60u);
  EXPECT_EQ(Joue(2000), 30u);
  s.tDebut = 0;
  EXPECT_EQ(Joue(5000), 0u);
}

TEST_F(GoTest, StepsHoldAtBothEnds) {
  TD3DDemo& s = Scene(100);
  s.tDebut = 30;
  Joue(0);
  s.Mode = MODE_PAS_AVANT;
  EXPECT_EQ(Joue(10), 99u);  // 30 + 80 is past the end
  EXPECT_EQ(s.Mode, MODE_APRES_PAS_AVANT);
  EXPECT_EQ(Joue(1000), 99u);  // and holds
  s.Mode = MODE_PAS_ARRIERE;
  EXPECT_EQ(Joue(10), 30u);  // 99 - 80 lands before the start
  EXPECT_EQ(s.Mode, MODE_APRES_PAS_ARRIERE);
  s.Mode = MODE_DEBUT;
  EXPECT_EQ(Joue(10), 30u);
}

TEST_F(GoTest, StartAtOrPastTheEndGoesBackToZero) {
  TD3DDemo& s = Scene(100);
  s.tDebut = 100;
  Joue(0);
  EXPECT_EQ(s.tDebut, 0);
  EXPECT_EQ(s.tCourant, 0u);
}

TEST_F(GoTest, SpeedChangeTakesEffectAtOnceWithoutDrift) {
  TD3DDemo& s = Scene(10000);
  Joue(0);
  EXPECT_EQ(Joue(505), 50u);  // 50.5: the half is kept
  s.Periode = 20;
  EXPECT_EQ(Joue(100), 55u);  // 50.5 + 100 / 20
  EXPECT_EQ(Joue(9), 55u);
  EXPECT_EQ(Joue(1), 56u);    // 55.5 + 10 / 20
  s.Mode = MODE_PAUSE;
  EXPECT_EQ(Joue(1000), 56u);
  s.Mode = MODE_AVANT;
  EXPECT_EQ(Joue(40), 58u);  // the pause counted for nothing
}

TEST_F(GoTest, MusicIsOrderedOnlyWhenModeOrSpeedChange) {
  TD3DDemo& s = Scene(10000);
  TD3DDemo::MusiqueEnCours = true;
  Joue(0);
  Joue(1000);
  Joue(1000);
  s.Mode = MODE_PAUSE;
  Joue(100);
  Joue(100);
  s.Mode = MODE_AVANT;
  Joue(0);
  s.Periode = 20;
  Joue(100);
  s.Periode = 10;
  Joue(100);
  EXPECT_EQ(son.Ordres, (std::vector<std::string>{"play 0", "stop", "play 2000", "stop", "play 2150"}));

  son.Resultat = 263;
  s.Mode = MODE_ARRIERE;
  Joue(0);
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "play ou stop  raté :263 ");
  EXPECT_EQ(dialogues.Boites[0].Titre, "fonction go()");
  EXPECT_EQ(dialogues.Boites[0].Icone, TIcone::Avertissement);
}

TEST_F(GoTest, ModelsStandWhereTheirTracksSayAndTheCameraOrbits) {
  Ecrit("CV1_3.x", "modèle");
  TD3DDemo& s = Scene(1000, 3);
  // The second kite has no model: it is left out of the scene.
  ASSERT_EQ(dialogues.Boites.size(), 1u);
  EXPECT_EQ(dialogues.Boites[0].Texte, "fichier CV2.x inexistant");
  EXPECT_EQ(dialogues.Boites[0].Titre, "Ouvrir fichier CV.x");
  s.TabCV[0].Point(0, 0, 0, 0);
  s.TabCV[0].Segment(1, 100, 40, 20, 10);
  s.TabCV[1].Point(0, 0, 5, 5);
  s.TabCV[2].Point(0, 0, -10, 30);
  s.AngleCamera = 3.14159265f / 2;
  Joue(0);
  rendu.Places.clear();
  Joue(500);
  ASSERT_EQ(rendu.Places.size(), 3u);  // two kites, then the camera
  EXPECT_FLOAT_EQ(rendu.Places[0].P.x, 20);
  EXPECT_FLOAT_EQ(rendu.Places[0].P.y, 10);
  EXPECT_FLOAT_EQ(rendu.Places[1].P.x, -10);
  EXPECT_NEAR(rendu.Places[2].P.x, -215, 1e-3);
  EXPECT_FLOAT_EQ(rendu.Places[2].P.y, 54);
  EXPECT_NEAR(rendu.Places[2].P.z, 0, 1e-3);
}

TEST_F(GoTest, FailuresGoToTheLogAndNotToTheScreen) {
  rendu.Echec = "ChargeFond";
  rendu.Code = SCENEERR_FICHIERFOND;
  Scene(100);  // without a backdrop the scene still plays
  rendu.Echec = "Efface";
  rendu.Code = SCENEERR_PASDEVUE;
  Joue(0);
  Joue(10);
  EXPECT_EQ(Journal(), "(30) SCENEERR_FICHIERFOND\n(0) SCENEERR_PASDEVUE\n(0) SCENEERR_PASDEVUE\n");
  EXPECT_TRUE(dialogues.Boites.empty());

  rendu.Echec = "Connecte";
  rendu.Code = DISPERR_PASDECONTEXTE;
  int ok = 7;
  TD3DDemo rate(rendu, &ok, 1, 100, 1);
  EXPECT_EQ(ok, 0);
  EXPECT_NE(Journal().find("(0) DISPERR_PASDECONTEXTE\n"), std::string::npos);
}

}  // namespace
