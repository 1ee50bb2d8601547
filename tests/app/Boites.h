#pragma once
// The editor's boxes, driven as the user would: clicks on the controls named by their ids,
// typing, then OK or Annuler.
#include <gtest/gtest.h>

#include "Attente.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include <functional>

template <class W>
W* Controle(QWidget* boite, int id) {
  W* w = boite->findChild<W*>(QString::number(id));
  EXPECT_NE(w, nullptr) << "contrôle " << id;
  return w;
}

// On the round button itself: a radio button stretched by its layout does not answer
// clicks past its text.
inline void Clique(QRadioButton* r) {
  QStyleOptionButton option;
  option.initFrom(r);
  const QRect rond = r->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, r);
  QTest::mouseClick(r, Qt::LeftButton, {}, rond.center());
}

inline void Tape(QLineEdit* e, const char* texte) {
  e->selectAll();
  QTest::keyClicks(e, QString::fromUtf8(texte));
}

inline void Bouton(QWidget* boite, QDialogButtonBox::StandardButton b) {
  QTest::mouseClick(boite->findChild<QDialogButtonBox*>()->button(b), Qt::LeftButton);
}

// Runs `geste` on the box of type D once open; a box a failed step left open is closed.
template <class D>
void Pilote(std::function<void(D*)> geste) {
  QuandOuvert<D>([geste](D* d) {
    geste(d);
    if (d->isVisible()) d->reject();
  });
}
