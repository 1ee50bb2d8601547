#include "gui/qt/Cadre.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

TPlacementCadre::TPlacementCadre(QWidget* fenetre, const QRect& cadre, const QString& cle)
    : QObject(fenetre), fenetre_(fenetre), cadre_(cadre), cle_(cle) {
  if (!cle_.isEmpty()) {
    cadre_ = CadreRetenu(Memorise(cle_), cadre, Ecrans());
    // The windows outlive the event loop: their frames are still there once it has ended.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &TPlacementCadre::Retiens);
  }
  // Qt moves the frame but sizes the inside; the decorations are unknown until the window
  // manager has framed the shown window, so the inside gets the whole size for now.
  fenetre_->move(cadre_.topLeft());
  fenetre_->resize(cadre_.size());
  fenetre_->installEventFilter(this);
}

QRect TPlacementCadre::Memorise(const QString& cle) {
  const QVariant valeur = QSettings().value(cle);
  return valeur.typeId() == QMetaType::QRect ? valeur.toRect() : QRect();
}

QList<QRect> TPlacementCadre::Ecrans() {
  QList<QRect> ecrans;
  for (const QScreen* ecran : QGuiApplication::screens()) ecrans.append(ecran->availableGeometry());
  return ecrans;
}

void TPlacementCadre::Retiens() {
  if (cle_.isEmpty()) return;
  if (fenetre_->isVisible() && fenetre_->windowState() == Qt::WindowNoState) dernier_ = fenetre_->frameGeometry();
  if (dernier_.isValid()) QSettings().setValue(cle_, dernier_);
}

bool TPlacementCadre::eventFilter(QObject* objet, QEvent* evenement) {
  const auto type = evenement->type();
  if (objet != fenetre_ || (type != QEvent::Move && type != QEvent::Resize && type != QEvent::Show) ||
      !fenetre_->isVisible())
    return false;
  if (!corrige_) {
    const QSize decor = fenetre_->frameGeometry().size() - fenetre_->size();
    // Without a window manager there is no frame: nothing to correct, ever.
    if (decor.width() > 0 || decor.height() > 0) {
      corrige_ = true;
      fenetre_->resize(cadre_.size() - decor);
      fenetre_->move(cadre_.topLeft());
    }
  }
  if (fenetre_->windowState() == Qt::WindowNoState) dernier_ = fenetre_->frameGeometry();
  return false;
}
