#include "gui/editeur/QFenCadre2.h"

#include "editor/FenDessin.h"
#include "editor/MenuEditeur.h"
#include "gui/qt/Cadre.h"
#include "gui/qt/Gadgets.h"
#include "gui/editeur/QBande.h"
#include "gui/editeur/QFeuille.h"
#include "gui/editeur/PanneauBas.h"
#include "gui/frise/DockFrise.h"
#include "gui/frise/QFrise.h"
#include "gui/securite/QAlertes.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"

#include <QToolButton>
#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileInfo>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QSettings>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

// The pictures of the buttons live in a static library: their resources must be asked for,
// from outside any namespace, or the linker leaves them out.
static void ChargeIconesEditeur() { Q_INIT_RESOURCE(editeur); }

QFenCadre2::QFenCadre2(QWidget* parent) : QMainWindow(parent) {
  ChargeIconesEditeur();
  // Light grey around the sheet, as the frame always was.
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, QColor(192, 192, 192));
  setPalette(palette);
  CreeMenu();
  CreeBarre();
  position_ = Gadget(statusBar(), CARACTERES_GADGET_POSITION);
  position_->setToolTip(QString::fromUtf8(BULLE_GADGET_POSITION));
  statusBar()->addPermanentWidget(position_);

  client_ = new QWidget(this);
  client_->installEventFilter(this);
  onglets_ = new QTabBar(client_);
  onglets_->setObjectName(QStringLiteral("onglets"));
  QFont police(QStringLiteral("Arial"));
  police.setPixelSize(15);
  onglets_->setFont(police);
  onglets_->setExpanding(false);
  onglets_->setUsesScrollButtons(true);
  onglets_->setDrawBase(false);
  feuille_ = new QFeuille(client_);
  bande_ = new QBande(cadre_.pFenListe, client_);
  setCentralWidget(client_);
  frise_ = InstalleFrise(*this, cadre_);

  cadre_.SetVue(this);
  cadre_.SetupWindow();
  Onglets();
  FeuilleActive();
  Textes();
  connect(onglets_, &QTabBar::currentChanged, this, [this](int i) {
    if (i >= 0 && i != cadre_.GetOngletActif()) cadre_.TabSelChange(i);
  });
  AjouteAlertes();
  new TPlacementCadre(this, CADRE_EDITEUR, QString::fromLatin1(CLE_EDITEUR));
  observateur_ = AjouteObservateurModification([this](bool modifie) { setWindowModified(modifie); });
  setWindowModified(DocumentModifie());
}

QFenCadre2::~QFenCadre2() {
  RetireObservateurModification(observateur_);
  cadre_.SetVue(nullptr);
  // The bars' widgets go while the sheets their elements draw on are still there.
  delete bande_;
  bande_ = nullptr;
}

QAction* QFenCadre2::NouvelleAction(unsigned id, const char* texte, const char* raccourci) {
  auto* a = new QAction(QString::fromUtf8(texte), this);
  a->setObjectName(QStringLiteral("commande%1").arg(id));
  if (raccourci) {
    a->setShortcut(QKeySequence(QString::fromUtf8(raccourci)));
    // The sheet's window only: the player has keys of its own.
    a->setShortcutContext(Qt::WindowShortcut);
  }
  connect(a, &QAction::triggered, this, [this, id] {
    if (cadre_.pFenDesActive) cadre_.pFenDesActive->Trt_Menu(id);
  });
  actions_[id] = a;
  return a;
}

void QFenCadre2::AjouteAlertes() {
  alertes_ = new QAlertes(cadre_, this);
  addDockWidget(Qt::BottomDockWidgetArea, alertes_);
  statusBar()->addPermanentWidget(alertes_->Compte());
  // Hidden until the user shows it, in this run or an earlier one: the window's frame as it
  // was remembered holds the panel when it was shown.
  const bool visible = QSettings().value(QStringLiteral("alertes/visible"), false).toBool();
  alertes_->setVisible(visible);
  QAction* a = Action(CM_ALERTES);
  if (!a) return;
  a->setCheckable(true);
  a->setChecked(visible);
  connect(a, &QAction::triggered, this,
          [this](bool montrer) { MontrePanneau(*this, *alertes_, montrer, HAUTEUR_ALERTES); });
  connect(alertes_, &QDockWidget::visibilityChanged, a, [this, a] {
    a->setChecked(!alertes_->isHidden());
    QSettings().setValue(QStringLiteral("alertes/visible"), !alertes_->isHidden());
  });
  // The count in the status bar opens the list.
  connect(alertes_->Compte(), &QAbstractButton::clicked, a, [a] {
    if (!a->isChecked()) a->trigger();
  });
}

