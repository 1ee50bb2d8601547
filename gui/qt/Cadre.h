#pragma once
// Places a top-level window so that its frame, title bar and borders included, covers a
// given rectangle, as the program's window positions and sizes were always meant; with a
// settings key, the frame the window had when the application last ended comes first.
#include "gui/qt/Placement.h"

#include <QObject>
#include <QRect>
#include <QString>

class QWidget;

class TPlacementCadre : public QObject {
public:
  // Owned by the window; moves and sizes it at once. With a key, the frame remembered under
  // it replaces `cadre` when it still shows on a present screen, and the window's frame is
  // remembered there when the application ends.
  TPlacementCadre(QWidget* fenetre, const QRect& cadre, const QString& cle = {});

  // The frame remembered under a key; an empty one for none, or for anything but a frame.
  static QRect Memorise(const QString& cle);
  // The available areas of the present screens.
  static QList<QRect> Ecrans();
  // Remembers the window's frame now under its key: its present one while it is shown in
  // its normal state, else the last such one. Nothing for a window never shown.
  void Retiens();

protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  QWidget* fenetre_;
  QRect cadre_;
  QString cle_;
  bool corrige_ = false;  // the frame's decorations have been taken into account
  QRect dernier_;         // the frame last seen in the normal state
};
