#include "FrisePng.h"

#include <cstdlib>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "frise/Onde.h"
#include "frise/Tempo.h"
#include "gui/frise/PeintreFrise.h"

bool PeintFrisePng(const TFrise& frise, const TVueTemps& vue, int largeur, const std::string& musique,
                   const std::string& chemin, std::string& raison) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int argc = 1;
  char nom[] = "trajectoires-cli";
  char* argv[] = {nom, nullptr};
  QGuiApplication application(argc, argv);

  const int pistes = static_cast<int>(frise.Pistes.size());
  const int hauteur = HAUTEUR_REGLE + HAUTEUR_FEUILLES + HAUTEUR_ONDE_MAX + 30 * std::max(pistes, 1);
  TSceneFrise s;
  s.Frise = &frise;
  s.Dispo = Dispose(largeur, hauteur, pistes);
  s.Vue = vue;
  s.Tempo = Tempo;
  s.Reperes = &Reperes;
  std::vector<TColonne> colonnes;
  if (!musique.empty()) {
    TOnde onde;
    const TErreurOnde e = LitOnde(musique, onde);
    raison = TexteErreurOnde(e);
    if (e == TErreurOnde::Aucune) {
      colonnes = Colonnes(onde, vue, largeur);
      s.Onde = &colonnes;
    }
  }
  QImage image(largeur, hauteur, QImage::Format_RGB32);
  if (image.isNull()) return false;
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    PeintFrise(painter, s);
  }
  return image.save(QString::fromStdString(chemin), "PNG");
}
