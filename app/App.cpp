#include "app/App.h"

#include "demo/D3DDemo.h"
#include "demo/player/FenApp.h"
#include "model/Document.h"
#include "platform/Rendu.h"
#include "platform/Son.h"

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
  // The scene and its music go before the player's view, whose context holds the pictures.
  if (lecteur_) lecteur_->Cadre().Client().FermeDemo();
  SetRendu(nullptr);
  if (&Son() == &son_) SetSon(nullptr);
  lecteur_.reset();
  editeur_.reset();
  if (&Dialogues() == &dialogues_) SetDialogues(nullptr);
}

void TApp::Demarre() {
  SetDialogues(&dialogues_);
  editeur_ = std::make_unique<QFenCadre2>();
  dialogues_.SetParent(editeur_.get());
  dialogues_.SetBarreStatut(editeur_->statusBar());
  SetSon(&son_);
  lecteur_ = std::make_unique<QFenCadre>();
  SetRendu(&lecteur_->Vue()->Rendu());
  editeur_->show();
  lecteur_->show();
  idle_.start();
}

bool TApp::IdleAction() {
  // Time comes from the clock inside Go, so the frame rate does not change the speed.
  const bool scene = lecteur_ && lecteur_->Cadre().Client().IdleAction();
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
