#pragma once
// The sheet export dialog "Enregistrer Feuilles": a view of a TBD_Feuille. Entering either
// number of the range chooses the range, as the box decides.
#include <QDialog>

class QLineEdit;
class QRadioButton;
class TBD_Feuille;

class QBoiteFeuille : public QDialog {
  Q_OBJECT
public:
  QBoiteFeuille(TBD_Feuille& bd, QWidget* parent = nullptr);

  void accept() override;

protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  void MontreChoix();

  TBD_Feuille& bd_;
  QRadioButton* tout_;
  QRadioButton* feuilles_;
  QLineEdit* premiere_;
  QLineEdit* derniere_;
};
