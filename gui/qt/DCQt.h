#pragma once
// The drawing surface on a QPainter: a widget in its paint event, an image, a printer or a
// PDF. Every call is converted to device pixels here and drawn with the identity transform,
// so that pens of width 0 stay one pixel and text never comes out mirrored by the logical
// mode's upward y.
#include <QPainter>
#include <QPointer>
#include <QImage>
#include <QList>
#include <QRect>
#include <QWidget>

#include "platform/DC.h"

class TDCQt : public TDCEtat {
public:
  // Draws through painter, which must stay active as long as the surface is used; null gives
  // a surface that maps and invalidates but draws nothing, as an event handler needs.
  explicit TDCQt(QPainter* painter);

  // Back to the state of a new surface: device mode, black pen, white brush, the default
  // font, text at the top left, black on opaque white. A printer's surface does this at
  // each new page.
  void Reinitialise();



  void MoveToEx(const TPoint& p) override;
  void LineTo(const TPoint& p) override;
  void Rectangle(const TRect& r) override;
  void Ellipse(const TRect& r) override;
  void Polygon(const std::vector<TPoint>& points) override;
  bool Arc(const TRect& r, const TPoint& debut, const TPoint& fin) override;
  void SetPixel(const TPoint& p, TColor couleur) override;

  void TextOut(const TPoint& p, const std::string& texte) override;

  // An image or a printer has nothing to repaint later.
  void InvalidateRect(const TRect&, bool) override {}

  // The device point of p in the current mode, rounded to the nearest pixel.
  QPoint VersPeripherique(const TPoint& p) const;
  // The device pixels of r: normalised, as the logical mode turns it upside down, and with
  // Qt's width and height, which count pixels, the right and bottom edges being excluded.
  QRect VersPeripherique(const TRect& r) const;
  // A height in the units of the current mode, in device pixels.
  double HauteurPeripherique(int hauteur) const;
  // The Qt font that TextOut would draw with, sized for the current mode.
  QFont PoliceQt() const;

private:
  QPen PenQt() const;
  void Trace(const QPoint& a, const QPoint& b);
  // The image the painter draws on, when one-pixel lines may be written into it directly:
  // a plain 32-bit image, unclipped and untransformed. Long lines are mostly short runs,
  // which cost Qt a call each.
  QImage* ImageDirecte() const;

  QPainter* painter_;
  bool pixels_;  // the painter fills pixels (an image, a widget), rather than writing vectors
  QPoint position_;  // current position, device pixels
  QList<QRect> encre_, trous_;  // runs of pixels of the line being drawn, kept to spare allocations
};

// The surface of a widget: invalidated rectangles become QWidget::update.
class TDCFenetre : public TDCQt {
public:
  // painter: the one of the paint event, or null outside it.
  TDCFenetre(QWidget& fenetre, QPainter* painter) : TDCQt(painter), fenetre_(&fenetre) {}

  void InvalidateRect(const TRect& r, bool effacer) override;

private:
  QPointer<QWidget> fenetre_;
};

// The face that stands on this system for a face a routine's drawing names: Arial and the
// old dialog face come out in a metric-compatible face, so labels keep their size.
QString FacePolice(const std::string& nom);
