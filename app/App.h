#pragma once
// The application: its dialogs and its two windows. The player draws its scene itself, when
// it has something new to show.
#include "gui/qt/QtDialogues.h"
#include "gui/editeur/QFenCadre2.h"
#include "gui/lecteur/QFenCadre.h"
#include "gui/son/SonSDL.h"
#include "gui/session/Recuperation.h"
#include "gui/session/SuiviModification.h"

#include <QObject>

class QApplication;
#include <memory>
#include <string>

class TApp : public QObject {
public:
  // The QApplication must exist already.
  TApp();
  ~TApp() override;

  // Installs the Qt dialogs, creates the editor then the player and shows both.
  void Demarre();
  // Opens a routine as "&Ouvrir" does once its dialog has answered.
  void Ouvre(const std::string& chemin);
  // Offers the work that editors stopped without saving; see gui/session/Recuperation.h.
  void ProposeRecuperations();

  QFenCadre2* Editeur() const { return editeur_.get(); }
  QFenCadre* Lecteur() const { return lecteur_.get(); }

private:
  TQtDialogues dialogues_;  // declared first: the windows may still use it while dying
  TSonSDL son_;
  std::unique_ptr<QFenCadre2> editeur_;
  std::unique_ptr<QFenCadre> lecteur_;
  std::unique_ptr<QSuiviModification> suivi_;
  std::unique_ptr<QRecuperation> recuperation_;
};

// The program's name for its settings (~/.config/trajectoires/trajectoires.conf) and Qt's
// French words, before any window.
void PrepareApplication(QApplication& application);

// Whether Qt can reach a display: a DISPLAY or WAYLAND_DISPLAY in the environment, or a
// platform chosen by QT_QPA_PLATFORM or by "-platform" on the command line.
bool AffichageDisponible(int argc, char** argv);
