#include "gui/qt/Traductions.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool ChargeTraductionsFrancaises(QCoreApplication& application) {
  // Dates and names of days in the dialogs follow the words.
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  auto* traducteur = new QTranslator(&application);
  // "qt_fr" gathers qtbase_fr and the other modules' files that Debian ships with it.
  if (!traducteur->load(QStringLiteral("qt_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
      !traducteur->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    delete traducteur;
    return false;
  }
  application.installTranslator(traducteur);
  return true;
}
