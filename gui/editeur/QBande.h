#pragma once
// The strip under the sheet: the widgets of the open property bars, placed where TFenListe
// lays their bars out, with its scroll bars: the vertical one always, the horizontal one
// while the strip is narrower than a bar.
#include <QWidget>

class QBarre;
class QScrollBar;
class TFenListe;

class QBande : public QWidget {
  Q_OBJECT
public:
  QBande(TFenListe* liste, QWidget* parent);
  // Lets go of the bars first: an edit that loses the focus as it dies must not reach them.
  ~QBande() override;

  // The bars were laid out: makes the widgets of the new ones, places them all and sets the
  // scroll bars from the strip's position.
  void Barres();
  // The widget that shows the element's bar in this strip, or null.
  QBarre* Barre(const class TBD* bd) const;
  QScrollBar* Verticale() const { return verticale_; }
  QScrollBar* Horizontale() const { return horizontale_; }

protected:
  void resizeEvent(QResizeEvent* evenement) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  // Also the wheel turned over a bar: its fields leave it to the strip.
  void wheelEvent(QWheelEvent* evenement) override;

private:
  void Dispose();
  void Defile();

  TFenListe* liste_;
  QWidget* vue_ = nullptr;  // where the bars stand, between the scroll bars
  QScrollBar* verticale_ = nullptr;
  QScrollBar* horizontale_ = nullptr;
  bool miseAJour_ = false;
};
