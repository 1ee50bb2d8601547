#include "gui/editeur/QBoiteFeuille.h"

#include "editor/boites/BDFeuille.h"
#include "gui/editeur/QBoites.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

QBoiteFeuille::QBoiteFeuille(TBD_Feuille& bd, QWidget* parent) : QDialog(parent), bd_(bd) {
  setObjectName(QStringLiteral("BD_FEUILLE"));
  setWindowTitle(QStringLiteral("Enregistrer Feuilles"));

  tout_ = boites::Radio("Tout", TBD_Feuille::ID_TOUT);
  feuilles_ = boites::Radio("Feuilles :", TBD_Feuille::ID_FEUILLES);
  premiere_ = boites::Saisie(bd.Premiere, TBD_Feuille::ID_PREMIERE, TBD_Feuille::LONGUEUR_SAISIE);
  derniere_ = boites::Saisie(bd.Derniere, TBD_Feuille::ID_DERNIERE, TBD_Feuille::LONGUEUR_SAISIE);
  MontreChoix();
  premiere_->installEventFilter(this);
  derniere_->installEventFilter(this);

  auto* de = new QLabel(QStringLiteral("de : "));
  de->setBuddy(premiere_);
  auto* a = new QLabel(QStringLiteral("à : "));
  a->setBuddy(derniere_);
  auto* cadre = new QGroupBox;
  auto* grille = new QGridLayout(cadre);
  grille->addWidget(tout_, 0, 0);
  grille->addWidget(feuilles_, 1, 0);
  grille->addWidget(de, 1, 1);
  grille->addWidget(premiere_, 1, 2);
  grille->addWidget(a, 1, 3);
  grille->addWidget(derniere_, 1, 4);

  auto* page = new QVBoxLayout(this);
  page->addWidget(cadre);
  page->addWidget(boites::OKAnnuler(this));
  page->setSizeConstraint(QLayout::SetFixedSize);
  // The radio buttons first: focus landing in a number at opening would choose the range.
  setTabOrder(tout_, feuilles_);
  setTabOrder(feuilles_, premiere_);
  setTabOrder(premiere_, derniere_);
  tout_->setFocus();
}

void QBoiteFeuille::MontreChoix() { boites::Coche({{tout_, bd_.Tout}, {feuilles_, bd_.Feuilles}}); }

bool QBoiteFeuille::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() == QEvent::FocusIn && (objet == premiere_ || objet == derniere_)) {
    // The box holds the choice only between OK's: take the clicks made since.
    bd_.Tout = tout_->isChecked();
    bd_.Feuilles = feuilles_->isChecked();
    bd_.TrtFeuille();
    MontreChoix();
  }
  return QDialog::eventFilter(objet, evenement);
}

void QBoiteFeuille::accept() {
  bd_.Tout = tout_->isChecked();
  bd_.Feuilles = feuilles_->isChecked();
  bd_.Premiere = boites::Texte(premiere_);
  bd_.Derniere = boites::Texte(derniere_);
  if (bd_.CloseWindow(1)) QDialog::accept();
}
