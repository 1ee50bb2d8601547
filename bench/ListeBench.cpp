// Walking a long track: the cursor-free walk that whole-document passes use, and the
// position cache that makes repeated GetIndex calls cheap after one walk.
#include <benchmark/benchmark.h>

#include "model/Document.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"

namespace {

void Remplit(TListeCV& l, int n) {
  l.Vide();
  l.Append(new TPt(TPoint(0, 0), nullptr, nullptr, &l));
  for (int i = 1; i < n; ++i) l.Append(new TSegment(TPoint(i % 200 - 100, i % 100), nullptr, nullptr, &l));
}

void BM_LongueurTotale(benchmark::State& state) {
  TListeCV l;
  Remplit(l, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    float total = 0;
    for (TNoeud* n = l.Init2(); n; n = n->GetSuivant()) total += static_cast<TElt*>(n)->CalculLongueur();
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_LongueurTotale)->Arg(10000)->Arg(100000);

void BM_GetIndexCache(benchmark::State& state) {
  TListeCV l;
  Remplit(l, static_cast<int>(state.range(0)));
  TNoeud* milieu = l.GetPt(static_cast<int>(state.range(0)) / 2);
  for (auto _ : state) benchmark::DoNotOptimize(l.GetIndex(milieu));
}
BENCHMARK(BM_GetIndexCache)->Arg(100000);

}  // namespace
