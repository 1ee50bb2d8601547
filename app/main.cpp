#include "app/App.h"

#include <QApplication>
#include <QStringList>
#include <clocale>
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
  PrepareApplication(application);
  // Qt takes the user's locale, numbers included; under a French one the C library would read
  // "12.5" in a routine as 12. Files are written with a point whatever the locale.
  std::setlocale(LC_NUMERIC, "C");
  TApp app;
  app.Demarre();
  // "trajectoires ROUTINE.rou" opens the routine at start; Qt has taken its own arguments.
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() > 1) app.Ouvre(arguments.at(1).toStdString());
  app.ProposeRecuperations();
  return application.exec();
}
