#include "gui/editeur/Curseurs.h"

#include <QBitmap>
#include <QImage>

namespace {

// Twelve pixels have no middle one: the hot spot is the first past the middle, (6, 6), so
// the picture stays 12 by 12, with no blank margin added to centre it.
constexpr int COTE = 12;
constexpr int CENTRE = 6;

QCursor Carre(bool diagonales) {
  QImage image(COTE, COTE, QImage::Format_RGB32);
  image.fill(Qt::white);
  const auto encre = [&](int x, int y) { image.setPixel(x, y, qRgb(0, 0, 0)); };
  for (int i = 0; i < COTE; ++i) {
    encre(i, 0);
    encre(i, COTE - 1);
    encre(0, i);
    encre(COTE - 1, i);
    if (diagonales) {
      encre(i, i);
      encre(COTE - 1 - i, i);
    }
  }
  // Black where the lines are, transparent elsewhere: the same bits serve as picture and mask.
  const QBitmap traits = QBitmap::fromImage(image, Qt::MonoOnly | Qt::ThresholdDither);
  return QCursor(traits, traits, CENTRE, CENTRE);
}

}  // namespace

QCursor CurseurQt(TCurseur c) {
  switch (c) {
    case TCurseur::Carre: return Carre(false);
    case TCurseur::CarreCroix: return Carre(true);
    case TCurseur::Croix: return QCursor(Qt::CrossCursor);
    case TCurseur::Attente: return QCursor(Qt::WaitCursor);
    case TCurseur::Fleche: break;
  }
  return QCursor(Qt::ArrowCursor);
}
