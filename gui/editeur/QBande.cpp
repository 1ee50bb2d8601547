#include "gui/editeur/QBande.h"

#include "editor/FenListe.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "gui/editeur/QBarre.h"

#include <QMouseEvent>
#include <QPalette>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

QBande::QBande(TFenListe* liste, QWidget* parent) : QWidget(parent), liste_(liste) {
  setObjectName(QStringLiteral("bande"));
  QPalette blanc = palette();
  blanc.setColor(QPalette::Window, Qt::white);
  setPalette(blanc);
  setAutoFillBackground(true);
  vue_ = new QWidget(this);
  vue_->setObjectName(QStringLiteral("vueBarres"));
  verticale_ = new QScrollBar(Qt::Vertical, this);
  horizontale_ = new QScrollBar(Qt::Horizontal, this);
  for (QScrollBar* barre : {verticale_, horizontale_}) {
    barre->setFocusPolicy(Qt::NoFocus);
    connect(barre, &QScrollBar::valueChanged, this, [this] { Defile(); });
  }
}

QBande::~QBande() {
  for (QBarre* b : vue_->findChildren<QBarre*>(Qt::FindDirectChildrenOnly)) b->Lache();
}

void QBande::resizeEvent(QResizeEvent*) { Dispose(); }

void QBande::Dispose() {
  const int e = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const bool horizontale = liste_->BarreHorizontale;
  const int h = horizontale ? height() - e : height();
  verticale_->setGeometry(width() - e, 0, e, h);
  horizontale_->setGeometry(0, height() - e, width() - e, e);
  horizontale_->setVisible(horizontale);
  vue_->setGeometry(0, 0, width() - e, h);
}

void QBande::mousePressEvent(QMouseEvent* evenement) {
  // A click on the strip's free background shows where it is scrolled to.
  if (evenement->button() == Qt::LeftButton) liste_->EvLButtonDown();
}

void QBande::wheelEvent(QWheelEvent* evenement) {
  const QPoint cran = evenement->angleDelta();
  liste_->Molette(cran.x(), cran.y(), evenement->modifiers() & Qt::ShiftModifier);
  evenement->accept();
}

void QBande::Defile() {
  if (miseAJour_) return;
  liste_->ScrollTo(horizontale_->value(), verticale_->value());
  liste_->RetraceBD();
}

QBarre* QBande::Barre(const TBD* bd) const {
  for (QBarre* b : vue_->findChildren<QBarre*>(Qt::FindDirectChildrenOnly))
    if (b->Barre() == bd) return b;
  return nullptr;
}

void QBande::Barres() {
  if (miseAJour_) return;
  // The first bar of each new widget has been laid out at the height of no font: once the
  // widgets say theirs, the strip is laid out again.
  bool hauteurs = false;
  for (int k = 0; k < nbCV; ++k)
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
      TBD* bd = static_cast<TElt*>(n)->pBD;
      if (!bd || bd->Vue) continue;
      const int avant = bd->HauteurBarre;
      new QBarre(bd, vue_);
      hauteurs = hauteurs || bd->HauteurBarre != avant;
    }
  if (hauteurs) {
    // Calls this again, with no new bar.
    liste_->RetraceBD();
    return;
  }
  Dispose();
  const int x = -liste_->XPos * TFenListe::XUnit;
  for (QBarre* b : vue_->findChildren<QBarre*>(Qt::FindDirectChildrenOnly))
    if (b->Barre()) b->SetX(x);
  miseAJour_ = true;
  verticale_->setRange(0, std::max(liste_->YRange, 0));
  verticale_->setPageStep(std::max(1, vue_->height() / TFenListe::YUnit));
  verticale_->setValue(liste_->YPos);
  horizontale_->setRange(0, std::max(liste_->XRange, 0));
  horizontale_->setPageStep(std::max(1, vue_->width() / TFenListe::XUnit));
  horizontale_->setValue(liste_->XPos);
  miseAJour_ = false;
}
