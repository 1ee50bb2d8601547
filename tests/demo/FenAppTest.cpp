// The player: its first scene, the transport, speed and step, camera and sun held at their
// limits, the team and start-instant choices, the idle step, and the frame's resize.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "demo/D3DDemo.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"
#include "demo/player/FenCadre.h"
#include "platform/Horloge.h"
#include "platform/Rendu.h"
#include "support/Fichiers.h"
#include "support/Trace.h"

namespace {

// Builds scenes that the test can make fail at connection or at the device.
class TRenduTest : public TRenduAbsent {
public:
  long Connecte() override { return EchecConnexion ? 7 : 0; }
  long CreeDispositif(int, int) override { return EchecDispositif ? 8 : 0; }
  bool EchecConnexion = false;
  bool EchecDispositif = false;
};

class TVueEnregistree : public TVueLecteur {
public:
  void TexteChange(TZoneLecteur zone, const std::string& texte) override { Textes.push_back({zone, texte}); }
  void EquipeCochee(int team) override { Equipes.push_back(team); }
  std::vector<std::pair<TZoneLecteur, std::string>> Textes;
  std::vector<int> Equipes;
};

class FenAppTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    SetHorloge(&horloge);
    SetRendu(&rendu);
    setenv("XDG_STATE_HOME", (dossier / "etat").string().c_str(), 1);
    for (int team = 1; team <= NB_TEAMS; ++team) Ecrit("CV" + std::to_string(team) + "_1.x", "modèle");
    cadre = std::make_unique<TFenCadre>();
    cadre->SetVue(&vue);
  }
  void TearDown() override {
    cadre.reset();
    SetRendu(nullptr);
    SetHorloge(nullptr);
    unsetenv("XDG_STATE_HOME");
    FichiersTest::TearDown();
  }

  TFenApp& App() { return cadre->Client(); }
  TD3DDemo& Scene() { return *Globals.pD3DDemo; }
  std::string Texte(TZoneLecteur zone) { return cadre->GetTexte(zone); }
  void Commande(unsigned id, int fois = 1) {
    for (int i = 0; i < fois; ++i) App().Trt_Menu(id);
  }
  // The player on screen: its first scene, of one kite and no keys.
  void Affiche() { ASSERT_TRUE(App().Paint()); }
  // Advances the clock by ms and lets the idle step play.
  bool Attend(int ms) {
    horloge.Ms += static_cast<std::uint32_t>(ms);
    return App().IdleAction();
  }
  // One kite flying from (0, 0) to (0, 100), arriving at 1000.
  void Routine() {
    Ajoute<TPt>(f.fen, 0, 0, 0);
    Ajoute<TSegment>(f.fen, 0, 0, 100)->Set(0, CONTRAINTE_TEMPS, 1000, 0.1f);
  }

  THorlogeTest horloge;
  TRenduTest rendu;
  TVueEnregistree vue;
  TFeuilleTest f;
  std::unique_ptr<TFenCadre> cadre;
};

TEST_F(FenAppTest, FirstPaintShowsAPausedOneKiteSceneAtForwardSpeedOneStepEighty) {
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
  Affiche();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Scene().nbCV, 1);
  EXPECT_EQ(Scene().tFin, 1000.0f);
  EXPECT_EQ(Scene().Mode, MODE_PAUSE);
  EXPECT_EQ(Globals.blActif, 1);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "Lecture avant");
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 1");
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 80");
  EXPECT_EQ(Texte(TZoneLecteur::Debut), "0");
  EXPECT_EQ(cadre->GetEquipeCochee(), 1);
  // The view heard of each text as it was set.
  const std::vector<std::pair<TZoneLecteur, std::string>> attendus = {
      {TZoneLecteur::Message, "Lecture avant"}, {TZoneLecteur::Pas, "Pas = 80"}, {TZoneLecteur::V, "V = 1"}};
  EXPECT_EQ(vue.Textes, attendus);

  TD3DDemo* premiere = Globals.pD3DDemo;
  Scene().Mode = MODE_AVANT;
  EXPECT_TRUE(App().Paint());  // later paints keep the scene as it is
  EXPECT_EQ(Globals.pD3DDemo, premiere);
  EXPECT_EQ(Scene().Mode, MODE_AVANT);

  // A new document brings back a player that has never painted.
  App().DerniereCommande = CM_PAS_AVANT;
  ReinitialiseDocument();
  EXPECT_TRUE(TFenApp::PremierPaint);
  EXPECT_EQ(TFenApp::DerniereCommande, static_cast<int>(CM_PAUSE));
  EXPECT_EQ(pFenAppDemo, nullptr);
}

