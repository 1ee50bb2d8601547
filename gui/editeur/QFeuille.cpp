#include "gui/editeur/QFeuille.h"

#include "editor/FenDessin.h"
#include "gui/qt/DCQt.h"
#include "securite/Alertes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace {
TPoint Point(const QMouseEvent* e) {
  const QPoint p = e->position().toPoint();
  return TPoint(p.x(), p.y());
}
unsigned Etat(const QMouseEvent* e) { return e->modifiers() & Qt::ShiftModifier ? MK_SHIFT : 0; }
}  // namespace

QFeuille::QFeuille(QWidget* parent) : QWidget(parent) {
  // A sheet is white under its drawing, whatever the desktop's theme.
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, Qt::white);
  setPalette(palette);
  setAutoFillBackground(true);
  setObjectName(QStringLiteral("feuille"));
  // The rubber band follows the mouse without a button held down.
  setMouseTracking(true);
  // Escape and Delete must reach the sheet, which takes the focus on every click.
  setFocusPolicy(Qt::ClickFocus);
}

void QFeuille::SetFeuille(TFenDessin* feuille) {
  feuille_ = feuille;
  if (feuille_) feuille_->SetTailleClient(width(), height());
  update();
}

void QFeuille::resizeEvent(QResizeEvent* evenement) {
  QWidget::resizeEvent(evenement);
  if (feuille_) feuille_->SetTailleClient(width(), height());
}

void QFeuille::paintEvent(QPaintEvent* evenement) {
  if (!feuille_) return;
  QPainter painter(this);
  TDCFenetre dc(*this, &painter);
  const QRect r = evenement->rect();
  // The whole sheet is drawn again; Qt clips it to what was invalidated.
  feuille_->Paint(dc, true, TRect(r.left(), r.top(), r.right() + 1, r.bottom() + 1));
  // The safety marks over all the sheet shows, in the window only.
  DessineAlertes(dc, feuille_->Num);
}

void QFeuille::mousePressEvent(QMouseEvent* evenement) {
  if (!feuille_) return;
  if (evenement->button() == Qt::LeftButton)
    feuille_->EvLButtonDown(Etat(evenement), Point(evenement));
  else if (evenement->button() == Qt::RightButton)
    feuille_->EvRButtonDown(Etat(evenement), Point(evenement));
}

void QFeuille::mouseReleaseEvent(QMouseEvent* evenement) {
  if (feuille_ && evenement->button() == Qt::LeftButton) feuille_->EvLButtonUp(Etat(evenement), Point(evenement));
}

void QFeuille::mouseMoveEvent(QMouseEvent* evenement) {
  if (feuille_) feuille_->EvMouseMove(Etat(evenement), Point(evenement));
}

void QFeuille::keyPressEvent(QKeyEvent* evenement) {
  if (!feuille_) {
    QWidget::keyPressEvent(evenement);
    return;
  }
  if (evenement->key() == Qt::Key_Escape)
    feuille_->EvChar(CAR_ECHAP, 1, 0);
  else if (evenement->key() == Qt::Key_Delete)
    feuille_->EvKeyDown(VK_DELETE, 1, 0);
  else
    QWidget::keyPressEvent(evenement);
}
