// trajectoires-cli paint --png and vignette: the paint of a sheet on an image, through the Qt surface.
#include "Peinture.h"

#include <cstdlib>
#include <string>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "editor/FenDessin.h"
#include "gui/qt/DCQt.h"
#include "securite/Alertes.h"

bool PeintPng(TFenDessin& feuille, int largeur, const std::string& chemin, bool alertes) {
  // Fonts need a GUI application, but no display.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int argc = 1;
  char nom[] = "trajectoires-cli";
  char* argv[] = {nom, nullptr};
  QGuiApplication application(argc, argv);

  // The window erases to white before each paint.
  QImage image(largeur, largeur / 2, QImage::Format_RGB32);
  if (image.isNull()) return false;
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    TDCQt dc(&painter);
    feuille.Paint(dc, false, TRect());
    if (alertes) DessineAlertes(dc, feuille.Num);
  }
  return image.save(QString::fromStdString(chemin), "PNG");
}
