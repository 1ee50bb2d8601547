#include "gui/video/QExportVideo.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>
#include <QRegularExpression>

#include "platform/Dialogues.h"

QExportVideo::QExportVideo(QWidget* parent, QString compagnon)
    : QObject(parent), parent_(parent), compagnon_(std::move(compagnon)) {
  connect(&processus_, &QProcess::readyReadStandardError, this, &QExportVideo::LitProgres);
  connect(&processus_, &QProcess::finished, this, &QExportVideo::Termine);
  connect(&processus_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError e) {
    if (e == QProcess::FailedToStart) Termine(1, QProcess::CrashExit);
  });
}

QExportVideo::~QExportVideo() {
  // The companion removes its partial film on SIGTERM; wait for it to have done so.
  if (EnCours()) {
    processus_.terminate();
    processus_.waitForFinished(30000);
  }
}

QString QExportVideo::Compagnon() {
  const QString dossier = QCoreApplication::applicationDirPath();
  for (const QString& chemin : {dossier + "/trajectoires-cli", dossier + "/../cli/trajectoires-cli"})
    if (QFileInfo(chemin).isExecutable()) return QFileInfo(chemin).canonicalFilePath();
  return {};
}

bool QExportVideo::Lance(const std::string& routine, TParametresFilm p) {
  if (EnCours()) return false;
  const QString& compagnon = compagnon_;
  dossier_ = std::make_unique<QTemporaryDir>();
  if (compagnon.isEmpty() || !dossier_->isValid()) {
    Dialogues().MessageBox(compagnon.isEmpty() ? "trajectoires-cli est introuvable à côté du programme."
                                               : "Pas de dossier temporaire pour la routine.",
                           "Exporter une vidéo", TBoutons::OK, TIcone::Erreur);
    return false;
  }
  // The routine as it stands, saved or not.
  p.Entree = dossier_->filePath(QStringLiteral("routine.rou")).toStdString();
  QFile f(QString::fromStdString(p.Entree));
  if (!f.open(QIODevice::WriteOnly) || f.write(routine.data(), static_cast<qint64>(routine.size())) < 0) {
    Dialogues().MessageBox("Impossible d'écrire la routine dans le dossier temporaire.", "Exporter une vidéo",
                           TBoutons::OK, TIcone::Erreur);
    return false;
  }
  f.close();
  QStringList arguments{QStringLiteral("video")};
  for (const std::string& a : ArgumentsFilm(p)) arguments << QString::fromStdString(a);
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert(QStringLiteral("TRAJ_PROGRES"), QStringLiteral("1"));
  processus_.setProcessEnvironment(env);
  annule_ = false;
  derniere_.clear();
  reste_.clear();
  // Not modal: the player goes on while the film is made.
  progres_ = new QProgressDialog(QString::fromUtf8("Export de « %1 »...").arg(QFileInfo(QString::fromStdString(p.Sortie)).fileName()),
                                 QStringLiteral("Annuler"), 0, 0, parent_);
  progres_->setWindowTitle(QStringLiteral("Exporter une vidéo"));
  progres_->setWindowModality(Qt::NonModal);
  progres_->setMinimumDuration(0);
  progres_->setAutoClose(false);
  progres_->setAutoReset(false);
  connect(progres_, &QProgressDialog::canceled, this, &QExportVideo::Annule);
  progres_->show();
  processus_.start(compagnon, arguments);
  return true;
}

void QExportVideo::Annule() {
  annule_ = true;
  if (EnCours()) processus_.terminate();
}

void QExportVideo::LitProgres() {
  reste_ += processus_.readAllStandardError();
  static const QRegularExpression image(QStringLiteral("^image (\\d+) / (\\d+)$"));
  int fin;
  while ((fin = reste_.indexOf('\n')) >= 0) {
    const QString ligne = QString::fromUtf8(reste_.left(fin));
    reste_.remove(0, fin + 1);
    const QRegularExpressionMatch m = image.match(ligne);
    if (m.hasMatch() && progres_) {
      progres_->setMaximum(m.captured(2).toInt());
      progres_->setValue(m.captured(1).toInt());
    } else if (!ligne.isEmpty()) {
      derniere_ = ligne;
    }
  }
}

void QExportVideo::Termine(int code, QProcess::ExitStatus statut) {
  LitProgres();
  if (progres_) {
    progres_->deleteLater();
    progres_ = nullptr;
  }
  dossier_.reset();
  const bool ok = !annule_ && statut == QProcess::NormalExit && code == 0;
  QString message = derniere_;
  if (annule_) message = QString::fromUtf8("Export annulé : le fichier n'est pas écrit.");
  else if (!ok && message.isEmpty()) message = QString::fromUtf8("L'export s'est interrompu.");
  emit Fini(ok, message);
}