TEST_F(FenAppTest, ThePlayerIsReachableFromTheEditorAndForgetsTheMusicPath) {
  EXPECT_EQ(pFenAppDemo, &App());
  std::strcpy(_FichierMusique, "musique.wav");
  {
    TFenCadre autre;
    EXPECT_EQ(pFenAppDemo, &autre.Client());
    EXPECT_EQ(autre.Client().pFenCadre, &autre);
    EXPECT_STREQ(_FichierMusique, "");
  }
  EXPECT_EQ(pFenAppDemo, nullptr);  // no dangling player
}

TEST_F(FenAppTest, TransportCommandsSetTheModeTheMessageAndTheLastCommand) {
  Affiche();
  struct Cas {
    unsigned Id;
    int Mode;
    const char* Message;
  };
  const Cas cas[] = {
      {CM_LECTURE, MODE_AVANT, "Lecture avant"},       {CM_PAUSE, MODE_PAUSE, "Pause Lecture"},
      {CM_ARRIERE, MODE_ARRIERE, "Lecture arrière"},   {CM_DEBUT, MODE_DEBUT, "Retour au début"},
      {CM_PAS_AVANT, MODE_PAS_AVANT, "Pas à Pas Avant"}, {CM_PAS_ARRIERE, MODE_PAS_ARRIERE, "Pas à Pas Arrière"},
  };
  for (const Cas& c : cas) {
    SCOPED_TRACE(c.Id);
    Commande(c.Id);
    EXPECT_EQ(Scene().Mode, c.Mode);
    EXPECT_EQ(Texte(TZoneLecteur::Message), c.Message);
    EXPECT_EQ(TFenApp::DerniereCommande, static_cast<int>(c.Id));
  }
  EXPECT_EQ(dialogues.Bips, 0);

  // "&Début" restarts the clock at the next Go.
  Attend(10);
  EXPECT_FALSE(TD3DDemo::_Debut);
  Commande(CM_DEBUT);
  EXPECT_TRUE(TD3DDemo::_Debut);

  // "&Lecture" shows the speed and step the scene has now.
  Scene().Periode = 20;
  Scene().Pas = 320;
  Commande(CM_LECTURE);
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 0.5");
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 320");

  // Ids the player does not have do nothing.
  Commande(102);
  Commande(119);
  EXPECT_EQ(Scene().Mode, MODE_AVANT);
  EXPECT_EQ(dialogues.Bips, 0);
}

TEST_F(FenAppTest, SpeedStepsFineBelowTwentyCoarseAboveHeldBetweenTwoAndForty) {
  Affiche();
  Scene().Periode = 20;
  Commande(CM_PLUS_RAPIDE);
  EXPECT_EQ(Scene().Periode, 14);
  Scene().Periode = 18;
  Commande(CM_PLUS_RAPIDE);
  EXPECT_EQ(Scene().Periode, 16);

  Commande(CM_VITESSE_NORMALE);
  EXPECT_EQ(Scene().Periode, 10);
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 1 (normal)");
  std::vector<int> montee;
  for (int i = 0; i < 9; ++i) {
    Commande(CM_PLUS_LENT);
    montee.push_back(Scene().Periode);
  }
  EXPECT_EQ(montee, (std::vector<int>{12, 14, 16, 18, 20, 26, 32, 38, 40}));
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 0.25");
  int bips = dialogues.Bips;
  Commande(CM_PLUS_LENT);
  EXPECT_EQ(Scene().Periode, 40);
  EXPECT_EQ(dialogues.Bips, bips + 1);

  std::vector<int> descente;
  for (int i = 0; i < 11; ++i) {
    Commande(CM_PLUS_RAPIDE);
    descente.push_back(Scene().Periode);
  }
  EXPECT_EQ(descente, (std::vector<int>{34, 28, 22, 16, 14, 12, 10, 8, 6, 4, 2}));
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 5");
  bips = dialogues.Bips;
  Commande(CM_PLUS_RAPIDE);
  EXPECT_EQ(Scene().Periode, 2);
  EXPECT_EQ(dialogues.Bips, bips + 1);
  EXPECT_EQ(Scene().Pas, 80);  // the step is not touched outside step mode
}

