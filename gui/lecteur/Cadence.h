#pragma once
// Paces the player's drawing: a frame only when the player wants one, and never more than one
// per refresh of the screen. Frames are asked of the window (QWindow::requestUpdate), which
// delivers them in step with the display where the platform can; where it cannot (X11 without
// a compositor answers after 5 ms), a frame that comes too early waits for its turn.
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;
class QWindow;

class QCadence : public QObject {
public:
  // `fenetre`: the top-level widget whose window gives the refreshes; `attendue`: whether a
  // frame is wanted now; `dessine`: draws one, true when it did.
  QCadence(QWidget* fenetre, std::function<bool()> attendue, std::function<bool()> dessine);

  // Something changed: a frame at the next refresh, if one is still wanted then.
  void Demande();
  // Frames drawn so far.
  long long Images() const { return images_; }

protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  void Tic();
  void Dessine();
  qint64 PeriodeNs() const;

  QWidget* fenetre_;
  std::function<bool()> attendue_;
  std::function<bool()> dessine_;
  QPointer<QWindow> suivie_;  // the window whose update requests are watched
  bool demandee_ = false;     // an update request of ours is on its way
  QTimer attente_;            // an early frame waits here for its turn
  QElapsedTimer horloge_;
  qint64 prochaine_ = 0;  // ns on horloge_: the earliest start of the next frame
  long long images_ = 0;
};
