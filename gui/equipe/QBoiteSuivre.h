#pragma once
// The dialog "Suivre le meneur": a view of a TBD_Suivre. Its choices are kept in the
// settings too, so that the next session offers them again.
#include <QDialog>
#include <vector>

class QCheckBox;
class QRadioButton;
class QSpinBox;
class TBD_Suivre;

class QBoiteSuivre : public QDialog {
  Q_OBJECT
public:
  QBoiteSuivre(TBD_Suivre& bd, QWidget* parent = nullptr);

  // Hands the controls to the box's settings, refused while no kite is ticked.
  void accept() override;

private:
  TBD_Suivre& bd_;
  std::vector<QCheckBox*> suiveurs_;
  QSpinBox* delai_;
  QRadioButton* modes_[5];
};
