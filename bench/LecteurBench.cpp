// The application as main starts it, with a routine's demonstration in the player, driven
// from standard input so that bench/cpu-lecteur.sh can measure its CPU time from outside:
//   lecture   plays, starting again from the start whenever the end is reached
//   pause     pauses
//   images    writes the number of frames drawn so far
//   fin       quits
// It writes "pret" once the demonstration is on screen, paused.
#include <QAction>
#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <iostream>
#include <string>

#include <unistd.h>

#include "app/App.h"
#include "demo/D3DDemo.h"
#include "demo/player/Commandes.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

namespace {

void Dit(const std::string& ligne) {
  std::cout << ligne << std::endl;  // flushed: the script waits for it
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage : %s ROUTINE.rou\n", argv[0]);
    return 2;
  }
  QApplication application(argc, argv);
  TApp app;
  app.Demarre();
  // No one to answer a box (a missing music file says so): written to standard error.
  TDialoguesConsole console;
  SetDialogues(&console);
  QFenCadre* lecteur = app.Lecteur();
  auto commande = [lecteur](unsigned id) { lecteur->Action(id)->trigger(); };

  // The demonstration needs the player's GL context, there from its first frame.
  QTimer attente;
  QObject::connect(&attente, &QTimer::timeout, [&] {
    if (lecteur->Cadence().Images() == 0) return;
    attente.stop();
    if (LitRoutine(app.Editeur()->Cadre(), argv[1])) TFenDessin::Demo();
    if (Globals.blDemoOK == 1) {
      Dit("pret");
    } else {
      std::fprintf(stderr, "pas de démonstration de %s\n", argv[1]);
      QCoreApplication::exit(1);
    }
  });
  attente.start(50);

  // While playing: back to the start at the end, so that the kites keep flying.
  QTimer boucle;
  QObject::connect(&boucle, &QTimer::timeout, [&] {
    const TD3DDemo* scene = Globals.pD3DDemo;
    if (scene && scene->Mode == MODE_AVANT && !scene->EnMouvement()) {
      commande(CM_DEBUT);
      commande(CM_LECTURE);
    }
  });

  // exit rather than quit: quit asks each window to close, and the player refuses.
  auto execute = [&](const std::string& ligne) {
    if (ligne == "fin") {
      QCoreApplication::exit(0);
    } else if (ligne == "lecture") {
      commande(CM_LECTURE);
      boucle.start(200);
    } else if (ligne == "pause") {
      boucle.stop();
      commande(CM_PAUSE);
    } else if (ligne == "images") {
      Dit(std::to_string(lecteur->Cadence().Images()));
    }
  };
  // Read straight from the descriptor: a buffered stream could hold lines the notifier
  // would never announce.
  std::string recu;
  QSocketNotifier entree(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&entree, &QSocketNotifier::activated, [&] {
    char bloc[256];
    const ssize_t n = ::read(STDIN_FILENO, bloc, sizeof bloc);
    if (n <= 0) {
      entree.setEnabled(false);
      QCoreApplication::exit(0);
      return;
    }
    recu.append(bloc, static_cast<std::size_t>(n));
    for (std::size_t fin; (fin = recu.find('\n')) != std::string::npos; recu.erase(0, fin + 1))
      execute(recu.substr(0, fin));
  });
  return QApplication::exec();
}
