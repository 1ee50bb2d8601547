#include "gui/frise/DockFrise.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QSettings>

#include "frise/Battements.h"
#include "gui/editeur/PanneauBas.h"
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

// The height the user last gave the dock; a settings file holding anything else than a height
// in range gives the default.
int HauteurRetenue() {
  bool lu = false;
  const int hauteur = QSettings().value(CLE_HAUTEUR).toInt(&lu);
  return lu && hauteur >= HAUTEUR_MIN && hauteur <= HAUTEUR_MAX ? hauteur : HAUTEUR_DEFAUT;
}

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

  // Hidden until the user shows it: a first start shows the sheet and its bars as they always were.
  // Only what a choice of the user wrote shows it: anything else is the default.
  dock->setVisible(QSettings().value(CLE_VISIBLE).toString() == QStringLiteral("true"));
  fenetre.resizeDocks({dock}, {HauteurRetenue()}, Qt::Vertical);
  dock->Pret = true;

  // Shown or hidden by the user, in this run or an earlier one; the window grows by the dock's
  // height, as it does for the alerts.
  auto* montre = new QAction(QStringLiteral("&Frise"), &fenetre);
  montre->setObjectName(QStringLiteral("commande%1").arg(CM_FRISE));
  montre->setCheckable(true);
  montre->setChecked(!dock->isHidden());
  QObject::connect(montre, &QAction::triggered, dock, [&fenetre, dock](bool oui) {
    QSettings().setValue(CLE_VISIBLE, oui);
    MontrePanneau(fenetre, *dock, oui, HauteurRetenue());
  });
  // Its close button is the user's choice too; a window that goes hides it without making it hidden.
  QObject::connect(dock, &QDockWidget::visibilityChanged, montre, [montre, dock] {
    montre->setChecked(!dock->isHidden());
    if (dock->isHidden()) QSettings().setValue(CLE_VISIBLE, false);
  });
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
