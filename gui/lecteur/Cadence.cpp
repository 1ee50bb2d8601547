#include "gui/lecteur/Cadence.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

QCadence::QCadence(QWidget* fenetre, std::function<bool()> attendue, std::function<bool()> dessine)
    : QObject(fenetre), fenetre_(fenetre), attendue_(std::move(attendue)), dessine_(std::move(dessine)) {
  attente_.setSingleShot(true);
  attente_.setTimerType(Qt::PreciseTimer);
  connect(&attente_, &QTimer::timeout, this, [this] { Tic(); });
  horloge_.start();
}

void QCadence::Demande() {
  if (attente_.isActive()) return;  // a frame is due already
  QWindow* fenetre = fenetre_->windowHandle();
  // Not made yet: its first exposure resizes the view, which asks again.
  if (!fenetre) return;
  if (fenetre != suivie_) {
    if (suivie_) suivie_->removeEventFilter(this);
    fenetre->installEventFilter(this);
    suivie_ = fenetre;
  }
  demandee_ = true;
  fenetre->requestUpdate();  // several requests before the refresh make one
}

bool QCadence::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet != suivie_ || evenement->type() != QEvent::UpdateRequest || !demandee_) return false;
  demandee_ = false;
  Tic();
  // Kept from the window, which would repaint all its widgets: the view asks for its own
  // repaint when the new picture is there.
  return true;
}

void QCadence::Tic() {
  if (!attendue_()) return;  // nothing new to show: asleep until the next Demande
  const qint64 reste = prochaine_ - horloge_.nsecsElapsed();
  if (reste > 0) {
    attente_.start(static_cast<int>((reste + 999'999) / 1'000'000));
    return;
  }
  Dessine();
}

void QCadence::Dessine() {
  const qint64 maintenant = horloge_.nsecsElapsed();
  const qint64 periode = PeriodeNs();
  // On time, frames keep to the grid of refreshes, so that waiting in whole milliseconds does
  // not lower the rate; a late one starts the grid again from now.
  prochaine_ = maintenant - prochaine_ < periode / 2 ? prochaine_ + periode : maintenant + periode;
  if (dessine_()) ++images_;
  if (attendue_()) Demande();
}

qint64 QCadence::PeriodeNs() const {
  const QScreen* ecran = fenetre_->screen();
  const qreal hz = ecran ? ecran->refreshRate() : 0;
  // Some servers report no rate, or a made-up one.
  return static_cast<qint64>(1e9 / (hz >= 20 && hz <= 500 ? hz : 60.0));
}
