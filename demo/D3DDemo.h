#pragma once
// The demonstration scene: the world of one demonstration (camera, sun, backdrop, one model
// per kite), each kite's flight generator and key tracks, and the playback clock. The
// player makes one at each start of a demonstration, and calls Go for each frame it draws.
#include <optional>
#include <string>

#include "demo/CV.h"
#include "model/Document.h"
#include "platform/Rendu.h"
#include "securite/Controle.h"
#include "scene/OptionsScene.h"

// Playback modes.
enum TModeLecture : int {
  MODE_AVANT = 1,
  MODE_ARRIERE = 2,
  MODE_PAUSE = 3,
  MODE_DEBUT = 4,         // go to tDebut and hold there
  MODE_PAS_ARRIERE = 5,   // one step backward, then 8
  MODE_PAS_AVANT = 6,     // one step forward, then 7
  MODE_APRES_PAS_AVANT = 7,
  MODE_APRES_PAS_ARRIERE = 8,
};

class TD3DDemo {
public:
  // Builds everything through `rendu`; *pOK is 0 on entry and 1 once all is built.
  TD3DDemo(TRendu& rendu, int* pOK, int nbCV, float tFin, int Team);
  TD3DDemo(const TD3DDemo&) = delete;
  TD3DDemo& operator=(const TD3DDemo&) = delete;
  ~TD3DDemo();

  // (Re)makes the device and the viewport at the client's present size.
  bool blCreateDeviceAndViewport();
  // Light, models, backdrop.
  bool blCreateScene();
  // Finds and loads the model of kite index i into *pCadre.
  bool ChargerFrameCV(int i, TIdCadre* pCadre, int Team);
  // One step of playback: the clock, the music's orders, the kites, sun and camera, a frame.
  void Go();
  // Whether the next Go would show another picture than the last one, with nothing but the
  // clock changed: playing away from the end it holds at, a step not yet taken, a restart.
  bool EnMouvement() const;
  // The clock counts from now: for a scene held still, which drew no frame meanwhile.
  static void RepartDeMaintenant();
  // Moves the clock to t, in hundredths, playing or paused, kept within the scene; the next Go
  // shows t, and the music, when it plays, is ordered again from there.
  void Positionne(float t);

  // What Go keeps from one call to the next, across scenes; back to their start values.
  static void ReinitialiseStatiques();

  // Sun and camera back where a new scene puts them: the player's "default settings".
  void ReglagesParDefaut() {
    SoleilX = -0.7f;
    CameraX = 0, CameraY = 54.0f, CameraZ = -215.0f;
    DirX = 0, DirZ = 1.0f;
    AngleCamera = 0;
    DistanceCamera = 215.0f;
  }

  // The safety checks' finding for this frame: the closest pair under the threshold, joined
  // by a red line from the next Go on, until told again; none hides it.
  void SegmentSecurite(const TVecteur3& a, const TVecteur3& b);
  void SansSegmentSecurite();

  float SoleilX, CameraX, CameraY, CameraZ, DirX, DirZ, AngleCamera, DistanceCamera;
  TOptionsScene Options;  // what the picture shows beyond the kites and the clouds
  int Periode = 10;  // ms of clock for 1/100 s of routine: 10 is real time
  int tDebut = 0;
  int Mode = MODE_AVANT;
  int Pas = 80;
  unsigned tCourant = 0;
  CV TabCV[NB_CV_MAX];
  TTrajectoire Trajectoires[NB_CV_MAX];  // each kite's key tracks, filled through TabCV
  int nbCV;
  float tFin;
  int Team;
  // The two kites closest to each other in the picture last drawn, if two fly then.
  std::optional<TPairePlusProche> PlusProche;

  // The next Go restarts the clock; a music file is open.
  static bool _Debut;
  static bool MusiqueEnCours;

private:
  void PlaceCamera();
  // Trails, pilots, lines, the window, the ground and the safety line, each sent to the
  // renderer only when it changed since the last frame.
  void PoseDecor();
  void PlaceSoleil();

  TRendu& Rendu;
  TIdCadre Monde = CADRE_AUCUN;
  TIdCadre Vue = CADRE_AUCUN;
  TIdCadre Soleil = CADRE_AUCUN;
  TIdCadre Modeles[NB_CV_MAX] = {CADRE_AUCUN, CADRE_AUCUN, CADRE_AUCUN, CADRE_AUCUN, CADRE_AUCUN, CADRE_AUCUN};
  std::optional<TOptionsScene> DecorPose;  // the options the fixed strokes were sent for
  float tDecor = -1;                       // the time the moving strokes were sent for
  bool Arriere = false;                    // the trails follow backward play
  bool ArrierePose = false;
  std::optional<std::pair<TVecteur3, TVecteur3>> Securite;
  bool SecuriteChangee = false;
  const char* FichierJournal();
  std::string Journal;  // where failed calls are logged

  static unsigned tPrecedent;
  static float tReference;
  static unsigned TickReference;
  static unsigned TickCourant;
  static int PeriodePrecedente;
  static int ModePrecedent;
};

// Where a flight built away from any scene goes (demo/VolHorsScene.h), null the rest of the
// time: the elements hand their flight to whatever CVDeLaScene gives.
extern CV* GenerateursHorsScene;

// The generator of kite `num` in the running scene, or null when there is none.
inline CV* CVDeLaScene(int num) {
  if (num < 0 || num >= NB_CV_MAX) return nullptr;
  if (GenerateursHorsScene) return &GenerateursHorsScene[num];
  if (!Globals.pD3DDemo) return nullptr;
  return &Globals.pD3DDemo->TabCV[num];
}
