// The main of the benchmarks that paint through Qt: fonts need a GUI application, but no display.
#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <cstdlib>

int main(int argc, char** argv) {
  // Fonts need a GUI application, but no display.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
