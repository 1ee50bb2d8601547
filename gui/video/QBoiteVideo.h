#pragma once
// The player's "Exporter une vidéo..." box: the film's size, frame rate, range, the scene's
// options and the file. It starts from what it is given and hands back the request, checked.
#include <QDialog>

#include "video/ArgumentsFilm.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

class QBoiteVideo : public QDialog {
  Q_OBJECT
public:
  // `fin`: the routine's end, in hundredths, the range's bound.
  QBoiteVideo(const TParametresFilm& depart, int fin, QWidget* parent = nullptr);
  // What the box holds, the size as typed.
  TParametresFilm Parametres() const;

  void accept() override;

private:
  void ChoisitFichier();

  TParametresFilm depart_;
  QSpinBox* largeur_;
  QSpinBox* hauteur_;
  QSpinBox* fps_;
  QSpinBox* de_;
  QSpinBox* a_;
  QDoubleSpinBox* traines_;
  QCheckBox* lignes_;
  QCheckBox* sol_;
  QCheckBox* fenetre_;
  QComboBox* camera_;
  QLineEdit* fichier_;
};

// The folder the box's file dialog opened last, kept across sessions.
inline constexpr const char* CLE_DOSSIER_VIDEO = "video/dernier";
