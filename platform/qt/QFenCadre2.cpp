#include "platform/qt/QFenCadre2.h"

#include "platform/qt/Cadre.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QStatusBar>

QFenCadre2::QFenCadre2(QWidget* parent) : QMainWindow(parent) {
  setWindowTitle(QStringLiteral("Dessin Trajectoires"));
  new TPlacementCadre(this, QRect(20, 20, 600, 600));
  setStatusBar(new QStatusBar(this));
  cadre_.SetupWindow();
}

void QFenCadre2::closeEvent(QCloseEvent* evenement) {
  if (!cadre_.CanClose()) {
    evenement->ignore();
    return;
  }
  evenement->accept();
  // exit(), not quit(): quit() first asks every window to close, and the player refuses.
  QCoreApplication::exit(0);
}
