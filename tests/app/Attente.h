#pragma once
// Lets the event loop run until a condition holds, for what the X server does in its own time.
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

template <class Condition>
bool AttendQue(Condition condition, int delaiMs = 5000) {
  QDeadlineTimer limite(delaiMs);
  while (!condition()) {
    if (limite.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QThread::msleep(5);
  }
  return true;
}
