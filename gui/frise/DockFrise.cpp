#include "gui/frise/DockFrise.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QSettings>

#include "frise/Battements.h"
#include "gui/frise/QFrise.h"

namespace {

constexpr int HAUTEUR_DEFAUT = 200;
constexpr int HAUTEUR_MIN = 60;
constexpr int HAUTEUR_MAX = 4000;
const char* const CLE_VISIBLE = "frise/visible";
const char* const CLE_HAUTEUR = "frise/hauteur";

// The dock that remembers its height once the user has set it.
class QDockFrise : public QDockWidget {
public:
  using QDockWidget::QDockWidget;
  bool Pret = false;  // the height restored: later sizes are the user's

protected:
  void resizeEvent(QResizeEvent* e) override {
    QDockWidget::resizeEvent(e);
    if (Pret && isVisible() && !isFloating() && e->size().height() >= HAUTEUR_MIN)
      QSettings().setValue(CLE_HAUTEUR, e->size().height());
  }
};

QMenu* MenuOptions(QMainWindow& fenetre) {
  for (QAction* a : fenetre.menuBar()->actions())
    if (a->menu() && a->text() == QStringLiteral("&Options")) return a->menu();
  return nullptr;
}

}  // namespace

QFrise* InstalleFrise(QMainWindow& fenetre, TFenCadre2& cadre) {
  auto* dock = new QDockFrise(QStringLiteral("Frise"), &fenetre);
  dock->setObjectName(QStringLiteral("dockFrise"));
  dock->setFeatures(QDockWidget::DockWidgetClosable);
  dock->setAllowedAreas(Qt::BottomDockWidgetArea);
  auto* frise = new QFrise(cadre, dock);
  dock->setWidget(frise);
  fenetre.addDockWidget(Qt::BottomDockWidgetArea, dock);

  // A settings file holding anything else than a height in range gives the default.
  QSettings reglages;
  bool lu = false;
  int hauteur = reglages.value(CLE_HAUTEUR).toInt(&lu);
  if (!lu || hauteur < HAUTEUR_MIN || hauteur > HAUTEUR_MAX) hauteur = HAUTEUR_DEFAUT;
  // Hidden until the user shows it: a first start shows the sheet and its bars as they always were.
  // Only what a choice of the user wrote shows it: anything else is the default.
  dock->setVisible(reglages.value(CLE_VISIBLE).toString() == QStringLiteral("true"));
  fenetre.resizeDocks({dock}, {hauteur}, Qt::Vertical);
  dock->Pret = true;

  QAction* montre = dock->toggleViewAction();
  montre->setText(QStringLiteral("&Frise"));
  montre->setObjectName(QStringLiteral("commande%1").arg(CM_FRISE));
  // The user's choice only: the dock hides too when its window goes, which is no choice.
  QObject::connect(montre, &QAction::triggered, dock, [](bool oui) { QSettings().setValue(CLE_VISIBLE, oui); });
  auto* aligne = new QAction(QStringLiteral("Aligner sur les &temps"), &fenetre);
  aligne->setObjectName(QStringLiteral("commande%1").arg(CM_ALIGNER_SUR_TEMPS));
  aligne->setCheckable(true);
  aligne->setChecked(Alignement.Actif);
  QObject::connect(aligne, &QAction::toggled, &fenetre, [](bool oui) { Alignement.Actif = oui; });
  if (QMenu* options = MenuOptions(fenetre)) {
    options->addSeparator();
    options->addAction(montre);
    options->addAction(aligne);
  }
  return frise;
}
