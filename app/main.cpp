#include "app/App.h"

#include <QApplication>
#include <QStringList>
#include <clocale>
#include <cstdio>
#include <cstring>

#include "Version.h"

int main(int argc, char** argv) {
  // Answered before anything of Qt: a package's checks and scripts ask without a display.
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("trajectoires %s\n", TRAJ_VERSION);
    return 0;
  }
  if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
    std::printf("Usage: trajectoires [ROUTINE.rou]\n"
                "       trajectoires --help | --version\n"
                "Ouvre l'éditeur de routines, avec ROUTINE.rou s'il est donné.\n");
    return 0;
  }
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
