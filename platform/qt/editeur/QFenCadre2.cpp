#include "platform/qt/editeur/QFenCadre2.h"

#include "platform/qt/Cadre.h"
#include "platform/qt/editeur/QFeuille.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QResizeEvent>
#include <QStatusBar>
#include <QVBoxLayout>

QFenCadre2::QFenCadre2(QWidget* parent) : QMainWindow(parent) {
  setWindowTitle(QStringLiteral("Dessin Trajectoires"));
  new TPlacementCadre(this, QRect(20, 20, 600, 600));
  setStatusBar(new QStatusBar(this));
  cadre_.SetupWindow();
  // The active sheet on top, the whole width and half as high; the strip of the property
  // bars will take the rest.
  auto* client = new QWidget(this);
  auto* pile = new QVBoxLayout(client);
  pile->setContentsMargins(0, 0, 0, 0);
  pile->setSpacing(0);
  feuille_ = new QFeuille(client);
  pile->addWidget(feuille_);
  pile->addStretch(1);
  setCentralWidget(client);
  feuille_->SetFeuille(cadre_.pFenDesActive);
}

void QFenCadre2::resizeEvent(QResizeEvent* evenement) {
  QMainWindow::resizeEvent(evenement);
  feuille_->setFixedHeight(centralWidget()->width() / 2);
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
