// The main of the benchmarks that draw with OpenGL through Qt, which needs an X server even
// offscreen: a private Xvfb when there is no display.
#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <cstdio>
#include <string>

#include "gui/gl/ServeurX.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  TServeurX serveur;
  std::string erreur;
  if (!serveur.PrepareHorsEcran(erreur)) {
    std::fprintf(stderr, "pas d'affichage : %s\n", erreur.c_str());
    return 1;
  }
  QGuiApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
