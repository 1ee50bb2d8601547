// The safety checks of a routine of 6 kites of 20,000 elements each, beside the building of
// the flight they sample (what `keys` does before it prints): the goal is a check that costs
// at most twice that flight.
#include <benchmark/benchmark.h>

#include <cmath>

#include "demo/VolHorsScene.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "securite/Controle.h"

namespace {

constexpr int NB_ELEMENTS = 20'000;
constexpr int DUREE_ELEMENT = 50;  // hundredths: the routine lasts 10,000 s

// Six kites each flying its own ring of segments, arcs and axels, half a second an element,
// at a speed a kite flies: the flight has few findings, as a designer's would.
struct TRoutineSecurite {
  TRoutineSecurite() {
    SetDialogues(&muets);
    ReinitialiseDocument();
    cadre.SetupWindow();
    std::string texte = "TEAM   1 \n";
    int num = 0;
    for (int cv = 0; cv < NB_CV_MAX; ++cv) {
      const double cx = -75 + 30 * cv, cy = 50, r = 12;
      const auto ligne = [&](const char* mot, int contrainte, int t, double a, const char* reste) {
        char l[256];
        std::snprintf(l, sizeof l, "%s\t%d\t%d\t%d\t1\t%d\t\t%.3f  %.3f\t\t0.4\t%s\n", mot, cv, num++, contrainte, t,
                      cx + r * std::cos(a), cy + r * std::sin(a), reste);
        texte += l;
      };
      ligne("POINT   ", 2, 0, 0, "\t");
      for (int i = 1; i < NB_ELEMENTS; ++i) {
        const double a = i * 0.3;
        if (i % 10 == 3)
          ligne("AXEL    ", 2, i * DUREE_ELEMENT, a, "\t\t0\t\t30");
        else
          ligne("SEGMENT ", 2, i * DUREE_ELEMENT, a, "\t");
      }
    }
    LitRoutineTexte(cadre, texte);
  }
  ~TRoutineSecurite() {
    ReinitialiseDocument();
    SetDialogues(nullptr);
  }
  TDialoguesMuets muets;
  TFenCadre2 cadre;
};

TRoutineSecurite& Routine() {
  static TRoutineSecurite r;
  return r;
}

void BM_VolDuControle(benchmark::State& state) {
  Routine();
  std::size_t cles = 0;
  for (auto _ : state) {
    const TPistesVol vol = VolHorsScene();
    cles = 0;
    for (const TTrajectoire& t : vol) cles += t.Ordre.size();
  }
  state.counters["cles"] = static_cast<double>(cles);
}
BENCHMARK(BM_VolDuControle)->Unit(benchmark::kMillisecond);

void BM_Controle(benchmark::State& state) {
  Routine();
  const TPistesVol vol = VolHorsScene();
  std::size_t constats = 0;
  for (auto _ : state) constats = ControleVol(vol, nbCV, ReglagesSecurite).size();
  state.counters["constats"] = static_cast<double>(constats);
  state.counters["centiemes"] = static_cast<double>(NB_ELEMENTS) * DUREE_ELEMENT;
}
BENCHMARK(BM_Controle)->Unit(benchmark::kMillisecond);

}  // namespace
