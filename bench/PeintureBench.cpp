// Painting one sheet that holds 6 kites of 300 elements, every class in turn, as a window
// 1366 pixels wide shows it: on an image through the Qt surface, and on the recorder, which
// draws nothing and gives the cost of the painting logic alone.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/DCJournal.h"
#include "platform/Dialogues.h"
#include "gui/qt/DCQt.h"

namespace {

constexpr int NB_ELEMENTS = 300;
constexpr int LARGEUR = 1366;

// One line of each class after the kite's point, as a routine file writes them, about (x, y).
std::string Ligne(int classe, int cv, int index, int x, int y) {
  char texte[160];
  const int t = index * 100;
  switch (classe) {
    case 0: std::snprintf(texte, sizeof texte, "SEGMENT\t%d\t%d\t3\t1\t%d\t%d\t%d\t0.4", cv, index, t, x, y); break;
    case 1: std::snprintf(texte, sizeof texte, "SEGREVO\t%d\t%d\t3\t1\t%d\t%d\t%d\t0.4\t90", cv, index, t, x, y); break;
    case 2: std::snprintf(texte, sizeof texte, "DERAPAGE\t%d\t%d\t3\t1\t%d\t%d\t%d\t0.4", cv, index, t, x, y); break;
    case 3: std::snprintf(texte, sizeof texte, "ARC\t%d\t%d\t3\t1\t%d\t%d\t%d\t0.4\t20\t1.5708", cv, index, t, x, y); break;
    case 4: std::snprintf(texte, sizeof texte, "AXEL\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t0\t110", cv, index, t, x, y); break;
    case 5: std::snprintf(texte, sizeof texte, "ARCREVO\t%d\t%d\t3\t1\t%d\t%d\t%d\t0.4\t10\t-3.1416\t45", cv, index, t, x, y); break;
    case 6: std::snprintf(texte, sizeof texte, "540\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t1\t110", cv, index, t, x, y); break;
    case 7: std::snprintf(texte, sizeof texte, "ROT\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t100\t90", cv, index, t, x, y); break;
    case 8: std::snprintf(texte, sizeof texte, "STOP\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t100", cv, index, t, x, y); break;
    case 9: std::snprintf(texte, sizeof texte, "POSE\t%d\t%d\t3\t1\t%d\t%d\t2.7\t0.4\t100\t%d", cv, index, t, x, 1 + index % 3); break;
    case 10: std::snprintf(texte, sizeof texte, "ALLERA\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t100\t0\t0\t1\t0\t1\t0\t0", cv, index, t, x, y); break;
    default: std::snprintf(texte, sizeof texte, "FIGURE\t%d\t%d\t5\t1\t%d\t%d\t%d\t0.4\t100\tboucle.fig\t552", cv, index, t, x, y); break;
  }
  return std::string(texte) + "\n";
}

struct TFeuillePleine {
  TFeuillePleine() {
    SetDialogues(&muets);
    // The frame, built before this body, gave the kites their numbers and colours: a reset
    // must give them back.
    ReinitialiseDocument();
    InitialiseNumCoul();
    // The figure is looked up by its bare name in the current directory.
    avant = std::filesystem::current_path();
    dossier = std::filesystem::temp_directory_path() / ("trajectoires-bench-peinture-" + std::to_string(getpid()));
    std::filesystem::create_directories(dossier);
    std::filesystem::current_path(dossier);
    std::ofstream("boucle.fig") << "POINT\t0\t0\t2\t1\t0\t0\t0\t0.4\nSEGMENT\t0\t1\t2\t1\t100\t18\t16\t0.4\n";
    std::string routine;
    int index = 0;
    for (int cv = 0; cv < NB_CV_MAX; ++cv) {
      routine += "POINT\t" + std::to_string(cv) + "\t" + std::to_string(index++) + "\t2\t1\t0\t" +
                 std::to_string(-90 + 30 * cv) + "\t20\t0.4\n";
      for (int i = 1; i < NB_ELEMENTS; ++i)
        routine += Ligne(i % 12, cv, index++, -90 + (i * 37 + cv * 11) % 180, 10 + (i * 23 + cv * 7) % 80);
    }
    cadre.SetupWindow();
    LitRoutineTexte(cadre, routine);
    feuille = cadre.GetFeuille(0);
    feuille->SetTailleClient(LARGEUR, LARGEUR / 2);
  }
  ~TFeuillePleine() {
    std::filesystem::current_path(avant);
    std::filesystem::remove_all(dossier);
    ReinitialiseDocument();
    SetDialogues(nullptr);
  }
  TDialoguesMuets muets;
  std::filesystem::path avant, dossier;
  TFenCadre2 cadre;
  TFenDessin* feuille = nullptr;
};

// A repaint of the whole window: erased to white, then painted.
void BM_PeintureImage(benchmark::State& state) {
  TFeuillePleine f;
  QImage image(LARGEUR, LARGEUR / 2, QImage::Format_RGB32);
  QPainter painter(&image);
  TDCQt dc(&painter);
  for (auto _ : state) {
    painter.fillRect(image.rect(), Qt::white);
    f.feuille->Paint(dc, false, TRect());
    benchmark::DoNotOptimize(image.constBits());
  }
  state.counters["elements"] = NB_CV_MAX * NB_ELEMENTS;
}
BENCHMARK(BM_PeintureImage)->Unit(benchmark::kMillisecond);

void BM_PeintureJournal(benchmark::State& state) {
  TFeuillePleine f;
  TDCJournal dc;
  for (auto _ : state) {
    dc.Lignes.clear();
    f.feuille->Paint(dc, false, TRect());
    benchmark::DoNotOptimize(dc.Lignes.data());
  }
  state.counters["traces"] = static_cast<double>(dc.Lignes.size());
}
BENCHMARK(BM_PeintureJournal)->Unit(benchmark::kMillisecond);

}  // namespace
