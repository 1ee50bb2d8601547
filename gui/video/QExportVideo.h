#pragma once
// A film exported in the background: the companion's video command run on a copy of the
// routine as it stands, its progress shown in a box whose "Annuler" stops it; the companion
// then removes what it had written. The player stays usable meanwhile.
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <memory>

#include "video/ArgumentsFilm.h"

class QProgressDialog;

class QExportVideo : public QObject {
  Q_OBJECT
public:
  // `compagnon`: the program that makes the film, by default Compagnon().
  explicit QExportVideo(QWidget* parent, QString compagnon = Compagnon());
  ~QExportVideo() override;

  // Starts the film of `routine` (the text of a routine file) as `p` asks; p.Entree is not
  // used. False, with the reason said in a box, when it can't start.
  bool Lance(const std::string& routine, TParametresFilm p);
  void SetCompagnon(const QString& compagnon) { compagnon_ = compagnon; }
  bool EnCours() const { return processus_.state() != QProcess::NotRunning; }
  void Annule();

  // The companion beside the program, or in the build folder's cli/; empty when neither.
  static QString Compagnon();
  // The progress box while a film is made; null otherwise.
  QProgressDialog* Progres() const { return progres_; }

signals:
  // The film is whole (ok) or is not, with the companion's last words.
  void Fini(bool ok, const QString& message);

private:
  void LitProgres();
  void Termine(int code, QProcess::ExitStatus statut);

  QWidget* parent_;
  QString compagnon_;
  QProcess processus_;
  std::unique_ptr<QTemporaryDir> dossier_;
  QProgressDialog* progres_ = nullptr;
  QString derniere_;  // the last line the companion said that was not progress
  QByteArray reste_;
  bool annule_ = false;
};
