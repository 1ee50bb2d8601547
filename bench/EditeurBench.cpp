// The editor's logic under a large routine, as the window drives it but without widgets.
//
// Drag: the end point of one element is held with "update at every move" on, in a routine
// of 6 kites of 1,000 elements over 4 sheets; each iteration is one mouse move to a new
// whole unit, alternating between two points 3 units apart, first alone, then followed by a
// repaint of the whole sheet on an image. The argument is the spacing of the time anchors:
// 10 elements, or 0 for none, where a kite's whole track is one stretch to solve.
//
// Opening: a routine of 6 kites of 20,000 elements over 100 sheets, from Ouvrir(path) to
// the first sheet painted, 1366 pixels wide.
//
// Undo, in that routine, on sheet 50: the copy that each grabbing click takes (MAJUnDo),
// and Undo itself, which alternates between the two states. Paste: 100 elements of kite 2
// copied once, then pasted after the last element of kite 2, parallel, with the whole
// document solved again after each paste as the command does; one iteration is one paste.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include <unistd.h>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/DCJournal.h"
#include "platform/Dialogues.h"
#include "gui/qt/DCQt.h"

namespace {

constexpr int LARGEUR = 1366;
constexpr int HAUTEUR_BANDE = 200;  // the strip under the sheets
constexpr unsigned MAJ_PERMANENTE = 332;

// The element that the drag holds: kite 2, half way along its track, on sheet 3 of 4.
constexpr int CV_CIBLE = 2;
constexpr int INDEX_CIBLE = 500;
constexpr int X_CIBLE = 20, Y_CIBLE = 47;
// No end point but the held one comes this close to it, so the click can only take it:
// absolute ends stay out of the box, arcs of radius 4 reach at most 8 units further.
constexpr int ECART_CIBLE = 14;

struct TRoutine {
  int Elements;  // per kite, its start point included
  int Feuilles;
  int Ancres;    // a time anchor every so many elements, a multiple of 10; 0: none
};

// One kite's track: a start point, then a cycle of lines, arcs and manoeuvres. Lines end
// anywhere in the wind window; arcs and manoeuvres are placed by what comes before them.
void AjouteKite(std::string& texte, int cv, const TRoutine& r, int& num) {
  std::minstd_rand hasard(static_cast<unsigned>(17 + cv));
  std::uniform_int_distribution<int> hx(-90, 90), hy(10, 90);
  const float pas = 150.0f;  // the time the file gives per element; the open re-solves it
  int x = -90 + 36 * cv, y = 20;
  char ligne[200];
  std::snprintf(ligne, sizeof ligne, "POINT\t%d\t%d\t2\t1\t0\t%d\t%d\t0.4\n", cv, num++, x, y);
  texte += ligne;
  for (int i = 1; i < r.Elements; ++i) {
    const int feuille = 1 + i * r.Feuilles / r.Elements;
    const float t = pas * static_cast<float>(i);
    const int classe = i % 10;
    // On the cycle's last line, once every Ancres elements (a multiple of the cycle).
    const bool ancre = r.Ancres > 0 && i % r.Ancres == 8;
    const int c = ancre ? 2 : 3;
    const bool cible = cv == CV_CIBLE && i == INDEX_CIBLE;
    const bool droite = classe % 2 == 0;  // the lines, which take the speed's constraint
    if (droite) {
      if (cible) {
        x = X_CIBLE;
        y = Y_CIBLE;
      } else {
        do {
          x = hx(hasard);
          y = hy(hasard);
        } while (std::abs(x - X_CIBLE) <= ECART_CIBLE && std::abs(y - Y_CIBLE) <= ECART_CIBLE);
      }
    }
    const char* format = nullptr;
    switch (classe) {
      case 0:
      case 4:
      case 8: format = "SEGMENT\t%d\t%d\t%d\t%d\t%g\t%d\t%d\t0.4\n"; break;
      case 2: format = "SEGREVO\t%d\t%d\t%d\t%d\t%g\t%d\t%d\t0.4\t90\n"; break;
      case 6: format = "DERAPAGE\t%d\t%d\t%d\t%d\t%g\t%d\t%d\t0.4\n"; break;
      case 1: format = "ARC\t%d\t%d\t3\t%d\t%g\t%d\t%d\t0.4\t4\t1.5708\n"; break;
      case 5: format = "ARCREVO\t%d\t%d\t3\t%d\t%g\t%d\t%d\t0.4\t4\t-2.3562\t45\n"; break;
      case 3: format = "AXEL\t%d\t%d\t5\t%d\t%g\t%d\t%d\t0.4\t0\t110\n"; break;
      case 7: format = "ROT\t%d\t%d\t5\t%d\t%g\t%d\t%d\t0.4\t100\t90\n"; break;
      default: format = "540\t%d\t%d\t5\t%d\t%g\t%d\t%d\t0.4\t1\t110\n"; break;
    }
    if (droite)
      std::snprintf(ligne, sizeof ligne, format, cv, num++, c, feuille, static_cast<double>(t), x, y);
    else
      std::snprintf(ligne, sizeof ligne, format, cv, num++, feuille, static_cast<double>(t), x, y);
    texte += ligne;
  }
}

std::string Routine(const TRoutine& r) {
  std::string texte;
  int num = 0;
  for (int cv = 0; cv < NB_CV_MAX; ++cv) AjouteKite(texte, cv, r, num);
  return texte;
}

// A routine file in a directory of its own, gone with the object.
struct TFichierRoutine {
  explicit TFichierRoutine(const TRoutine& r) {
    dossier = std::filesystem::temp_directory_path() / ("trajectoires-bench-editeur-" + std::to_string(getpid()));
    std::filesystem::create_directories(dossier);
    chemin = (dossier / ("routine-" + std::to_string(r.Elements) + "-" + std::to_string(r.Ancres) + ".rou")).string();
    std::ofstream(chemin, std::ios::binary) << Routine(r);
  }
  ~TFichierRoutine() {
    std::error_code erreur;
    std::filesystem::remove(chemin, erreur);
    std::filesystem::remove(dossier, erreur);  // only once empty
  }
  std::filesystem::path dossier;
  std::string chemin;
};

// The document's globals are set back before the frame is made: the frame gives the tracks
// their kite numbers and colours, which a later reset would take away again.
struct TDocumentNeuf {
  explicit TDocumentNeuf(TDialogues& d) {
    SetDialogues(&d);
    ReinitialiseDocument();
  }
  ~TDocumentNeuf() {
    ReinitialiseDocument();
    SetDialogues(nullptr);
  }
};

// The editor as the application builds it: two sheets, the window LARGEUR wide.
struct TEditeur {
  explicit TEditeur(TDialogues& d) : document(d) {
    cadre.SetHauteurs(0, 0, 0);
    cadre.SetupWindow();
    cadre.EvSize(LARGEUR, LARGEUR / 2 + HAUTEUR_BANDE);
  }
  // The elements go while the sheets and the strip they point to are still there.
  ~TEditeur() { ReinitialiseDocument(); }
  TDocumentNeuf document;
  TFenCadre2 cadre;
};

// The pixel of the sheet that falls on the whole logical unit (lx, ly), nearest to where
// that unit is drawn.
TPoint Pixel(TFenDessin& f, int lx, int ly) {
  TDCJournal dc;
  f.SetEchelle(dc);
  const TPoint centre = f.LPtoDP(TPointf(static_cast<float>(lx), static_cast<float>(ly)));
  for (int r = 0; r < 8; ++r)
    for (int dx = -r; dx <= r; ++dx)
      for (int dy = -r; dy <= r; ++dy) {
        const TPoint p(centre.x + dx, centre.y + dy);
        const TPointf l = f.DPtoLP(p);
        if (static_cast<int>(l.x) == lx && static_cast<int>(l.y) == ly) return p;
      }
  return centre;
}

TElt* Element(int cv, int index) { return static_cast<TElt*>(TabLElt[cv].GetPt(index)); }

// The drag, held on the element at INDEX_CIBLE of kite CV_CIBLE; `peindre` repaints the
// whole sheet on an image after each move.
void Glisse(benchmark::State& state, bool peindre) {
  TDialoguesMuets muets;
  const TRoutine routine{1000, 4, static_cast<int>(state.range(0))};
  TFichierRoutine fichier(routine);
  TEditeur editeur(muets);
  TFenCadre2& cadre = editeur.cadre;
  cadre.pFenDesActive->Ouvrir(fichier.chemin);
  TElt* cible = Element(CV_CIBLE, INDEX_CIBLE);
  if (!cible || !cible->pFen) {
    state.SkipWithError("the held element is not in the routine");
    return;
  }
  cadre.TabSelChange(cible->pFen->Num - 1);
  TFenDessin& f = *cadre.pFenDesActive;
  f.Trt_Menu(MAJ_PERMANENTE);
  f.EvChar(CAR_ECHAP, 1, 0);  // the machine idle, at its first step

  const TPoint depart = Pixel(f, X_CIBLE, Y_CIBLE);
  const TPoint ailleurs = Pixel(f, X_CIBLE + 3, Y_CIBLE + 2);
  f.EvMouseMove(0, depart);
  f.EvLButtonDown(0, depart);
  if (TFenDessin::pEltCourant != cible || TFenDessin::Etape != 2 || !TFenDessin::MAJPermanente) {
    state.SkipWithError("the click did not take the held element's end point");
    return;
  }

  // Both positions give the element another length, so each move solves its time anew.
  f.EvMouseMove(0, ailleurs);
  const float tAilleurs = cible->Gett2Param();
  f.EvMouseMove(0, depart);
  if (cible->Gett2Param() == tAilleurs) {
    state.SkipWithError("a move did not solve the time again");
    return;
  }

  QImage image(LARGEUR, LARGEUR / 2, QImage::Format_RGB32);
  QPainter painter(&image);
  TDCQt dc(&painter);
  bool aller = true;
  for (auto _ : state) {
    f.EvMouseMove(0, aller ? ailleurs : depart);
    aller = !aller;
    if (peindre) {
      painter.fillRect(image.rect(), Qt::white);
      f.Paint(dc, true, TRect());
      benchmark::DoNotOptimize(image.constBits());
    }
  }
  f.EvLButtonUp(0, aller ? depart : ailleurs);
  // Each move landed: the element ends where the last one took it.
  const TPointf fin = cible->Getp2Param();
  if (static_cast<int>(fin.x) != (aller ? X_CIBLE : X_CIBLE + 3)) state.SkipWithError("the drag did not move the end");
  int surFeuille = 0;
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) surFeuille += static_cast<TElt*>(n)->pFen == &f;
  state.counters["elements"] = NB_CV_MAX * routine.Elements;
  state.counters["feuille"] = surFeuille;
}

