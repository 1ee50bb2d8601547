// The timeline of 6 kites of 1000 elements each painted at 1920 by 300 on an image, the whole
// routine fitted in the width and zoomed in on a minute where the blocks carry their names.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <cstdlib>
#include <string>

#include "editor/FenCadre2.h"
#include "files/Lecture.h"
#include "frise/Battements.h"
#include "frise/Pistes.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "gui/frise/PeintreFrise.h"

namespace {

constexpr int NB_ELEMENTS = 1000;

struct TRoutineLongue {
  TRoutineLongue() {
    SetDialogues(&muets);
    ReinitialiseDocument();
    InitialiseNumCoul();
    cadre.SetupWindow();
    std::string texte = "TEMPO 124 30\nREPERE 6000 Refrain\nREPERE 30000 Final\n";
    for (int cv = 0; cv < 6; ++cv) {
      texte += "POINT\t" + std::to_string(cv) + "\t0\t2\t1\t0\t0\t0\t0.4\n";
      for (int i = 1; i <= NB_ELEMENTS; ++i) {
        const int t = i * 90 + cv * 7;
        const std::string debut = std::to_string(cv) + "\t" + std::to_string(i) + "\t";
        const int feuille = 1 + i / 100;
        if (i % 3 == 0)
          texte += "AXEL\t" + debut + "5\t" + std::to_string(feuille) + "\t" + std::to_string(t) + "\t10\t10\t0.4\t1\t110\n";
        else
          texte += "SEGMENT\t" + debut + "2\t" + std::to_string(feuille) + "\t" + std::to_string(t) + "\t" +
                   std::to_string(i % 90) + "\t20\t0.4\n";
      }
    }
    LitRoutineTexte(cadre, texte);
    frise = ConstruitFrise();
  }
  TDialoguesMuets muets;
  TFenCadre2 cadre;
  TFrise frise;
};

void Peint(benchmark::State& state, bool zoome) {
  static TRoutineLongue r;
  QImage image(1920, 300, QImage::Format_RGB32);
  TSceneFrise s;
  s.Frise = &r.frise;
  s.Dispo = Dispose(1920, 300, static_cast<int>(r.frise.Pistes.size()));
  s.Vue = zoome ? TVueTemps{30000, 1920.0 / 6000} : Ajuste(r.frise.Debut, r.frise.Fin, 1920);
  s.Tempo = Tempo;
  s.Reperes = &Reperes;
  s.Tete = 31000;
  for (auto _ : state) {
    if (std::getenv("SANS_FOND") == nullptr) image.fill(Qt::white);
    QPainter p(&image);
    PeintFrise(p, s);
  }
  state.counters["blocs"] = 6.0 * (NB_ELEMENTS + 1);
}

void BM_FriseEntiere(benchmark::State& state) { Peint(state, false); }
void BM_FriseUneMinute(benchmark::State& state) { Peint(state, true); }

}  // namespace

BENCHMARK(BM_FriseEntiere)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FriseUneMinute)->Unit(benchmark::kMillisecond);
