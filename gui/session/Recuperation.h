#pragma once
// The editor's recovery copies, driven by a timer (see session/Recuperation.h): this editor's
// copy is written while the document is modified and removed once it is saved or the editor
// closes; the copies of editors that are gone are offered at start.
#include "session/Recuperation.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <string>

class QWidget;
class TFenCadre2;

class QRecuperation : public QObject {
  Q_OBJECT
public:
  // Watches the document's modified state from now on; copies go to `dossier`.
  explicit QRecuperation(std::filesystem::path dossier = Dossier(), QObject* parent = nullptr);
  ~QRecuperation() override;

  // $XDG_STATE_HOME/trajectoires/recuperation, by default ~/.local/state/trajectoires/recuperation.
  static std::filesystem::path Dossier();

  // Shows the copies of editors that are gone, if any, over `parent`, and does what the user
  // chose for each. True when one was opened in `cadre`.
  bool Propose(TFenCadre2& cadre, QWidget* parent);

  // This editor's copy.
  const TCopieRecuperation& Copie() const { return copie_; }

private:
  void Change(bool modifie);
  void Arme();
  void Ecrit();
  // Writes this editor's copy now; true when it holds the document's text.
  bool Sauve();
  std::int64_t Maintenant() const { return horloge_.elapsed(); }

  std::filesystem::path dossier_;
  TCopieRecuperation copie_;
  QLockFile verrou_;
  QElapsedTimer horloge_;
  QTimer minuterie_;
  TCalendrierRecuperation calendrier_;
  std::string ecrit_;  // the text of the copy on disk; empty when there is none
  int observateur_ = 0;
};