TEST_F(FenAppTest, AfterAStepCommandSpeedCommandsSizeTheStepEvenLongAfter) {
  Routine();
  Affiche();
  TFenDessin::Demo();
  Commande(CM_PAS_AVANT);
  for (int i = 0; i < 5; ++i) Attend(1000);
  EXPECT_EQ(Scene().Mode, MODE_APRES_PAS_AVANT);  // the step is long over
  EXPECT_EQ(Scene().tCourant, 80u);

  std::vector<int> pas;
  for (int i = 0; i < 4; ++i) {
    Commande(CM_PLUS_RAPIDE);
    Attend(500);
    pas.push_back(Scene().Pas);
  }
  EXPECT_EQ(pas, (std::vector<int>{160, 320, 640, 1280}));
  EXPECT_EQ(Scene().Periode, 10);
  EXPECT_EQ(dialogues.Bips, 0);
  Commande(CM_PLUS_RAPIDE);
  EXPECT_EQ(Scene().Pas, 1280);
  EXPECT_EQ(dialogues.Bips, 1);

  Commande(CM_PAS_ARRIERE);
  Commande(CM_VITESSE_NORMALE);
  EXPECT_EQ(Scene().Pas, 80);
  pas.clear();
  for (int i = 0; i < 4; ++i) {
    Commande(CM_PLUS_LENT);
    pas.push_back(Scene().Pas);
  }
  EXPECT_EQ(pas, (std::vector<int>{40, 20, 10, 5}));
  Commande(CM_PLUS_LENT);
  EXPECT_EQ(Scene().Pas, 5);
  EXPECT_EQ(dialogues.Bips, 2);
  EXPECT_EQ(Texte(TZoneLecteur::Pas), "Pas = 5");
  EXPECT_EQ(Texte(TZoneLecteur::V), "V = 1");

  // Any other transport command gives the speed commands back to the speed.
  Commande(CM_PAUSE);
  Commande(CM_PLUS_RAPIDE);
  EXPECT_EQ(Scene().Periode, 8);
  EXPECT_EQ(Scene().Pas, 5);
}

TEST_F(FenAppTest, ZoomHeightAndSunAreHeldAtTheirLimitsWithABeep) {
  Affiche();
  TD3DDemo& s = Scene();
  struct Cas {
    unsigned Id;
    float* Champ;
    float Avant;
    float Apres;
    int Bips;
  };
  const Cas cas[] = {
      {CM_ZOOM_PLUS, &s.DistanceCamera, 215.0f, 195.0f, 0},
      {CM_ZOOM_PLUS, &s.DistanceCamera, 20.0f, 20.0f, 1},
      {CM_ZOOM_PLUS, &s.DistanceCamera, 35.0f, 20.0f, 1},
      {CM_ZOOM_MOINS, &s.DistanceCamera, 280.0f, 300.0f, 0},
      {CM_ZOOM_MOINS, &s.DistanceCamera, 300.0f, 300.0f, 1},
      {CM_DEPLACEMENT_HAUT, &s.CameraY, 54.0f, 59.0f, 0},
      {CM_DEPLACEMENT_HAUT, &s.CameraY, 100.0f, 100.0f, 1},
      {CM_DEPLACEMENT_BAS, &s.CameraY, 5.0f, 0.0f, 0},
      {CM_DEPLACEMENT_BAS, &s.CameraY, 0.0f, 0.0f, 1},
      {CM_SOLEIL_GAUCHE, &s.SoleilX, -0.7f, -0.6f, 0},
      {CM_SOLEIL_GAUCHE, &s.SoleilX, 1.0f, 1.0f, 1},
      {CM_SOLEIL_DROITE, &s.SoleilX, -1.0f, -1.0f, 1},
      {CM_SOLEIL_DROITE, &s.SoleilX, 0.5f, 0.4f, 0},
  };
  for (const Cas& c : cas) {
    SCOPED_TRACE(std::to_string(c.Id) + " from " + std::to_string(c.Avant));
    *c.Champ = c.Avant;
    const int bips = dialogues.Bips;
    Commande(c.Id);
    EXPECT_FLOAT_EQ(*c.Champ, c.Apres);
    EXPECT_EQ(dialogues.Bips - bips, c.Bips);
  }
}

