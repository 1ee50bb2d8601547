#pragma once
// The paste dialog "Coller": a view of a TBD_Coller, which holds the values and judges OK.
#include <QDialog>

class QLineEdit;
class QRadioButton;
class TBD_Coller;

class QBoiteColler : public QDialog {
  Q_OBJECT
public:
  QBoiteColler(TBD_Coller& bd, QWidget* parent = nullptr);

  // Hands the controls to the box, and closes only if it takes them.
  void accept() override;

private:
  TBD_Coller& bd_;
  QRadioButton* modes_[5];
  QLineEdit* decalage_;
};
