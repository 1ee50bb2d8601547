#include "app/App.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char** argv) {
  // Without a display Qt aborts with a message about plugins that says little; say it plainly.
  if (!AffichageDisponible(argc, argv)) {
    std::fputs("trajectoires : aucun affichage disponible (DISPLAY n'est pas défini) ; lancez le programme "
               "dans une session graphique ou sous xvfb-run.\n",
               stderr);
    return 1;
  }
  QApplication application(argc, argv);
  TApp app;
  app.Demarre();
  return application.exec();
}
