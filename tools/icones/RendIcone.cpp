// trajectoires-rend-icone SVG SIZE OUT.png: the picture of SVG, SIZE pixels square, on a
// transparent ground, as the icon themes want it beside the scalable one.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage : trajectoires-rend-icone SVG TAILLE SORTIE.png\n", stderr);
    return 2;
  }
  // Only pictures are drawn: no display is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  const int taille = std::atoi(argv[2]);
  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid() || taille < 1 || taille > 4096) {
    std::fprintf(stderr, "trajectoires-rend-icone : « %s » illisible ou taille %s refusée\n", argv[1], argv[2]);
    return 1;
  }
  QImage image(taille, taille, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter peintre(&image);
  peintre.setRenderHint(QPainter::Antialiasing);
  svg.render(&peintre);
  peintre.end();
  return image.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
