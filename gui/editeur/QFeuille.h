#pragma once
// The widget of the active sheet: it hands its size, its paint events, the mouse and the
// Escape and Delete keys to the sheet's TFenDessin, which draws through a QPainter surface.
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
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;
  void mouseMoveEvent(QMouseEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;

private:
  TFenDessin* feuille_ = nullptr;
};
