#include "gui/securite/QBoiteSecurite.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/editeur/QBoites.h"

QBoiteSecurite::QBoiteSecurite(TBD_Securite& bd, QWidget* parent) : QDialog(parent), bd_(bd) {
  setObjectName(QStringLiteral("BD_SECURITE"));
  setWindowTitle(QStringLiteral("Sécurité"));
  auto* formulaire = new QFormLayout;
  for (int i = 0; i < TBD_Securite::NB_CHAMPS; ++i) {
    saisies_[i] = boites::Saisie(bd.Textes[i], 700 + i, TBD_Securite::LONGUEUR_SAISIE);
    auto* ligne = new QHBoxLayout;
    ligne->addWidget(saisies_[i]);
    ligne->addWidget(new QLabel(QString::fromUtf8(TBD_Securite::Unite(i))));
    ligne->addStretch();
    formulaire->addRow(QString::fromUtf8(TBD_Securite::Libelle(i)) + QStringLiteral(" :"), ligne);
  }
  auto* page = new QVBoxLayout(this);
  page->addLayout(formulaire);
  page->addWidget(boites::OKAnnuler(this));
  page->setSizeConstraint(QLayout::SetFixedSize);
}

void QBoiteSecurite::accept() {
  for (int i = 0; i < TBD_Securite::NB_CHAMPS; ++i) bd_.Textes[i] = boites::Texte(saisies_[i]);
  if (bd_.CloseWindow(1)) QDialog::accept();
}