TEST_F(FenAppTest, CameraOrbitsTenDegreesAClickAndDefaultsLeaveSpeedAndStep) {
  Affiche();
  Commande(CM_ROTATION_GAUCHE, 3);
  EXPECT_NEAR(Scene().AngleCamera, M_PI / 6, 1e-6);
  Attend(10);
  EXPECT_NEAR(Scene().CameraX, -107.5f, 1e-3);
  EXPECT_NEAR(Scene().CameraZ, -186.195f, 1e-3);
  Commande(CM_ROTATION_DROITE);
  EXPECT_NEAR(Scene().AngleCamera, M_PI / 9, 1e-6);

  Commande(CM_ZOOM_MOINS);
  Commande(CM_DEPLACEMENT_BAS);
  Commande(CM_SOLEIL_DROITE);
  Commande(CM_PLUS_LENT);
  Commande(CM_PAS_AVANT);
  Commande(CM_PLUS_RAPIDE);
  Attend(10);
  Commande(CM_REGLAGES_DEFAUT);
  const TD3DDemo& s = Scene();
  EXPECT_EQ(s.SoleilX, -0.7f);
  EXPECT_EQ(s.DirX, 0.0f);
  EXPECT_EQ(s.DirZ, 1.0f);
  EXPECT_EQ(s.CameraX, 0.0f);
  EXPECT_EQ(s.CameraY, 54.0f);
  EXPECT_EQ(s.CameraZ, -215.0f);
  EXPECT_EQ(s.AngleCamera, 0.0f);
  EXPECT_EQ(s.DistanceCamera, 215.0f);
  EXPECT_EQ(s.Periode, 12);
  EXPECT_EQ(s.Pas, 160);
}

TEST_F(FenAppTest, TeamChosenWhilePlayingRebuildsTheScenePausedAtTheStartInstant) {
  Routine();
  Affiche();
  dialogues.Textes = {"50"};
  Commande(CM_TEMPS_DEBUT);
  TFenDessin::Demo();
  Commande(CM_LECTURE);
  Attend(0);
  Attend(3000);
  EXPECT_EQ(Scene().tCourant, 350u);
  EXPECT_EQ(Scene().Team, 1);

  Commande(CM_TEAM3);
  EXPECT_EQ(Team, 3);
  EXPECT_EQ(cadre->GetEquipeCochee(), 3);
  EXPECT_EQ(vue.Equipes, std::vector<int>{3});
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Scene().Team, 3);
  EXPECT_EQ(Scene().tFin, 999.0f);
  EXPECT_EQ(Scene().Trajectoires[0].Positions.GetCles().size(), 2u);  // the keys laid again
  EXPECT_EQ(Scene().Mode, MODE_PAUSE);
  EXPECT_EQ(Scene().tDebut, 50);
  Attend(10);
  EXPECT_EQ(Scene().tCourant, 50u);
  Attend(2000);
  EXPECT_EQ(Scene().tCourant, 50u);
  EXPECT_EQ(Texte(TZoneLecteur::T), "T = 50");
}

TEST_F(FenAppTest, TeamWithNoRoutineIsKeptForTheNextDemonstration) {
  Affiche();
  Commande(CM_TEAM5);
  EXPECT_EQ(Team, 5);
  EXPECT_EQ(cadre->GetEquipeCochee(), 5);
  EXPECT_EQ(dialogues.Statuts.back(), "!!!! Démo impossible : liste  vide");
  EXPECT_EQ(Scene().Team, 1);  // the first scene stays
  Routine();
  TFenDessin::Demo();
  EXPECT_EQ(Scene().Team, 5);
}

TEST_F(FenAppTest, StartInstantIsReadAsAnIntegerOnOKAndKeptOnCancel) {
  Affiche();
  dialogues.Textes = {"  120abc", std::nullopt, "abc", "300"};
  Commande(CM_TEMPS_DEBUT);
  ASSERT_EQ(dialogues.Saisies.size(), 1u);
  EXPECT_EQ(dialogues.Saisies[0].Titre, "instant du début");
  EXPECT_EQ(dialogues.Saisies[0].Invite, "Saisissez un nombre :");
  EXPECT_EQ(dialogues.Saisies[0].Valeur, "0");
  EXPECT_EQ(dialogues.Bips, 1);
  EXPECT_EQ(App().tDebut, 120);
  EXPECT_EQ(Scene().tDebut, 120);
  EXPECT_EQ(Texte(TZoneLecteur::Debut), "120");

  Commande(CM_TEMPS_DEBUT);  // Cancel
  EXPECT_EQ(dialogues.Saisies[1].Valeur, "120");
  EXPECT_EQ(dialogues.Bips, 1);
  EXPECT_EQ(App().tDebut, 120);

  Commande(CM_TEMPS_DEBUT);  // OK, but no number: the value stays
  EXPECT_EQ(dialogues.Bips, 2);
  EXPECT_EQ(App().tDebut, 120);
  EXPECT_EQ(Scene().tDebut, 120);

  // Playback does not jump, except in "&Début", which follows the start instant at once.
  Commande(CM_LECTURE);
  Attend(0);
  Attend(500);
  const unsigned t = Scene().tCourant;
  Commande(CM_TEMPS_DEBUT);
  Attend(0);
  EXPECT_EQ(Scene().tCourant, t);
  Commande(CM_DEBUT);
  Attend(0);
  EXPECT_EQ(Scene().tCourant, 300u);
  EXPECT_EQ(Texte(TZoneLecteur::Debut), "300");
}

