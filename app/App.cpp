#include "app/App.h"

#include "demo/D3DDemo.h"
#include "demo/player/FenApp.h"
#include "editor/FenDessin.h"
#include "gui/editeur/QFeuille.h"
#include "gui/qt/Traductions.h"
#include "gui/session/Reglages.h"
#include "model/Document.h"
#include "platform/Rendu.h"
#include "platform/Son.h"
#include "session/Modification.h"
#include "Version.h"

#include <QApplication>
#include <QIcon>
#include <QStatusBar>

#include <cstdlib>
#include <cstring>

TApp::TApp() = default;

TApp::~TApp() {
  recuperation_.reset();  // a clean end: its copy goes
  // The scene and its music go before the player's view, whose context holds the pictures.
  if (lecteur_) lecteur_->Cadre().Client().FermeDemo();
  SetRendu(nullptr);
  if (&Son() == &son_) SetSon(nullptr);
  lecteur_.reset();
  editeur_.reset();
  if (&Dialogues() == &dialogues_) SetDialogues(nullptr);
}

void TApp::Demarre() {
  SetDialogues(&dialogues_);
  editeur_ = std::make_unique<QFenCadre2>();
  dialogues_.SetParent(editeur_.get());
  dialogues_.SetBarreStatut(editeur_->statusBar());
  dialogues_.SetZoneCurseur(editeur_->Feuille());
  SetSon(&son_);
  // The document as the editor starts: nothing to lose yet.
  MarqueIntact();
  suivi_ = std::make_unique<QSuiviModification>();
  SuitFichiersRecents();
  recuperation_ = std::make_unique<QRecuperation>();
  editeur_->show();
  // The editor reaches the screen before the player's OpenGL is set up, which a software
  // rasteriser makes long; the player's picture is the same.
  QGuiApplication::sync();
  lecteur_ = std::make_unique<QFenCadre>();
  SetRendu(&lecteur_->Vue()->Rendu());
  lecteur_->show();
}

void TApp::Ouvre(const std::string& chemin) {
  if (TFenDessin* feuille = editeur_->Cadre().pFenDesActive) feuille->Ouvrir(chemin);
}

void TApp::ProposeRecuperations() { recuperation_->Propose(editeur_->Cadre(), editeur_.get()); }

void PrepareApplication(QApplication& application) {
  Q_INIT_RESOURCE(application);
  QCoreApplication::setOrganizationName(QStringLiteral("trajectoires"));
  QCoreApplication::setApplicationName(QStringLiteral("trajectoires"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TRAJ_VERSION));
  // The desktop ties the windows to the menu entry of this name, and shows its icon.
  QGuiApplication::setDesktopFileName(QStringLiteral("org.trajectoires.Trajectoires"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/application/icone.svg")));
  ChargeTraductionsFrancaises(application);
}

bool AffichageDisponible(int argc, char** argv) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* valeur = std::getenv(variable);
    if (valeur && *valeur) return true;
  }
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "-platform") == 0 || std::strcmp(argv[i], "--platform") == 0) return true;
  return false;
}
