#pragma once
// The editor's main window: a view over TFenCadre2.
#include "editor/FenCadre2.h"

#include <QMainWindow>

class QFeuille;

class QFenCadre2 : public QMainWindow {
  Q_OBJECT
public:
  explicit QFenCadre2(QWidget* parent = nullptr);

  TFenCadre2& Cadre() { return cadre_; }
  // The widget of the active sheet.
  QFeuille* Feuille() const { return feuille_; }

protected:
  void closeEvent(QCloseEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;

private:
  TFenCadre2 cadre_;
  QFeuille* feuille_;
};
