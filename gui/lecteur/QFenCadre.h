#pragma once
// The player's main window, "CV": a view over TFenCadre. The menu and the control bar are
// built from the player's command tables; every command goes to TFenApp::Trt_Menu; the bars
// show the texts the frame holds; the client area is the 3D view, drawn when the player wants
// a frame, at most once per refresh of the screen.
#include "demo/player/FenCadre.h"
#include "gui/lecteur/Cadence.h"
#include "gui/lecteur/QVue3D.h"

#include <QMainWindow>

#include <map>

class QAction;
class QExportVideo;
class QLabel;

class QFenCadre : public QMainWindow, public TVueLecteur {
  Q_OBJECT
public:
  explicit QFenCadre(QWidget* parent = nullptr);
  ~QFenCadre() override;

  TFenCadre& Cadre() { return cadre_; }
  QVue3D* Vue() const { return vue_; }
  const QCadence& Cadence() const { return *cadence_; }
  // The action of a command, for tests and for the keyboard.
  QAction* Action(unsigned id) const;
  QLabel* Zone(TZoneLecteur zone) const { return zones_[static_cast<int>(zone)]; }
  QExportVideo* Export() const { return export_; }

  void TexteChange(TZoneLecteur zone, const std::string& texte) override;
  void EquipeCochee(int team) override;
  void ImageDemandee() override { cadence_->Demande(); }

protected:
  // The keys of playback typed in the view: space, the arrows and Home.
  bool eventFilter(QObject* objet, QEvent* evenement) override;
  void closeEvent(QCloseEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

private:
  // Where the frame stands at a first start: beside the editor's.
  static QRect CadreDefaut();
  void CreeMenu();
  // Ticks the 3D picture's switches and camera as the player holds them.
  void CocheAffichage();
  void CreeBarre();
  void CreeBarreStatut();
  // The client changed size or the frame its state: the scene follows, and the frame's
  // height is set to keep the client twice as wide as high.
  void Redimensionne(TTypeTaille type);
  QAction* NouvelleAction(unsigned id);
  // "Exporter une vidéo...": the box, then the film made in the background.
  void ExporteVideo();

  TFenCadre cadre_;
  QVue3D* vue_ = nullptr;
  QCadence* cadence_ = nullptr;
  std::map<unsigned, QAction*> actions_;
  QLabel* zones_[NB_ZONES_LECTEUR] = {};
  QExportVideo* export_ = nullptr;
};
