#include "gui/session/Reglages.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <string>
#include <vector>

#include "session/FichiersRecents.h"

namespace {
const QString Cle = QStringLiteral("fichiersRecents");
}

void SuitFichiersRecents() {
  TFichiersRecents& liste = FichiersRecents();
  liste.Observateur = nullptr;
  std::vector<std::string> chemins;
  const QVariant valeur = QSettings().value(Cle);
  // A single path comes back as a string, a hand-edited value as anything at all.
  if (valeur.canConvert<QStringList>())
    for (const QString& c : valeur.toStringList()) chemins.push_back(c.toStdString());
  liste.Remplace(chemins);
  liste.Observateur = [] {
    QStringList chemins;
    for (const std::string& c : FichiersRecents().Tous()) chemins << QString::fromStdString(c);
    QSettings().setValue(Cle, chemins);
  };
}
