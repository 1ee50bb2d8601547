#include "gui/session/DialogueRecuperation.h"

#include <algorithm>

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {
QString Texte(const std::string& s) { return QString::fromStdString(s); }

const char* const CHOIX[] = {"Récupérer", "Supprimer", "Plus tard"};
const char* const NOMS[] = {"recuperer", "supprimer", "plustard"};
}  // namespace

QDialogueRecuperation::QDialogueRecuperation(const std::vector<TCandidat>& candidats, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QStringLiteral("Récupérer le travail non enregistré"));
  auto* principal = new QVBoxLayout(this);

  auto* entete = new QLabel(QStringLiteral(
      "<b>Trajectoires s'est arrêté sans que ces routines soient enregistrées.</b><br>"
      "Une copie de chacune a été gardée. Choisissez ce qu'il faut en faire :"));
  entete->setWordWrap(true);
  principal->addWidget(entete);

  auto* liste = new QWidget;
  auto* grille = new QGridLayout(liste);
  grille->setHorizontalSpacing(16);
  grille->setVerticalSpacing(10);
  grille->setColumnStretch(0, 1);
  for (std::size_t i = 0; i < candidats.size(); ++i) {
    const TCandidat& c = candidats[i];
    const int ligne = static_cast<int>(2 * i);
    if (i > 0) {
      auto* trait = new QFrame;
      trait->setFrameShape(QFrame::HLine);
      trait->setFrameShadow(QFrame::Sunken);
      grille->addWidget(trait, ligne - 1, 0, 1, 4);
    }
    const QString original = c.Fiche.Original.empty() ? QStringLiteral("jamais enregistrée")
                                                       : Texte(c.Fiche.Original).toHtmlEscaped();
    auto* description = new QLabel(QStringLiteral("<b>%1</b><br><small>copie du %2 — %3</small>")
                                       .arg(Texte(NomRoutine(c.Fiche)).toHtmlEscaped(),
                                            Texte(HeureCopie(c.Fiche.Instant)), original));
    description->setTextFormat(Qt::RichText);
    description->setToolTip(Texte(c.Copie.Routine.string()));
    grille->addWidget(description, ligne, 0);

    auto* groupe = new QButtonGroup(this);
    for (int choix = 0; choix < 3; ++choix) {
      auto* bouton = new QRadioButton(QString::fromUtf8(CHOIX[choix]));
      bouton->setObjectName(QStringLiteral("%1-%2").arg(QLatin1String(NOMS[choix])).arg(i));
      groupe->addButton(bouton, choix);
      grille->addWidget(bouton, ligne, 1 + choix);
    }
    const auto defaut = i == 0 ? TChoixRecuperation::Recuperer : TChoixRecuperation::PlusTard;
    groupe->button(static_cast<int>(defaut))->setChecked(true);
    groupes_.push_back(groupe);
    connect(groupe, &QButtonGroup::idToggled, this, [this, groupe](int choix, bool coche) {
      if (!coche || choix != static_cast<int>(TChoixRecuperation::Recuperer)) return;
      for (QButtonGroup* autre : groupes_)
        if (autre != groupe && autre->checkedId() == choix)
          autre->button(static_cast<int>(TChoixRecuperation::PlusTard))->setChecked(true);
    });
  }
  grille->setRowStretch(static_cast<int>(2 * candidats.size()), 1);

  auto* defilement = new QScrollArea;
  defilement->setWidget(liste);
  defilement->setWidgetResizable(true);
  defilement->setFrameShape(QFrame::NoFrame);
  defilement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // As high as its lines, up to about six of them.
  defilement->setMinimumHeight(std::min(liste->sizeHint().height(), 360));
  defilement->setMinimumWidth(liste->sizeHint().width() + 8);
  principal->addWidget(defilement, 1);

  auto* boutons = new QDialogButtonBox;
  QPushButton* valider = boutons->addButton(QStringLiteral("Valider"), QDialogButtonBox::AcceptRole);
  valider->setDefault(true);
  connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  principal->addWidget(boutons);
}

std::vector<TChoixRecuperation> QDialogueRecuperation::Choix() const {
  std::vector<TChoixRecuperation> choix;
  for (const QButtonGroup* g : groupes_)
    choix.push_back(result() == QDialog::Accepted ? static_cast<TChoixRecuperation>(g->checkedId())
                                                  : TChoixRecuperation::PlusTard);
  return choix;
}
