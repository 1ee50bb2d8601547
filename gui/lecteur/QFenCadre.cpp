#include "gui/lecteur/QFenCadre.h"

#include "demo/player/Clavier.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"
#include "gui/qt/Cadre.h"
#include "gui/qt/Gadgets.h"
#include "gui/lecteur/ReglagesScene.h"
#include "gui/video/QBoiteVideo.h"
#include "gui/video/QExportVideo.h"
#include "demo/Demonstration.h"
#include "demo/D3DDemo.h"
#include "files/Ecriture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QWindowStateChangeEvent>


// The pictures of the buttons live in a static library: their resources must be asked for,
// from outside any namespace, or the linker leaves them out.
static void ChargeIcones() { Q_INIT_RESOURCE(lecteur); }

namespace {
// The menu's switches of the 3D picture, shown ticked when on.
bool EstInterrupteur(unsigned id) { return id == CM_TRAINES || id == CM_LIGNES || id == CM_SOL || id == CM_FENETRE; }
}  // namespace

QFenCadre::QFenCadre(QWidget* parent) : QMainWindow(parent) {
  ChargeIcones();
  setWindowTitle(QString::fromUtf8(TITRE_LECTEUR));
  vue_ = new QVue3D(this);
  setCentralWidget(vue_);
  // The view takes the keys of playback: from a click, from Tab, and when the window comes up.
  vue_->setFocusPolicy(Qt::StrongFocus);
  vue_->installEventFilter(this);
  vue_->setFocus();
  export_ = new QExportVideo(this);
  connect(export_, &QExportVideo::Fini, this, [](bool ok, const QString& message) {
    if (!ok) Dialogues().MessageBox(message.toStdString(), "Exporter une vidéo", TBoutons::OK, TIcone::Erreur);
  });
  CreeMenu();
  CreeBarre();
  CreeBarreStatut();
  new TPlacementCadre(this, CadreDefaut(), QString::fromLatin1(CLE_LECTEUR));

  cadence_ = new QCadence(this, [this] { return cadre_.Client().ImageAttendue(); },
                          [this] { return cadre_.Client().IdleAction(); });
  cadre_.SetVue(this);
  for (int z = 0; z < NB_ZONES_LECTEUR; ++z)
    TexteChange(static_cast<TZoneLecteur>(z), cadre_.GetTexte(static_cast<TZoneLecteur>(z)));
  EquipeCochee(cadre_.GetEquipeCochee());
  const TReglagesScene scene = LitReglagesScene();
  cadre_.Client().SetOptions(scene.Options, scene.DureeTraines);
  CocheAffichage();
  vue_->SetPeinture([this] { cadre_.Client().Paint(); });
  // After the resize has been taken in: a frame resized from inside its own resize is
  // undone by the window system's answer to the first one.
  vue_->SetRedimensionnement([this] {
    QMetaObject::invokeMethod(this, [this] { Redimensionne(TTypeTaille::Normale); }, Qt::QueuedConnection);
  });
}

QRect QFenCadre::CadreDefaut() {
  // Beside the editor's frame as it starts, remembered or not, on the screen it stands on.
  const QList<QRect> ecrans = TPlacementCadre::Ecrans();
  const QRect editeur = CadreRetenu(TPlacementCadre::Memorise(QString::fromLatin1(CLE_EDITEUR)), CADRE_EDITEUR, ecrans);
  QRect ecran = ecrans.isEmpty() ? editeur : ecrans.first();
  for (const QRect& e : ecrans)
    if (e.contains(editeur.center())) ecran = e;
  return CadreAcote(ecran, editeur, QSize(LARGEUR_LECTEUR, HAUTEUR_LECTEUR));
}

QFenCadre::~QFenCadre() { cadre_.SetVue(nullptr); }

QAction* QFenCadre::NouvelleAction(unsigned id) {
  auto* a = new QAction(QString::fromUtf8(TexteCommande(id)), this);
  if (id == CM_EXPORTER_VIDEO)
    connect(a, &QAction::triggered, this, &QFenCadre::ExporteVideo);
  else
    connect(a, &QAction::triggered, this, [this, id] {
      cadre_.Client().Trt_Menu(id);
      if (id >= CM_TRAINES && id <= CM_CAMERA_JUGE) {
        EcritReglagesScene({cadre_.Client().GetOptions(), cadre_.Client().GetDureeTraines()});
        CocheAffichage();
      }
    });
  actions_[id] = a;
  return a;
}

QAction* QFenCadre::Action(unsigned id) const {
  const auto it = actions_.find(id);
  return it == actions_.end() ? nullptr : it->second;
}

void QFenCadre::CreeMenu() {
  auto* equipes = new QActionGroup(this);
  auto* cameras = new QActionGroup(this);
  for (const TMenuDeroulant& deroulant : MenuLecteur()) {
    QMenu* menu = menuBar()->addMenu(QString::fromUtf8(deroulant.Titre));
    for (const TEntreeMenu& entree : deroulant.Entrees) {
      if (entree.Id == 0) {
        menu->addSeparator();
        continue;
      }
      QAction* a = NouvelleAction(entree.Id);
      if (entree.Id >= CM_TEAM1 && entree.Id < CM_TEAM1 + NB_TEAMS) {
        a->setCheckable(true);
        equipes->addAction(a);
      }
      if (EstInterrupteur(entree.Id)) a->setCheckable(true);
      if (entree.Id >= CM_CAMERA_PUBLIC && entree.Id <= CM_CAMERA_JUGE) {
        a->setCheckable(true);
        cameras->addAction(a);
      }
      menu->addAction(a);
    }
  }
}