void BM_GlisseMiseAJour(benchmark::State& state) { Glisse(state, false); }
BENCHMARK(BM_GlisseMiseAJour)->Arg(10)->Arg(0)->Unit(benchmark::kMicrosecond);

void BM_GlisseMiseAJourPeinture(benchmark::State& state) { Glisse(state, true); }
BENCHMARK(BM_GlisseMiseAJourPeinture)->Arg(10)->Arg(0)->Unit(benchmark::kMicrosecond);

// Opening as "&Ouvrir" does once its dialog has answered, then the first paint of sheet 1.
// Each iteration opens in a new editor, as at program start; the previous one goes untimed.
void BM_OuvrirPremierePeinture(benchmark::State& state) {
  TDialoguesMuets muets;
  const TRoutine routine{20000, 100, static_cast<int>(state.range(0))};
  TFichierRoutine fichier(routine);
  QImage image(LARGEUR, LARGEUR / 2, QImage::Format_RGB32);
  QPainter painter(&image);
  TDCQt dc(&painter);
  std::unique_ptr<TEditeur> editeur;
  for (auto _ : state) {
    state.PauseTiming();
    editeur.reset();
    editeur = std::make_unique<TEditeur>(muets);
    state.ResumeTiming();
    TFenCadre2& cadre = editeur->cadre;
    cadre.pFenDesActive->Ouvrir(fichier.chemin);
    painter.fillRect(image.rect(), Qt::white);
    cadre.pFenDesActive->Paint(dc, true, TRect());
    benchmark::DoNotOptimize(image.constBits());
  }
  int total = 0;
  for (int k = 0; k < nbCV; ++k) total += TabLElt[k].nbNoeud();
  if (total != NB_CV_MAX * routine.Elements) state.SkipWithError("the routine was not read whole");
  state.counters["elements"] = total;
  state.counters["feuilles"] = editeur ? editeur->cadre.nbFeuilles : 0;
  editeur.reset();
}
BENCHMARK(BM_OuvrirPremierePeinture)->Arg(10)->Arg(0)->Iterations(3)->Unit(benchmark::kMillisecond);