QAction* QFenCadre2::Action(unsigned id) const {
  const auto it = actions_.find(id);
  return it == actions_.end() ? nullptr : it->second;
}

void QFenCadre2::CreeMenu() {
  for (const TMenuDeroulant& deroulant : MenuEditeur()) {
    if (deroulant.Id) {
      // A command of the menu bar itself: its own action, so that the bar shows its text
      // and not the button's picture.
      QAction* a = NouvelleAction(deroulant.Id, deroulant.Titre, deroulant.Raccourci);
      actions_.erase(deroulant.Id);
      menuBar()->addAction(a);
      // A shortcut works only on an action that belongs to a widget of the window.
      addAction(a);
      continue;
    }
    QMenu* menu = menuBar()->addMenu(QString::fromUtf8(deroulant.Titre));
    for (const TEntreeMenu& entree : deroulant.Entrees) {
      if (!entree.SousMenu.empty()) {
        QMenu* sous = menu->addMenu(QString::fromUtf8(entree.Texte));
        for (const TEntreeMenu& e : entree.SousMenu) {
          QAction* a = NouvelleAction(e.Id, e.Texte, e.Raccourci);
          a->setCheckable(e.Id == CM_IMPRIMER_CHAQUE_PILOTE);
          sous->addAction(a);
        }
      } else if (entree.Id == CM_FICHIERS_RECENTS) {
        recents_ = menu->addMenu(QString::fromUtf8(entree.Texte));
        recents_->setObjectName(QStringLiteral("fichiersRecents"));
        recents_->setToolTipsVisible(true);
        connect(recents_, &QMenu::aboutToShow, this, &QFenCadre2::Recents);
        Recents();
      } else if (entree.Id == 0) {
        menu->addSeparator();
      } else {
        QAction* a = NouvelleAction(entree.Id, entree.Texte, entree.Raccourci);
        a->setCheckable(entree.Id == CM_MAJ_PERMANENTE || entree.Id == CM_MAJ_PARTIELLE);
        menu->addAction(a);
      }
    }
  }
}

void QFenCadre2::CreeBarre() {
  QToolBar* barre = addToolBar(QStringLiteral("Outils"));
  barre->setObjectName(QStringLiteral("barreOutils"));
  barre->setMovable(false);
  QFont police = barre->font();
  police.setPointSize(10);
  barre->setFont(police);
  barre->setIconSize(QSize(16, 16));
  barre->layout()->setSpacing(0);
  barre->setStyleSheet(QStringLiteral("QToolBar { spacing: 0px; padding: 0px; } QToolButton { padding: 1px; margin: 0px; }"));
  ConstruitBarre(
      barre, BarreEditeur(), QStringLiteral(":/icones-editeur/"),
      [this](unsigned id) {
        if (QAction* a = Action(id)) return a;
        for (const TMenuDeroulant& d : MenuEditeur())
          if (d.Id == id) return NouvelleAction(id, d.Titre);
        return NouvelleAction(id, "");
      },
      [&](const TGadgetBarre& g) { return synchro_ = Gadget(barre, g.Largeur); },
      // Qt's buttons are wider than bitmaps of 16 pixels in a thin frame: narrower gaps give
      // the difference back, so that every tool shows at the frame's first width.
      0.5);
}

