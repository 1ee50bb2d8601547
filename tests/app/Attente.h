#pragma once
// Lets the event loop run until a condition holds, for what the X server does in its own time.
// A busy machine makes the server and the software GL slow, never wrong: only a condition that
// still fails after a minute is a fault.
#include <QApplication>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>

#include <functional>

template <class Condition>
bool AttendQue(Condition condition) {
  QDeadlineTimer limite(60000);
  while (!condition()) {
    if (limite.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QThread::msleep(5);
  }
  return true;
}

// Runs `geste` on the first modal dialog of type D to open, from inside its own event loop.
template <class D>
void QuandOuvert(std::function<void(D*)> geste) {
  auto* sonde = new QTimer(qApp);
  QObject::connect(sonde, &QTimer::timeout, sonde, [sonde, geste] {
    if (auto* d = qobject_cast<D*>(QApplication::activeModalWidget())) {
      sonde->stop();
      sonde->deleteLater();
      geste(d);
    }
  });
  sonde->start(10);
}
