#pragma once
// Reading pictures back: colours of pixels and of regions, and the box of what is not white.
#include <QColor>
#include <QImage>
#include <QRect>

#include <string>

inline QImage ImageBlanche(int largeur, int hauteur) {
  QImage image(largeur, hauteur, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

// "RRGGBB" as written in the case files.
inline QRgb Couleur(const std::string& hexa) { return 0xFF000000u | std::stoul(hexa, nullptr, 16); }

inline int Compte(const QImage& image, const QRect& zone, QRgb couleur) {
  int n = 0;
  const QRect r = zone & image.rect();
  for (int y = r.top(); y <= r.bottom(); ++y)
    for (int x = r.left(); x <= r.right(); ++x)
      if (image.pixel(x, y) == couleur) ++n;
  return n;
}

// Text is smoothed: a pixel is ink when it is clearly darker than the background.
inline bool Encre(QRgb p) { return qGray(p) < 128; }

// The smallest rectangle round the ink in zone; null when there is none.
inline QRect BoiteEncre(const QImage& image, const QRect& zone) {
  QRect boite;
  const QRect r = zone & image.rect();
  for (int y = r.top(); y <= r.bottom(); ++y)
    for (int x = r.left(); x <= r.right(); ++x)
      if (Encre(image.pixel(x, y))) boite |= QRect(x, y, 1, 1);
  return boite;
}
