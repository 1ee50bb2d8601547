#pragma once
// The player's main window: a view over TFenCadre.
#include "demo/player/FenCadre.h"

#include <QMainWindow>

class QFenCadre : public QMainWindow {
  Q_OBJECT
public:
  explicit QFenCadre(QWidget* parent = nullptr);

  TFenCadre& Cadre() { return cadre_; }

protected:
  void closeEvent(QCloseEvent* evenement) override;

private:
  TFenCadre cadre_;
};