void QFenCadre2::Recents() {
  // Built afresh each time it opens: a file gone since is no longer offered.
  recents_->clear();
  const std::vector<std::string> presents = FichiersRecents().Presents();
  for (std::size_t i = 0; i < presents.size(); ++i) {
    const QString chemin = QString::fromStdString(presents[i]);
    QAction* a = recents_->addAction(QStringLiteral("&%1 %2").arg(i + 1 < 10 ? QString::number(i + 1) : QStringLiteral("1&0"),
                                                                    QFileInfo(chemin).fileName()));
    a->setToolTip(chemin);
    a->setObjectName(QStringLiteral("recent%1").arg(i));
    const unsigned id = CM_PREMIER_RECENT + static_cast<unsigned>(i);
    connect(a, &QAction::triggered, this, [this, id] {
      if (cadre_.pFenDesActive) cadre_.pFenDesActive->Trt_Menu(id);
    });
  }
  if (!presents.empty()) recents_->addSeparator();
  QAction* effacer = recents_->addAction(QStringLiteral("Effacer la liste"));
  effacer->setObjectName(QStringLiteral("effacerRecents"));
  effacer->setEnabled(!FichiersRecents().Tous().empty());
  connect(effacer, &QAction::triggered, this, [this] {
    if (cadre_.pFenDesActive) cadre_.pFenDesActive->Trt_Menu(CM_EFFACER_RECENTS);
  });
}

bool QFenCadre2::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == client_ && evenement->type() == QEvent::Resize) Dispose();
  return QMainWindow::eventFilter(objet, evenement);
}

void QFenCadre2::Dispose() {
  if (!bande_) return;
  // The control bar and the status bar are Qt's own, outside the client area.
  cadre_.SetHauteurs(0, onglets_->sizeHint().height(), 0);
  cadre_.EvSize(client_->width(), client_->height());
  onglets_->setGeometry(0, 0, client_->width(), onglets_->sizeHint().height());
  const int l = cadre_.Largeur;
  feuille_->setGeometry(0, cadre_.YFeuille, l, l / 2);
  // Wide and low, the strip gets a negative height: it is then not seen at all.
  const int h = cadre_.Hauteur - l / 2;
  bande_->setGeometry(0, cadre_.YFeuille + l / 2, l, h > 0 ? h : 0);
  bande_->setVisible(h > 0);
}

void QFenCadre2::Onglets() {
  if (frise_) frise_->DocumentChange();
  const QSignalBlocker bloque(onglets_);
  while (onglets_->count() > cadre_.nbFeuilles) onglets_->removeTab(onglets_->count() - 1);
  for (int i = 0; i < cadre_.nbFeuilles; ++i) {
    const QString label = QString::fromStdString(cadre_.GetLabelOnglet(i));
    if (i < onglets_->count()) {
      if (onglets_->tabText(i) != label) onglets_->setTabText(i, label);
    } else {
      onglets_->addTab(label);
    }
  }
  const int actif = cadre_.GetOngletActif();
  if (actif >= 0 && onglets_->currentIndex() != actif) onglets_->setCurrentIndex(actif);
}

void QFenCadre2::FeuilleActive() { feuille_->SetFeuille(cadre_.pFenDesActive); }

void QFenCadre2::Invalide(TFenDessin* feuille, const TRect& r) {
  if (feuille == feuille_->Feuille()) feuille_->update(QRect(r.left, r.top, r.Width(), r.Height()));
  // Whatever repaints a sheet may have changed a time: the timeline is built again.
  if (frise_) frise_->DocumentChange();
}

void QFenCadre2::Textes() {
  // Qt shows "[*]" as a star while the document holds unsaved changes.
  setWindowTitle(QString::fromStdString(cadre_.GetTitre()) + QStringLiteral("[*]"));
  position_->setText(QString::fromStdString(cadre_.GetTextePosition()));
  if (synchro_) synchro_->setText(QString::fromStdString(cadre_.GetTexteGadgetSynchro()));
  for (unsigned id : {CM_MAJ_PERMANENTE, CM_MAJ_PARTIELLE, CM_IMPRIMER_CHAQUE_PILOTE})
    if (QAction* a = Action(id)) a->setChecked(cadre_.GetCoche(static_cast<int>(id)));
}

void QFenCadre2::Focus() { feuille_->setFocus(Qt::OtherFocusReason); }

void QFenCadre2::Barres() {
  if (bande_) bande_->Barres();
}

void QFenCadre2::closeEvent(QCloseEvent* evenement) {
  if (!cadre_.CanClose()) {
    evenement->ignore();
    return;
  }
  evenement->accept();
  Ferme();
}

void QFenCadre2::Ferme() {
  // exit(), not quit(): quit() first asks every window to close, and the player refuses.
  QCoreApplication::exit(0);
}
