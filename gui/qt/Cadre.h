#pragma once
// Places a top-level window so that its frame, title bar and borders included, covers a
// given rectangle, as the program's window positions and sizes were always meant.
#include <QObject>
#include <QRect>

class QWidget;

class TPlacementCadre : public QObject {
public:
  // Owned by the window; moves and sizes it at once.
  TPlacementCadre(QWidget* fenetre, const QRect& cadre);

protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  QWidget* fenetre_;
  QRect cadre_;
};
