#include "platform/qt/QFenCadre.h"

#include "platform/qt/Cadre.h"

#include <QCloseEvent>
#include <QStatusBar>

QFenCadre::QFenCadre(QWidget* parent) : QMainWindow(parent) {
  setWindowTitle(QStringLiteral("CV"));
  new TPlacementCadre(this, QRect(400, 200, 400, 290));
  setStatusBar(new QStatusBar(this));
}

void QFenCadre::closeEvent(QCloseEvent* evenement) {
  if (cadre_.CanClose())
    evenement->accept();
  else
    evenement->ignore();
}
