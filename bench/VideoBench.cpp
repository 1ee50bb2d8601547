// Frames exported per second: six kites of team 1 in flight, each frame drawn offscreen as
// `video` draws it, converted and encoded in H.264 with three minutes of music under it in AAC,
// written to a file, at two picture sizes. Goal: a 3-minute routine at 1280 x 720, 30 frames a
// second (5400 frames) in under 3 minutes, i.e. at least 30 frames a second.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "gui/gl/RenduGL.h"
#include "gui/gl/SurfaceHorsEcran.h"
#include "gui/video/EncodeurFFmpeg.h"
#include "model/Document.h"
#include "video/ExportFilm.h"

namespace {

constexpr int NB_KITES = 6;
constexpr float DUREE = 18000.0f;  // three minutes, in hundredths
constexpr int IMAGES = 300;        // exported per run: ten seconds at 30 a second

// Each kite on its own figure of eight across the wind window, turning as it goes, one lap
// every 20 s.
void PoseCles(TD3DDemo& scene) {
  for (int k = 0; k < NB_KITES; ++k)
    for (float t = 0; t <= DUREE; t += 25.0f) {
      const float a = t / 2000.0f * 6.2832f + static_cast<float>(k) * 1.047f;
      scene.Trajectoires[k].PosePosition(t, {95.0f * std::sin(a), 50.0f + 45.0f * std::sin(2 * a), 0});
      scene.Trajectoires[k].PoseOrientation(t, {{0, 0, 1}, {std::cos(3 * a), std::sin(3 * a), 0}});
    }
}

void BM_ExportFilm(benchmark::State& state) {
  const int largeur = static_cast<int>(state.range(0)), hauteur = static_cast<int>(state.range(1));
  TSurfaceHorsEcran surface(QSize(largeur, hauteur));
  TRenduGL rendu(surface);
  SetRendu(&rendu);
  Team = 1;
  FermeDemo();
  InitDemo(NB_KITES, DUREE);
  TD3DDemo* scene = Globals.pD3DDemo;
  if (!scene) {
    state.SkipWithError("pas de scène (voir le journal)");
    SetRendu(nullptr);
    return;
  }
  PoseCles(*scene);
  // A music as long as the routine: a tone, whose samples cost what any music's cost.
  std::vector<float> musique(2 * static_cast<std::size_t>(DUREE) * FREQUENCE_FILM / 100);
  for (std::size_t i = 0; i < musique.size(); ++i) musique[i] = 0.2f * std::sin(static_cast<float>(i / 2) * 0.0576f);
  const std::string sortie = (std::filesystem::temp_directory_path() /
                              ("trajectoires-bench-" + std::to_string(getpid()) + ".mp4")).string();
  TDemandeFilm demande;
  demande.Sortie = sortie;
  demande.Format.Largeur = largeur;
  demande.Format.Hauteur = hauteur;
  demande.Format.Fps = 30;
  demande.Musique = &musique;
  QImage rgba;
  const TDessinFilm dessine = [&](int t, int& pas) -> const unsigned char* {
    scene->tDebut = t;
    scene->Mode = MODE_DEBUT;
    TD3DDemo::_Debut = true;
    scene->Go();
    rgba = surface.Image().convertToFormat(QImage::Format_RGBA8888);
    pas = static_cast<int>(rgba.bytesPerLine());
    return rgba.size() == QSize(largeur, hauteur) ? rgba.constBits() : nullptr;
  };
  int debut = 0;
  for (auto _ : state) {
    // Each run a new stretch of the flight, so that every frame is a new picture.
    demande.De = debut;
    demande.A = debut + IMAGES * 100 / 30;
    debut = (debut + 1000) % 16000;
    TEncodeurFFmpeg encodeur;
    std::string erreur;
    if (ExporteFilm(encodeur, demande, dessine, nullptr, erreur) != TIssueFilm::Fait) {
      state.SkipWithError(erreur.c_str());
      break;
    }
  }
  state.counters["images/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * IMAGES, benchmark::Counter::kIsRate);
  std::error_code e;
  std::filesystem::remove(sortie, e);
  FermeDemo();
  SetRendu(nullptr);
}
// Real time: Mesa and the encoders work on threads of their own.
BENCHMARK(BM_ExportFilm)
    ->ArgNames({"largeur", "hauteur"})
    ->Args({1280, 720})
    ->Args({640, 360})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2)
    ->UseRealTime();

}  // namespace
