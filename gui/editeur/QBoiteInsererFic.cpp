#include "gui/editeur/QBoiteInsererFic.h"

#include "editor/boites/BDInsererFic.h"
#include "gui/editeur/QBoites.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

QBoiteInsererFic::QBoiteInsererFic(TBD_InsererFic& bd, QWidget* parent) : QDialog(parent), bd_(bd) {
  setObjectName(QStringLiteral("BD_INSERERFIC"));
  setWindowTitle(QStringLiteral("Insérer Fichier"));
  constexpr int n = TBD_InsererFic::LONGUEUR_SAISIE;

  conserver_ = boites::Radio("conserver les temps", TBD_InsererFic::ID_CONSERVER);
  calcul_ = boites::Radio("décaler les temps ( par calcul ) ", TBD_InsererFic::ID_CALCUL);
  decaler_ = boites::Radio("décaler temps de  :", TBD_InsererFic::ID_DECALER);
  boites::Coche({{conserver_, bd.Conserver}, {calcul_, bd.Calcul}, {decaler_, bd.Decaler}});
  temps_ = boites::Saisie(bd.Temps, TBD_InsererFic::ID_TEMPS, n);
  auto* cadreTemps = new QGroupBox;
  auto* grilleTemps = new QGridLayout(cadreTemps);
  grilleTemps->addWidget(conserver_, 0, 0, 1, 2);
  grilleTemps->addWidget(calcul_, 1, 0, 1, 2);
  grilleTemps->addWidget(decaler_, 2, 0);
  grilleTemps->addWidget(temps_, 2, 1, Qt::AlignLeft);
  grilleTemps->setColumnStretch(1, 1);

  auto* cadreCV = new QGroupBox;
  auto* grilleCV = new QGridLayout(cadreCV);
  grilleCV->addWidget(new QLabel(QStringLiteral("Fichier en cours -  Fichier inséré")), 0, 0, 1, 2);
  for (int i = 0; i < NB_CV_MAX; ++i) {
    auto* libelle = new QLabel(QString::fromStdString(TBD_InsererFic::LibelleCV(i)));
    libelle->setObjectName(QString::number(TBD_InsererFic::ID_LIBELLE_CV + i));
    correspondance_[i] = boites::Saisie(bd.Correspondance[i], TBD_InsererFic::ID_CORRESPONDANCE + i, n);
    libelle->setBuddy(correspondance_[i]);
    grilleCV->addWidget(libelle, i + 1, 0);
    grilleCV->addWidget(correspondance_[i], i + 1, 1, Qt::AlignLeft);
    // The rows of kites the document lacks take no room either.
    libelle->setVisible(i < bd.NbLignes);
    correspondance_[i]->setVisible(i < bd.NbLignes);
  }
  grilleCV->setColumnStretch(1, 1);

  decalageX_ = boites::Saisie(bd.DecalageX, TBD_InsererFic::ID_DECALAGE_X, n);
  decalageY_ = boites::Saisie(bd.DecalageY, TBD_InsererFic::ID_DECALAGE_Y, n);
  auto* decalages = new QFormLayout;
  decalages->addRow(QStringLiteral("* Décalage en x :"), decalageX_);
  decalages->addRow(QStringLiteral("* Décalage en y :"), decalageY_);

  auto* page = new QVBoxLayout(this);
  page->addWidget(new QLabel(QStringLiteral("* Décalage en temps des éléments insérés :")));
  page->addWidget(cadreTemps);
  page->addWidget(new QLabel(QStringLiteral("* Correspondances des CV :")));
  page->addWidget(cadreCV);
  page->addLayout(decalages);
  page->addWidget(boites::OKAnnuler(this));
  page->setSizeConstraint(QLayout::SetFixedSize);
}

void QBoiteInsererFic::accept() {
  bd_.Conserver = conserver_->isChecked();
  bd_.Calcul = calcul_->isChecked();
  bd_.Decaler = decaler_->isChecked();
  bd_.Temps = boites::Texte(temps_);
  for (int i = 0; i < NB_CV_MAX; ++i) bd_.Correspondance[i] = boites::Texte(correspondance_[i]);
  bd_.DecalageX = boites::Texte(decalageX_);
  bd_.DecalageY = boites::Texte(decalageY_);
  if (bd_.CloseWindow(1)) QDialog::accept();
}
