#include "app/App.h"

#include "demo/D3DDemo.h"
#include "model/Document.h"

#include <QStatusBar>

#include <cstdlib>
#include <cstring>

TApp::TApp() {
  // A 0 ms timer fires each time the event queue is empty, which is what drawing the scene
  // needs. With no scene it would keep a core busy for nothing, so it then polls slowly;
  // IdleAction switches between the two.
  idle_.setInterval(IDLE_SANS_SCENE_MS);
  connect(&idle_, &QTimer::timeout, this, [this] { IdleAction(); });
}

TApp::~TApp() {
  idle_.stop();
  lecteur_.reset();
  editeur_.reset();
  if (&Dialogues() == &dialogues_) SetDialogues(nullptr);
}

void TApp::Demarre() {
  SetDialogues(&dialogues_);
  editeur_ = std::make_unique<QFenCadre2>();
  dialogues_.SetParent(editeur_.get());
  dialogues_.SetBarreStatut(editeur_->statusBar());
  lecteur_ = std::make_unique<QFenCadre>();
  editeur_->show();
  lecteur_->show();
  idle_.start();
}

bool TApp::IdleAction() {
  const bool scene = Globals.blActif && Globals.blDemoOK && Globals.pD3DDemo;
  if (scene) {
    // Time comes from the clock inside Go, so the frame rate does not change the speed.
    Globals.pD3DDemo->Go();
    if (lecteur_) lecteur_->statusBar()->showMessage(QStringLiteral("T = %1").arg(Globals.pD3DDemo->tCourant));
  }
  const int intervalle = scene ? 0 : IDLE_SANS_SCENE_MS;
  if (idle_.interval() != intervalle) idle_.setInterval(intervalle);
  return scene;
}

bool AffichageDisponible(int argc, char** argv) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* valeur = std::getenv(variable);
    if (valeur && *valeur) return true;
  }
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "-platform") == 0 || std::strcmp(argv[i], "--platform") == 0) return true;
  return false;
}
