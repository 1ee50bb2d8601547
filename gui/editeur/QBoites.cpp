#include "gui/editeur/QBoites.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace boites {

QRadioButton* Radio(const char* texte, int id) {
  auto* r = new QRadioButton(QString::fromUtf8(texte));
  r->setObjectName(QString::number(id));
  return r;
}

QLineEdit* Saisie(const std::string& texte, int id, int longueur) {
  auto* e = new QLineEdit(QString::fromStdString(texte));
  e->setObjectName(QString::number(id));
  e->setMaxLength(longueur);
  // Room for the characters it may hold and the frame, not the much wider default.
  e->setFixedWidth(e->fontMetrics().horizontalAdvance(QString(longueur, u'0')) + 14);
  return e;
}

std::string Texte(const QLineEdit* saisie) { return saisie->text().toStdString(); }

void Coche(std::initializer_list<std::pair<QRadioButton*, bool>> etats) {
  for (const auto& [bouton, coche] : etats) {
    bouton->setAutoExclusive(false);
    bouton->setChecked(coche);
  }
  for (const auto& e : etats) e.first->setAutoExclusive(true);
}

QDialogButtonBox* OKAnnuler(QDialog* dialogue) {
  auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  boutons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
  boutons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("1"));
  boutons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuler"));
  boutons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("2"));
  QObject::connect(boutons, &QDialogButtonBox::accepted, dialogue, &QDialog::accept);
  QObject::connect(boutons, &QDialogButtonBox::rejected, dialogue, &QDialog::reject);
  return boutons;
}

}  // namespace boites
