#pragma once
// The application: its dialogs, its two windows and its idle work.
#include "platform/qt/QFenCadre.h"
#include "platform/qt/QFenCadre2.h"
#include "platform/qt/QtDialogues.h"
#include "platform/sdl/SonSDL.h"

#include <QObject>
#include <QTimer>
#include <memory>

class TApp : public QObject {
public:
  // The QApplication must exist already.
  TApp();
  ~TApp() override;

  // Installs the Qt dialogs, creates the editor then the player and shows both.
  void Demarre();

  // The work done whenever no event is waiting; true while a 3D scene is being drawn.
  bool IdleAction();
  // Milliseconds between two idle calls: 0 while a scene runs, a slow poll otherwise.
  int IntervalleIdle() const { return idle_.interval(); }

  QFenCadre2* Editeur() const { return editeur_.get(); }
  QFenCadre* Lecteur() const { return lecteur_.get(); }

  static constexpr int IDLE_SANS_SCENE_MS = 50;

private:
  TQtDialogues dialogues_;  // declared first: the windows may still use it while dying
  TSonSDL son_;
  std::unique_ptr<QFenCadre2> editeur_;
  std::unique_ptr<QFenCadre> lecteur_;
  QTimer idle_;
};

// Whether Qt can reach a display: a DISPLAY or WAYLAND_DISPLAY in the environment, or a
// platform chosen by QT_QPA_PLATFORM or by "-platform" on the command line.
bool AffichageDisponible(int argc, char** argv);