// The large routine open, its sheet 50 the active one.
struct TEditeurOuvert {
  TEditeurOuvert(TDialogues& d, const TRoutine& r) : fichier(r), editeur(d) {
    editeur.cadre.pFenDesActive->Ouvrir(fichier.chemin);
    editeur.cadre.TabSelChange(49);
  }
  TFenDessin& Feuille() { return *editeur.cadre.pFenDesActive; }
  TFichierRoutine fichier;
  TEditeur editeur;
};

int CompteCopie() {
  int n = 0;
  for (int k = 0; k < nbCV; ++k) n += AncTabLElt[k].nbNoeud();
  return n;
}

void BM_MAJUnDo(benchmark::State& state) {
  TDialoguesMuets muets;
  TEditeurOuvert ouvert(muets, TRoutine{20000, 100, 10});
  for (auto _ : state) ouvert.Feuille().MAJUnDo();
  state.counters["copie"] = CompteCopie();
  if (CompteCopie() == 0) state.SkipWithError("sheet 50 holds nothing");
}
BENCHMARK(BM_MAJUnDo)->Unit(benchmark::kMillisecond);

void BM_Undo(benchmark::State& state) {
  TDialoguesMuets muets;
  TEditeurOuvert ouvert(muets, TRoutine{20000, 100, 10});
  TFenDessin& f = ouvert.Feuille();
  f.MAJUnDo();
  const int copie = CompteCopie();
  for (auto _ : state) f.Undo();
  state.counters["copie"] = copie;
  if (copie == 0 || CompteCopie() != copie) state.SkipWithError("undo did not give back the sheet");
}
BENCHMARK(BM_Undo)->Unit(benchmark::kMillisecond);

