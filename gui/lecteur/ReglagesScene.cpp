#include "gui/lecteur/ReglagesScene.h"

#include <QSettings>

#include <cmath>

namespace {
bool Booleen(const QSettings& s, const char* cle) {
  const QVariant v = s.value(QString::fromLatin1(cle));
  return v.typeId() == QMetaType::Bool ? v.toBool() : v.toString() == QStringLiteral("true");
}
}  // namespace

TReglagesScene LitReglagesScene() {
  QSettings s;
  s.beginGroup(QStringLiteral("scene"));
  TReglagesScene r;
  bool ok = false;
  const double d = s.value(QStringLiteral("dureeTraines")).toDouble(&ok);
  if (ok && std::isfinite(d) && d > 0 && d <= 60) r.DureeTraines = d;
  if (Booleen(s, "traines")) r.Options.Traines = r.DureeTraines;
  r.Options.Lignes = Booleen(s, "lignes");
  r.Options.Sol = Booleen(s, "sol");
  r.Options.Fenetre = Booleen(s, "fenetre");
  const int camera = s.value(QStringLiteral("camera")).toInt(&ok);
  if (ok && camera >= 0 && camera <= static_cast<int>(TCamera::Juge)) r.Options.Camera = static_cast<TCamera>(camera);
  return r;
}

void EcritReglagesScene(const TReglagesScene& r) {
  QSettings s;
  s.beginGroup(QStringLiteral("scene"));
  s.setValue(QStringLiteral("traines"), r.Options.Traines > 0);
  s.setValue(QStringLiteral("dureeTraines"), r.DureeTraines);
  s.setValue(QStringLiteral("lignes"), r.Options.Lignes);
  s.setValue(QStringLiteral("sol"), r.Options.Sol);
  s.setValue(QStringLiteral("fenetre"), r.Options.Fenetre);
  s.setValue(QStringLiteral("camera"), static_cast<int>(r.Options.Camera));
}
