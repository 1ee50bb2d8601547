#include "gui/securite/QAlertes.h"

#include <QToolButton>
#include <QListWidget>
#include <QSettings>
#include <QtConcurrent/QtConcurrentRun>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "session/Modification.h"

QAlertes::QAlertes(TFenCadre2& cadre, QWidget* parent) : QDockWidget(QStringLiteral("Alertes"), parent), cadre_(cadre) {
  setObjectName(QStringLiteral("alertes"));
  setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
  liste_ = new QListWidget(this);
  liste_->setObjectName(QStringLiteral("listeAlertes"));
  setWidget(liste_);
  compte_ = new QToolButton(this);
  compte_->setAutoRaise(true);
  compte_->setObjectName(QStringLiteral("compteAlertes"));
  compte_->setToolTip(QStringLiteral("Conflits de sécurité de la routine : CV trop proches, lignes enroulées, "
                                     "CV hors de la fenêtre ou trop rapides"));
  connect(&watcher_, &QFutureWatcher<std::vector<TAlerte>>::finished, this, &QAlertes::Termine);
  connect(liste_, &QListWidget::itemClicked, this, &QAlertes::Clic);
  observateur_ = AjouteObservateurTexte([this] { Relance(); });
  Relance();
}

QAlertes::~QAlertes() {
  RetireObservateurTexte(observateur_);
  // The worker touches no document: it is only waited for, so that nothing outlives us.
  watcher_.waitForFinished();
}

void QAlertes::Relance() {
  if (watcher_.isRunning()) {
    relance_ = true;
    return;
  }
  relance_ = false;
  enCours_ = true;
  // The flight is laid here, from the document, which only this thread touches; checking it,
  // the part that grows with the routine's length, goes to the worker.
  reglages_ = ReglagesSecurite;
  watcher_.setFuture(QtConcurrent::run(
      [vol = VolHorsScene(), n = nbCV, r = reglages_] { return CalculeAlertes(vol, n, r); }));
}

void QAlertes::Termine() {
  if (relance_) {
    // The routine changed while this was computed: its findings are already old.
    Relance();
    return;
  }
  enCours_ = false;
  RemplaceAlertesEditeur(watcher_.result(), reglages_);
  liste_->clear();
  derniereLigne_ = -1;
  for (const TAlerte& a : AlertesEditeur()) {
    auto* item = new QListWidgetItem(QString::fromStdString(TexteAlerte(a)), liste_);
    if (a.Constat.Compte) item->setForeground(QColor(192, 0, 0));
  }
  const int n = ConflitsEditeur();
  compte_->setText(n == 0 ? QStringLiteral("Aucune alerte") : QStringLiteral("Alertes : %1").arg(n));
  if (cadre_.pFenDesActive) cadre_.Invalide(cadre_.pFenDesActive, TRect(0, 0, 4000, 4000));
  emit AJour();
}

void QAlertes::Clic(QListWidgetItem* item) {
  const int ligne = liste_->row(item);
  if (ligne < 0 || ligne >= static_cast<int>(AlertesEditeur().size())) return;
  // The same line again: the other kite of the pair.
  second_ = ligne == derniereLigne_ ? !second_ : false;
  derniereLigne_ = ligne;
  MontreAlerte(cadre_, AlertesEditeur()[static_cast<std::size_t>(ligne)], second_);
}