// Answers the paste dialog with its settings as they stand.
class TDialoguesColler : public TDialoguesMuets {
public:
  bool Execute(TBD_Coller& bd) override { return bd.CloseWindow(1); }
};

void BM_Coller(benchmark::State& state) {
  TDialoguesColler dialogues;
  TEditeurOuvert ouvert(dialogues, TRoutine{static_cast<int>(state.range(0)), 4, 10});
  TFenDessin& f = ouvert.Feuille();
  TFenDessin::pEltCourant2 = Element(CV_CIBLE, 1);
  TFenDessin::pEltCourant = Element(CV_CIBLE, 100);
  f.Copier();
  const int avant = TabLElt[CV_CIBLE].nbNoeud();
  for (auto _ : state) {
    TFenDessin::pEltCourant2 = nullptr;
    TFenDessin::pEltCourant = static_cast<TElt*>(TabLElt[CV_CIBLE].Dernier());
    f.Coller();
  }
  const int colles = TabLElt[CV_CIBLE].nbNoeud() - avant;
  state.counters["colles"] = colles;
  if (colles != 100 * static_cast<int>(state.iterations())) state.SkipWithError("a paste did not land");
}
BENCHMARK(BM_Coller)->Arg(1000)->Iterations(50)->Unit(benchmark::kMillisecond);

}  // namespace
