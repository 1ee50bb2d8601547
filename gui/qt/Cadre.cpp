#include "gui/qt/Cadre.h"

#include <QEvent>
#include <QWidget>

TPlacementCadre::TPlacementCadre(QWidget* fenetre, const QRect& cadre)
    : QObject(fenetre), fenetre_(fenetre), cadre_(cadre) {
  // Qt moves the frame but sizes the inside; the decorations are unknown until the window
  // manager has framed the shown window, so the inside gets the whole size for now.
  fenetre_->move(cadre_.topLeft());
  fenetre_->resize(cadre_.size());
  fenetre_->installEventFilter(this);
}

bool TPlacementCadre::eventFilter(QObject* objet, QEvent* evenement) {
  const auto type = evenement->type();
  if (objet != fenetre_ || (type != QEvent::Move && type != QEvent::Resize && type != QEvent::Show) ||
      !fenetre_->isVisible())
    return false;
  const QSize decor = fenetre_->frameGeometry().size() - fenetre_->size();
  // Without a window manager there is no frame: nothing to correct, ever.
  if (decor.width() <= 0 && decor.height() <= 0) return false;
  fenetre_->removeEventFilter(this);
  fenetre_->resize(cadre_.size() - decor);
  fenetre_->move(cadre_.topLeft());
  return false;
}
