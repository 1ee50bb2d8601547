#include "gui/editeur/QBoiteColler.h"

#include "editor/boites/BDColler.h"
#include "gui/editeur/QBoites.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

QBoiteColler::QBoiteColler(TBD_Coller& bd, QWidget* parent) : QDialog(parent), bd_(bd) {
  setObjectName(QStringLiteral("BD_COLLER"));
  setWindowTitle(QStringLiteral("Coller"));

  auto* cadre = new QGroupBox;
  auto* colonne = new QVBoxLayout(cadre);
  for (int i = 0; i < 5; ++i) {
    const int id = TBD_Coller::ID_PREMIER_MODE + i;
    modes_[i] = boites::Radio(TBD_Coller::TexteMode(id), id);
    colonne->addWidget(modes_[i]);
  }
  boites::Coche({{modes_[0], bd.Coche[0]}, {modes_[1], bd.Coche[1]}, {modes_[2], bd.Coche[2]},
                 {modes_[3], bd.Coche[3]}, {modes_[4], bd.Coche[4]}});

  decalage_ = boites::Saisie(bd.Decalage, TBD_Coller::ID_DECALAGE, TBD_Coller::LONGUEUR_DECALAGE);
  auto* libelle = new QLabel(QStringLiteral("Décalage de temps : "));
  libelle->setBuddy(decalage_);
  auto* temps = new QGridLayout;
  temps->addWidget(libelle, 0, 0);
  temps->addWidget(decalage_, 0, 1);
  temps->addWidget(new QLabel(QStringLiteral("1/100 s")), 0, 2);
  temps->addWidget(new QLabel(QStringLiteral("( pour poursuite  t <> 0)")), 1, 0, 1, 3);
  temps->setColumnStretch(3, 1);

  auto* page = new QVBoxLayout(this);
  page->addWidget(cadre);
  page->addLayout(temps);
  page->addWidget(boites::OKAnnuler(this));
  page->setSizeConstraint(QLayout::SetFixedSize);
}

void QBoiteColler::accept() {
  for (int i = 0; i < 5; ++i) bd_.Coche[i] = modes_[i]->isChecked();
  bd_.Decalage = boites::Texte(decalage_);
  if (bd_.CloseWindow(1)) QDialog::accept();
}
