// Writing and reading a routine of 6 kites of 20,000 elements each, beside the floor of
// reading the same file's bytes and cutting its lines; telling whether it changed.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "files/Lignes.h"
#include "model/Document.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"
#include "platform/Dialogues.h"
#include "session/Modification.h"

namespace {

constexpr int NB_ELEMENTS = 20'000;


// The document: per kite a point, then segments with an axel and an arc every ten elements.
struct TRoutineTest {
  TRoutineTest() {
    SetDialogues(&muets);
    ReinitialiseDocument();
    cadre.SetupWindow();
    nbCV = NB_CV_MAX;
    Team = 3;
    TFenDessin* fen = cadre.GetFeuille(0);
    for (int cv = 0; cv < NB_CV_MAX; ++cv) {
      TListeCV& l = TabLElt[cv];
      l.Append(new TPt(TPoint(-100 + 30 * cv, 10), fen, nullptr, &l));
      for (int i = 1; i < NB_ELEMENTS; ++i) {
        const TPoint p(-100 + (i * 7) % 200, 5 + (i * 13) % 90);
        TElt* e = nullptr;
        if (i % 10 == 3)
          e = new TAxel(p, fen, nullptr, &l);
        else if (i % 10 == 7)
          e = new TArc(p, fen, nullptr, &l);
        else
          e = new TSegment(p, fen, nullptr, &l);
        e->Sett2Param(static_cast<float>(i) * 12.5f);
        l.Append(e);
        if (auto* arc = dynamic_cast<TArc*>(e)) arc->Set(0, CONTRAINTE_VCONSTANTE, e->Gett2Param(), 0.3f, 12, 1.2f);
      }
    }
    texte = TexteRoutine();
    chemin = (std::filesystem::temp_directory_path() / "trajectoires-bench.rou").string();
    EcritFichier(chemin, texte);
  }
  ~TRoutineTest() {
    std::filesystem::remove(chemin);
    ReinitialiseDocument();
    SetDialogues(nullptr);
  }
  TDialoguesMuets muets;
  TFenCadre2 cadre;
  std::string texte;
  std::string chemin;
};

TRoutineTest& Routine() {
  static TRoutineTest r;
  return r;
}

void BM_EcritureRoutine(benchmark::State& state) {
  TRoutineTest& r = Routine();
  LitRoutine(r.cadre, r.chemin);
  for (auto _ : state) {
    const std::string texte = TexteRoutine();
    EcritFichier(r.chemin, texte);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(r.texte.size()));
}
BENCHMARK(BM_EcritureRoutine)->Unit(benchmark::kMillisecond);

void BM_LectureRoutine(benchmark::State& state) {
  TRoutineTest& r = Routine();
  for (auto _ : state) LitRoutine(r.cadre, r.chemin);
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(r.texte.size()));
}
BENCHMARK(BM_LectureRoutine)->Unit(benchmark::kMillisecond);

// What each action of the user costs to tell whether it changed the document: the text of
// the routine made again and compared with the last one seen.
void BM_VerifieModification(benchmark::State& state) {
  TRoutineTest& r = Routine();
  LitRoutine(r.cadre, r.chemin);
  MarqueIntact();
  for (auto _ : state) VerifieModification();
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(r.texte.size()));
}
BENCHMARK(BM_VerifieModification)->Unit(benchmark::kMillisecond);

// What no reader can beat: the bytes read from the file and cut into lines.
void BM_LecturePlancher(benchmark::State& state) {
  TRoutineTest& r = Routine();
  for (auto _ : state) {
    std::size_t lignes = 0;
    DecoupeLignes(*LitFichier(r.chemin), [&](std::string_view) { ++lignes; }, [](int) {});
    benchmark::DoNotOptimize(lignes);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(r.texte.size()));
}
BENCHMARK(BM_LecturePlancher)->Unit(benchmark::kMillisecond);

}  // namespace
