#pragma once
// The dialog "Sécurité": a view of a TBD_Securite, one number per line with its unit.
#include <QDialog>

#include <array>

#include "securite/BDSecurite.h"

class QLineEdit;

class QBoiteSecurite : public QDialog {
  Q_OBJECT
public:
  QBoiteSecurite(TBD_Securite& bd, QWidget* parent = nullptr);
  void accept() override;

private:
  TBD_Securite& bd_;
  std::array<QLineEdit*, TBD_Securite::NB_CHAMPS> saisies_{};
};
