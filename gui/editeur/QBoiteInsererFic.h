#pragma once
// The file insertion dialog "Insérer Fichier": a view of a TBD_InsererFic. Only the kites
// of the document have a row; a refused OK has shown its message and leaves the box open.
#include "model/Document.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QRadioButton;
class TBD_InsererFic;

class QBoiteInsererFic : public QDialog {
  Q_OBJECT
public:
  QBoiteInsererFic(TBD_InsererFic& bd, QWidget* parent = nullptr);

  void accept() override;

private:
  TBD_InsererFic& bd_;
  QRadioButton* conserver_;
  QRadioButton* calcul_;
  QRadioButton* decaler_;
  QLineEdit* temps_;
  QLineEdit* correspondance_[NB_CV_MAX];
  QLineEdit* decalageX_;
  QLineEdit* decalageY_;
};
