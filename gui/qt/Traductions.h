#pragma once
// Qt's own words (the buttons of message boxes, the file, print and page-setup dialogs) in
// French, as every other word of the program, whatever the system's language.
class QCoreApplication;

// Installs Qt's French translations on the application; false when the system has none
// (Debian's package qt6-translations-l10n), in which case Qt speaks English.
bool ChargeTraductionsFrancaises(QCoreApplication& application);
