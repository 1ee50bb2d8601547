#pragma once
// The player: the client of the frame TFenCadre. It makes and destroys the scene with its
// music, plays it at each frame its view draws, says when a frame is wanted, and carries the
// transport, speed, camera, sun, team and start-instant commands, which write the scene's
// fields for the next Go.
#include <string>

#include "demo/player/FenCadre.h"
#include "scene/OptionsScene.h"

class TD3DDemo;

class TFenApp {
public:
  // Becomes pFenAppDemo, the player the editor reaches, and forgets the music's path.
  explicit TFenApp(TFenCadre* cadre);
  ~TFenApp();
  TFenApp(const TFenApp&) = delete;
  TFenApp& operator=(const TFenApp&) = delete;

  // Stops and closes the music, then a new paused scene of nbCV kites lasting tFin with its
  // music (or the present one paused, when there is one), and shows its state in the bars.
  void InitDemo(int nbCV, float tFin);
  // Stops and closes the music and destroys the scene.
  void FermeDemo();
  // The first paint builds a scene of one kite before any routine exists. True when there is
  // a scene for the view to draw.
  bool Paint();
  // Every command of the menu and of the control bar.
  void Trt_Menu(unsigned id);
  // The idle step: one Go and the time shown, while a usable scene may be drawn. True when
  // it played.
  bool IdleAction();
  // Whether an idle step now would show something new: the scene is moving, or something it
  // shows changed since the last step. The view draws only then.
  bool ImageAttendue() const;
  // Something the picture shows has changed (a command, a resize, a new scene): the next idle
  // step is wanted, and the view is told.
  void Redessine();

  // Back to their start values, with the document's.
  static void ReinitialiseStatiques();

  // What the picture shows beyond the kites, given to each new scene; the trails' length is
  // kept while they are off, so that switching them on again brings it back.
  void SetOptions(const TOptionsScene& options, double dureeTraines);
  const TOptionsScene& GetOptions() const { return Options; }
  double GetDureeTraines() const { return DureeTraines; }

  TFenCadre* pFenCadre;
  int tDebut = 0;  // 1/100 s; survives the scenes, and each new one is given it

  static bool PremierPaint;
  static int DerniereCommande;  // last of 100, 101, 103 to 106

private:
  void Texte(TZoneLecteur zone, const std::string& texte);
  void AfficheEtat(const TD3DDemo& scene);
  void Transport(TD3DDemo& scene, unsigned id);
  void Vitesse(TD3DDemo& scene, unsigned id);
  void Camera(TD3DDemo& scene, unsigned id);
  void ChoisitTeam(int team);
  void SaisitDebut();
  void Affichage(unsigned id);
  void SaisitDureeTraines();

  TOptionsScene Options{.Securite = true};
  double DureeTraines = TRAINES_DEFAUT;

  bool aRedessiner = true;
};
