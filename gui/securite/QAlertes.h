#pragma once
// The "Alertes" panel of the editor: the safety findings of the routine as it stands,
// recomputed on a worker thread after each change, listed in French; a click on a line shows
// its sheet and selects what the kites fly then (a second click, the other kite's element).
#include <QDockWidget>
#include <QFutureWatcher>

#include <vector>

#include "securite/Alertes.h"

class QToolButton;
class QListWidget;
class QListWidgetItem;
class TFenCadre2;

class QAlertes : public QDockWidget {
  Q_OBJECT
public:
  QAlertes(TFenCadre2& cadre, QWidget* parent = nullptr);
  ~QAlertes() override;

  QListWidget* Liste() const { return liste_; }
  // "Alertes : N", for the window's status bar; a click on it opens the panel.
  QToolButton* Compte() const { return compte_; }
  // Whether findings are being computed or wait to be shown.
  bool EnCours() const { return enCours_; }

  // Computes again from the document as it is now: at once if the worker is free, else as
  // soon as it is.
  void Relance();

signals:
  // The list and the marks show the findings of the routine as it is now.
  void AJour();

private:
  void Termine();
  void Clic(QListWidgetItem* item);

  TFenCadre2& cadre_;
  QListWidget* liste_;
  QToolButton* compte_;
  QFutureWatcher<std::vector<TAlerte>> watcher_;
  TReglagesSecurite reglages_;  // those of the computation under way
  bool relance_ = false;
  bool enCours_ = false;  // from the start of a computation until its findings are shown
  int observateur_ = 0;
  int derniereLigne_ = -1;
  bool second_ = false;
};
