#include "platform/qt/editeur/QFeuille.h"

#include "editor/FenDessin.h"
#include "platform/qt/DCQt.h"

#include <QPaintEvent>
#include <QPainter>

QFeuille::QFeuille(QWidget* parent) : QWidget(parent) {
  // A sheet is white under its drawing, whatever the desktop's theme.
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, Qt::white);
  setPalette(palette);
  setAutoFillBackground(true);
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
}
