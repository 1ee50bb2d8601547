// Frames per second of the player: Go with six kites of team 1 in flight, drawn offscreen by
// the OpenGL renderer and read back, at two picture sizes, with the 3D options off and with
// every one on (3 s trails, pilots and lines, ground, window, a safety line).
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "model/Document.h"
#include "platform/Horloge.h"
#include "gui/gl/RenduGL.h"
#include "gui/gl/SurfaceHorsEcran.h"

namespace {

// A clock that moves only when the benchmark says, so that every run flies the same frames.
class THorlogeBench : public THorloge {
public:
  std::uint32_t GetTickCount() override { return ms; }
  std::uint32_t ms = 0;
};

constexpr int NB_KITES = 6;
constexpr float DUREE = 800.0f;  // 1/100 s of keys per kite
constexpr float PAS_CLES = 25.0f;
constexpr std::uint32_t MS_PAR_IMAGE = 10;  // at Periode 10, one new hundredth, hence new poses, per frame

// Each kite on its own loop across the wind window, x -100..100 and y 0..100, turning as it goes.
void PoseCles(TD3DDemo& scene) {
  for (int k = 0; k < NB_KITES; ++k) {
    const float phase = static_cast<float>(k) * 1.047f;
    for (float t = 0; t <= DUREE; t += PAS_CLES) {
      const float a = t / DUREE * 6.2832f + phase;
      scene.Trajectoires[k].PosePosition(t, {95.0f * std::sin(a), 50.0f + 45.0f * std::sin(2 * a), 0});
      const float cap = 3.0f * a;
      scene.Trajectoires[k].PoseOrientation(t, {{0, 0, 1}, {std::cos(cap), std::sin(cap), 0}});
    }
  }
}

void BM_ImageDeLaScene(benchmark::State& state) {
  const QSize taille(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  TSurfaceHorsEcran surface(taille);
  TRenduGL rendu(surface);
  THorlogeBench horloge;
  SetRendu(&rendu);
  SetHorloge(&horloge);
  Team = 1;
  InitialiseNumCoul();  // the trails' colours
  FermeDemo();
  InitDemo(NB_KITES, DUREE);
  TD3DDemo* scene = Globals.pD3DDemo;
  if (scene) {
    PoseCles(*scene);
    if (state.range(2)) {
      scene->Options = {TRAINES_DEFAUT, true, true, true, TCamera::Public};
      scene->SegmentSecurite({-20, 40, 0}, {10, 45, 0});
    }
    scene->tDebut = 0;
    scene->Mode = MODE_AVANT;
    TD3DDemo::_Debut = true;
    scene->Go();  // shaders, models and backdrop reach the GPU before the timing starts
  }
  if (!scene || surface.Image().size() != taille) {
    state.SkipWithError("pas de scène ou pas d'image (voir le journal)");
  } else {
    for (auto _ : state) {
      horloge.ms += MS_PAR_IMAGE;
      // Forward play holds at the end: start the flight again so that the kites keep moving.
      if (static_cast<float>(scene->tCourant) >= DUREE - 2.0f) TD3DDemo::_Debut = true;
      // Go ends with Presente, which reads the picture back into a QImage: the read-back
      // waits for the GPU, so each timed frame is a finished one.
      scene->Go();
    }
    // A frame that failed would be cheap and silent: the picture must still be there.
    if (surface.Image().size() != taille) state.SkipWithError("Go n'a plus rien dessiné");
    state.counters["images/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  }
  FermeDemo();
  SetHorloge(nullptr);
  SetRendu(nullptr);
}
// Real time: Mesa's software rasteriser draws on threads of its own, which the CPU time of
// this thread would leave out.
BENCHMARK(BM_ImageDeLaScene)
    ->ArgNames({"largeur", "hauteur", "options"})
    ->Args({800, 400, 0})
    ->Args({800, 400, 1})
    ->Args({1600, 800, 0})
    ->Args({1600, 800, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
