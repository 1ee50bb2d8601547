#pragma once
// The widget of one sheet: it hands its size and its paint events to the sheet's TFenDessin,
// which draws the wind window and the elements on it through a QPainter surface.
#include <QWidget>

class TFenDessin;

class QFeuille : public QWidget {
  Q_OBJECT
public:
  explicit QFeuille(QWidget* parent = nullptr);

  // The sheet shown; null shows a blank sheet.
  void SetFeuille(TFenDessin* feuille);
  TFenDessin* Feuille() const { return feuille_; }

protected:
  void paintEvent(QPaintEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;

private:
  TFenDessin* feuille_ = nullptr;
};