TEST_F(FenAppTest, WithoutASceneCommandsBeepAndChangeNothingButTeamAndStartInstant) {
  rendu.EchecConnexion = true;
  EXPECT_FALSE(App().Paint());
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Texte(TZoneLecteur::Message), "");
  for (unsigned id : {CM_LECTURE, CM_PAS_AVANT, CM_PLUS_RAPIDE, CM_ZOOM_PLUS, CM_REGLAGES_DEFAUT}) Commande(id);
  EXPECT_EQ(dialogues.Bips, 5);
  EXPECT_EQ(TFenApp::DerniereCommande, static_cast<int>(CM_PAUSE));
  EXPECT_TRUE(vue.Textes.empty());
  EXPECT_FALSE(App().IdleAction());

  dialogues.Textes = {"40"};
  Commande(CM_TEMPS_DEBUT);
  EXPECT_EQ(App().tDebut, 40);
  EXPECT_EQ(Texte(TZoneLecteur::Debut), "40");
  Commande(CM_TEAM2);
  EXPECT_EQ(Team, 2);
  EXPECT_EQ(cadre->GetEquipeCochee(), 2);

  // Once a scene can be made again, the next demonstration takes both.
  rendu.EchecConnexion = false;
  Routine();
  TFenDessin::Demo();
  ASSERT_NE(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Scene().Team, 2);
  EXPECT_EQ(Scene().tDebut, 40);
}

TEST_F(FenAppTest, IdleStepPlaysAndShowsTheTimeOnlyWhileTheSceneMayBeDrawn) {
  EXPECT_FALSE(App().IdleAction());  // nothing before the first paint
  Affiche();
  Commande(CM_LECTURE);
  EXPECT_TRUE(Attend(0));
  EXPECT_TRUE(Attend(500));
  EXPECT_EQ(Texte(TZoneLecteur::T), "T = 50");
  Globals.blActif = 0;
  EXPECT_FALSE(Attend(500));
  EXPECT_EQ(Texte(TZoneLecteur::T), "T = 50");
  EXPECT_EQ(Scene().tCourant, 50u);
}

TEST_F(FenAppTest, FrameKeepsItsClientTwiceAsWideAsHigh) {
  EXPECT_EQ(cadre->EvSize(TTypeTaille::Normale, 290, 400, 200), 290);
  EXPECT_EQ(cadre->EvSize(TTypeTaille::Normale, 290, 600, 200), 390);  // wider makes it taller
  EXPECT_EQ(cadre->EvSize(TTypeTaille::Normale, 290, 401, 150), 340);  // half a pixel dropped
  EXPECT_EQ(Globals.blActif, 0);  // no scene yet: nothing to wake
}

TEST_F(FenAppTest, MinimisingStopsDrawingAndRestoringRemakesTheDevice) {
  Affiche();
  TD3DDemo* scene = Globals.pD3DDemo;
  cadre->EvSize(TTypeTaille::Minimisee, 290, 0, 0);
  EXPECT_EQ(Globals.blActif, 0);
  EXPECT_EQ(Globals.pD3DDemo, scene);
  EXPECT_FALSE(App().IdleAction());
  cadre->EvSize(TTypeTaille::Normale, 290, 400, 200);
  EXPECT_EQ(Globals.blActif, 1);
  EXPECT_TRUE(App().IdleAction());
  cadre->EvSize(TTypeTaille::MaxCachee, 290, 400, 200);
  EXPECT_EQ(Globals.blActif, 0);

  // A device that cannot be remade takes the scene with it.
  rendu.EchecDispositif = true;
  cadre->EvSize(TTypeTaille::Maximisee, 290, 800, 500);
  EXPECT_EQ(Globals.pD3DDemo, nullptr);
  EXPECT_EQ(Globals.blDemoOK, 0);
  EXPECT_EQ(Globals.blActif, 1);
  EXPECT_FALSE(App().IdleAction());
  Commande(CM_LECTURE);
  EXPECT_EQ(dialogues.Bips, 1);
}

}  // namespace
