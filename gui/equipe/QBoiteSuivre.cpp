#include "gui/equipe/QBoiteSuivre.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

#include "editor/boites/BDColler.h"
#include "equipe/BDSuivre.h"
#include "gui/editeur/QBoites.h"

namespace {
constexpr int DELAI_MAX = 100000;  // 1000 s: more than any routine lasts
const QString CLE_SUIVEURS = QStringLiteral("suivre/suiveurs");
const QString CLE_DELAI = QStringLiteral("suivre/delai");
const QString CLE_MODE = QStringLiteral("suivre/mode");

// The last choice of an earlier session, where the settings hold one that makes sense.
void LitReglages(TParamSuivre& p) {
  QSettings reglages;
  bool ok = false;
  if (const int d = reglages.value(CLE_DELAI).toInt(&ok); ok && d >= 0 && d <= DELAI_MAX) p.Delai = d;
  if (const int m = reglages.value(CLE_MODE).toInt(&ok);
      ok && m >= TBD_Coller::ID_PREMIER_MODE && m <= TBD_Coller::ID_DERNIER_MODE)
    p.Mode = m;
  if (reglages.contains(CLE_SUIVEURS)) {
    std::vector<int> suiveurs;
    for (const QString& s : reglages.value(CLE_SUIVEURS).toString().split(QLatin1Char(','), Qt::SkipEmptyParts))
      if (const int k = s.toInt(&ok); ok && k >= 0 && k < 6) suiveurs.push_back(k);
    p.Suiveurs = suiveurs;
  }
}

void EcritReglages(const TParamSuivre& p) {
  QStringList suiveurs;
  for (int k : p.Suiveurs) suiveurs << QString::number(k);
  QSettings reglages;
  reglages.setValue(CLE_SUIVEURS, suiveurs.join(QLatin1Char(',')));
  reglages.setValue(CLE_DELAI, p.Delai);
  reglages.setValue(CLE_MODE, p.Mode);
}
}  // namespace

QBoiteSuivre::QBoiteSuivre(TBD_Suivre& bd, QWidget* parent) : QDialog(parent), bd_(bd) {
  setObjectName(QStringLiteral("BD_SUIVRE"));
  setWindowTitle(QStringLiteral("Suivre le meneur"));
  LitReglages(*bd.Param);

  auto* groupeSuiveurs = new QGroupBox(QStringLiteral("CV suiveurs, dans l'ordre de leur numéro"));
  auto* colonneSuiveurs = new QVBoxLayout(groupeSuiveurs);
  for (int k = 0; k < bd.NbCV; ++k) {
    auto* c = new QCheckBox(QStringLiteral("CV n°%1").arg(k + 1));
    c->setObjectName(QStringLiteral("suiveur%1").arg(k + 1));
    bool coche = false;
    for (int s : bd.Param->Suiveurs) coche = coche || s == k;
    c->setChecked(coche && k != bd.Meneur);
    if (k == bd.Meneur) {
      c->setEnabled(false);
      c->setText(c->text() + QStringLiteral(" (meneur)"));
    }
    colonneSuiveurs->addWidget(c);
    suiveurs_.push_back(c);
  }

  delai_ = new QSpinBox;
  delai_->setObjectName(QStringLiteral("delai"));
  delai_->setRange(0, DELAI_MAX);
  delai_->setValue(bd.Param->Delai);
  auto* libelle = new QLabel(QStringLiteral("Retard de chaque suiveur sur le précédent : "));
  libelle->setBuddy(delai_);
  auto* temps = new QGridLayout;
  temps->addWidget(libelle, 0, 0);
  temps->addWidget(delai_, 0, 1);
  temps->addWidget(new QLabel(QStringLiteral("1/100 s")), 0, 2);

  auto* groupeModes = new QGroupBox(QStringLiteral("Trajectoire des suiveurs"));
  auto* colonneModes = new QVBoxLayout(groupeModes);
  for (int i = 0; i < 5; ++i) {
    const int id = TBD_Coller::ID_PREMIER_MODE + i;
    modes_[i] = boites::Radio(TBD_Coller::TexteMode(id), id);
    modes_[i]->setChecked(id == bd.Param->Mode);
    colonneModes->addWidget(modes_[i]);
  }

  auto* page = new QVBoxLayout(this);
  page->addWidget(groupeSuiveurs);
  page->addLayout(temps);
  page->addWidget(groupeModes);
  page->addWidget(boites::OKAnnuler(this));
  page->setSizeConstraint(QLayout::SetFixedSize);
}

void QBoiteSuivre::accept() {
  std::vector<int> suiveurs;
  for (std::size_t k = 0; k < suiveurs_.size(); ++k)
    if (suiveurs_[k]->isEnabled() && suiveurs_[k]->isChecked()) suiveurs.push_back(static_cast<int>(k));
  if (suiveurs.empty()) return;  // nothing to follow: the box stays open
  bd_.Param->Suiveurs = suiveurs;
  bd_.Param->Delai = delai_->value();
  for (int i = 0; i < 5; ++i)
    if (modes_[i]->isChecked()) bd_.Param->Mode = TBD_Coller::ID_PREMIER_MODE + i;
  EcritReglages(*bd_.Param);
  QDialog::accept();
}
