#include "gui/editeur/PanneauBas.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

void MontrePanneau(QMainWindow& fenetre, QDockWidget& dock, bool montrer, int hauteur) {
  if (montrer == !dock.isHidden()) return;
  QWidget* centre = fenetre.centralWidget();
  const int avant = centre ? centre->height() : 0;
  dock.setVisible(montrer);
  if (dock.isFloating() || !centre) return;
  if (montrer) fenetre.resizeDocks({&dock}, {hauteur}, Qt::Vertical);
  // Once the layout has placed the panel, the window takes back what the sheet's area lost or
  // gave up.
  QTimer::singleShot(0, &fenetre, [f = QPointer<QMainWindow>(&fenetre), avant] {
    if (f && f->centralWidget()) f->resize(f->width(), f->height() + avant - f->centralWidget()->height());
  });
}
