#pragma once
// The widget of one property bar: a one-line form laid out in dialog units, that shows what
// its TBD says and hands it the user's typing, Enter, Escape and clicks. It holds no value of
// its own and dies with its bar.
#include "editor/bars/BD.h"

#include <QLineEdit>
#include <QWidget>

#include <map>
#include <vector>

class QLabel;
class QPushButton;

class QBarre : public QWidget, public TVueBD {
  Q_OBJECT
public:
  QBarre(TBD* bd, QWidget* parent);
  ~QBarre() override;

  // The bar shown, null once it is destroyed.
  TBD* Barre() const { return bd_; }
  // The widget of control id, null if the bar has none.
  QWidget* Controle(int id) const;
  // Lets go of the bar, which then has no widget; before the strip dies.
  void Lache();
  // The left edge in the strip, which scrolls sideways; the bar gives the top.
  void SetX(int x);

  // TVueBD
  void Change(int id) override;
  void Detruite() override;

protected:
  void mousePressEvent(QMouseEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;
  bool focusNextPrevChild(bool suivant) override;

private:
  class TEditTBD;
  class TStaticCoul;
  // Dialog units to pixels, from the font as the dialog manager measures it.
  int PxX(int du) const;
  int PxY(int du) const;
  void Construit();
  void Place();
  void Fond();

  TBD* bd_;
  int x_ = 0;
  int uniteX_ = 6;  // the font's average character width
  int uniteY_ = 14; // and its height
  std::map<int, QWidget*> controles_;
  std::vector<int> tabulation_;
};
