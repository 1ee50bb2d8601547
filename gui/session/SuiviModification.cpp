#include "gui/session/SuiviModification.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include "session/Modification.h"

QSuiviModification::QSuiviModification(QObject* parent) : QObject(parent) {
  QCoreApplication::instance()->installEventFilter(this);
}

QSuiviModification::~QSuiviModification() {
  if (QCoreApplication* app = QCoreApplication::instance()) app->removeEventFilter(this);
}

bool QSuiviModification::eventFilter(QObject* objet, QEvent* evenement) {
  switch (evenement->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::FocusOut:
      // Once the event has been handled, and once for a burst of them.
      if (!Prevu) {
        Prevu = true;
        QTimer::singleShot(0, this, [this] {
          Prevu = false;
          VerifieModification();
        });
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(objet, evenement);
}