void QFenCadre::CocheAffichage() {
  const TOptionsScene& o = cadre_.Client().GetOptions();
  const std::pair<unsigned, bool> coches[] = {
      {CM_TRAINES, o.Traines > 0}, {CM_LIGNES, o.Lignes}, {CM_SOL, o.Sol}, {CM_FENETRE, o.Fenetre},
      {CM_CAMERA_PUBLIC + static_cast<unsigned>(o.Camera), true}};
  for (const auto& [id, coche] : coches)
    if (QAction* a = Action(id)) a->setChecked(coche);
}

void QFenCadre::CreeBarre() {
  QToolBar* barre = addToolBar(QStringLiteral("Lecture"));
  barre->setMovable(false);
  QFont police = barre->font();
  police.setPointSize(TAILLE_POLICE_BARRE_LECTEUR);
  barre->setFont(police);
  barre->setIconSize(QSize(20, 20));
  ConstruitBarre(
      barre, BarreLecteur(), QStringLiteral(":/icones-lecteur/"),
      [this](unsigned id) {
        QAction* a = Action(id);
        return a ? a : NouvelleAction(id);
      },
      [&](const TGadgetBarre& g) {
        return zones_[static_cast<int>(TZoneLecteur::Debut)] = Gadget(barre, g.Largeur);
      });
}

void QFenCadre::CreeBarreStatut() {
  QStatusBar* barre = statusBar();
  zones_[static_cast<int>(TZoneLecteur::Message)] = new QLabel(barre);
  barre->addWidget(zones_[static_cast<int>(TZoneLecteur::Message)], 1);
  QLabel* distance = zones_[static_cast<int>(TZoneLecteur::Distance)] = new QLabel(barre);
  distance->setObjectName(QStringLiteral("distanceMini"));
  distance->setToolTip(QStringLiteral("Les deux CV les plus proches à cet instant"));
  barre->addPermanentWidget(distance);
  const TZoneLecteur zones[] = {TZoneLecteur::T, TZoneLecteur::V, TZoneLecteur::Pas};
  for (const TGadgetStatut& g : BarreStatutLecteur()) {
    const TZoneLecteur zone = g.Id == GADGET_T ? zones[0] : g.Id == GADGET_V ? zones[1] : zones[2];
    zones_[static_cast<int>(zone)] = Gadget(barre, g.Largeur);
    zones_[static_cast<int>(zone)]->setToolTip(QString::fromUtf8(g.Bulle));
    barre->addPermanentWidget(zones_[static_cast<int>(zone)]);
  }
}

void QFenCadre::TexteChange(TZoneLecteur zone, const std::string& texte) {
  if (QLabel* l = Zone(zone)) l->setText(QString::fromStdString(texte));
}

void QFenCadre::EquipeCochee(int team) {
  if (QAction* a = Action(CM_TEAM1 + static_cast<unsigned>(team) - 1)) a->setChecked(true);
}

bool QFenCadre::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet != vue_ || evenement->type() != QEvent::KeyPress) return QMainWindow::eventFilter(objet, evenement);
  const auto* touche = static_cast<QKeyEvent*>(evenement);
  if (touche->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
    return QMainWindow::eventFilter(objet, evenement);
  TToucheLecteur t;
  switch (touche->key()) {
    case Qt::Key_Space:
      // Held down, space would play and pause by turns.
      if (touche->isAutoRepeat()) return true;
      t = TToucheLecteur::Espace;
      break;
    case Qt::Key_Left: t = TToucheLecteur::Gauche; break;
    case Qt::Key_Right: t = TToucheLecteur::Droite; break;
    case Qt::Key_Up: t = TToucheLecteur::Haut; break;
    case Qt::Key_Down: t = TToucheLecteur::Bas; break;
    case Qt::Key_Home: t = TToucheLecteur::Origine; break;
    default: return QMainWindow::eventFilter(objet, evenement);
  }
  cadre_.Client().Trt_Menu(CommandeTouche(t));
  return true;
}

void QFenCadre::closeEvent(QCloseEvent* evenement) {
  if (cadre_.CanClose())
    evenement->accept();
  else
    evenement->ignore();
}

void QFenCadre::changeEvent(QEvent* evenement) {
  QMainWindow::changeEvent(evenement);
  if (evenement->type() != QEvent::WindowStateChange) return;
  if (isMinimized())
    Redimensionne(TTypeTaille::Minimisee);
  else if (static_cast<QWindowStateChangeEvent*>(evenement)->oldState() & Qt::WindowMinimized)
    Redimensionne(TTypeTaille::Normale);
}

void QFenCadre::Redimensionne(TTypeTaille type) {
  const QSize client = vue_->size();
  const int hauteur = cadre_.EvSize(type, height(), client.width(), client.height());
  if (type == TTypeTaille::Normale && hauteur != height() && !isMaximized() && !isFullScreen())
    resize(width(), hauteur);
}

void QFenCadre::ExporteVideo() {
  const TD3DDemo* scene = Globals.pD3DDemo;
  if (!scene || export_->EnCours()) {
    Dialogues().MessageBox(scene ? "Un film est déjà en cours d'export." : "Pas de démonstration à filmer.",
                           "Exporter une vidéo", TBoutons::OK, TIcone::Information);
    return;
  }
  // From the "Temps Début" to the end, with the scene's options and the team as they stand.
  static std::string derniere;
  TParametresFilm p;
  p.Sortie = derniere;
  p.De = cadre_.Client().tDebut;
  p.Equipe = Team;
  p.Scene = cadre_.Client().GetOptions();
  QBoiteVideo boite(p, static_cast<int>(scene->tFin), this);
  if (boite.exec() != QDialog::Accepted) return;
  p = boite.Parametres();
  derniere = p.Sortie;
  export_->Lance(TexteRoutine(), p);
}
