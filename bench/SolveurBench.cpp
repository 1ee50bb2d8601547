// Solving times and speeds: a whole-document update whose cost must follow the number of
// elements whatever the length of the stretches, and a local update in a long stretch.
#include <benchmark/benchmark.h>

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"

namespace {

constexpr int NB_ELEMENTS = 10'000;

// Every track: a point, then lines of one unit, with an anchor closing each stretch and
// the track.
void RemplitDocument(int kites, int troncon) {
  ReinitialiseDocument();
  InitialiseNumCoul();
  nbCV = kites;
  for (int cv = 0; cv < kites; ++cv) {
    TListeCV& l = TabLElt[cv];
    l.Append(new TPt(TPoint(0, 0), nullptr, nullptr, &l));
    for (int i = 1; i < NB_ELEMENTS; ++i) {
      auto* s = new TSegment(TPoint(0, i % 2), nullptr, nullptr, &l);
      if (i % troncon == 0 || i == NB_ELEMENTS - 1) {
        s->Contrainte = CONTRAINTE_TEMPS;
        s->Sett2Param(2.0f * static_cast<float>(i));
      }
      l.Append(s);
    }
  }
}

void BM_MiseAJourVTotale(benchmark::State& state) {
  RemplitDocument(6, static_cast<int>(state.range(0)));
  for (auto _ : state) TFenDessin::MiseAJourVTotale();
  state.SetItemsProcessed(state.iterations() * 6 * NB_ELEMENTS);
  ReinitialiseDocument();
}
BENCHMARK(BM_MiseAJourVTotale)->ArgName("troncon")->Arg(10)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_MiseAJourVLocale(benchmark::State& state) {
  RemplitDocument(1, NB_ELEMENTS);
  auto* milieu = static_cast<TElt*>(TabLElt[0].GetPt(NB_ELEMENTS / 2));
  for (auto _ : state) TFenDessin::MiseAJourV(milieu, true, true);
  ReinitialiseDocument();
}
BENCHMARK(BM_MiseAJourVLocale)->Unit(benchmark::kMillisecond);

}  // namespace
