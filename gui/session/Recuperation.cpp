#include "gui/session/Recuperation.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

#include <cstdlib>
#include <map>

#include "editor/FenCadre2.h"
#include "files/Ecriture.h"
#include "gui/session/DialogueRecuperation.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "session/Modification.h"

namespace fs = std::filesystem;

namespace {
QString Chemin(const fs::path& p) { return QString::fromStdString(p.string()); }
}  // namespace

QRecuperation::QRecuperation(fs::path dossier, QObject* parent)
    : QObject(parent),
      dossier_(std::move(dossier)),
      copie_(CopieNommee(dossier_, NomCopie(static_cast<long>(QCoreApplication::applicationPid()),
                                           QDateTime::currentMSecsSinceEpoch()))),
      verrou_(Chemin(copie_.Verrou)) {
  horloge_.start();
  // The folder is made at once; when it can't be, the first copy tried says so.
  QDir().mkpath(Chemin(dossier_));
  // No time limit: the lock is this editor's for as long as it runs.
  verrou_.setStaleLockTime(0);
  verrou_.tryLock(0);
  minuterie_.setSingleShot(true);
  connect(&minuterie_, &QTimer::timeout, this, &QRecuperation::Ecrit);
  observateur_ = AjouteObservateurModification([this](bool modifie) { Change(modifie); });
  if (DocumentModifie()) Change(true);
}

QRecuperation::~QRecuperation() {
  RetireObservateurModification(observateur_);
  // A clean end: nothing is left to recover.
  SupprimeCopie(copie_);
  verrou_.unlock();
}

fs::path QRecuperation::Dossier() {
  const char* etat = std::getenv("XDG_STATE_HOME");
  fs::path base;
  // Relative values are to be ignored, as the XDG rules say.
  if (etat && *etat && fs::path(etat).is_absolute())
    base = etat;
  else
    base = fs::path(QDir::homePath().toStdString()) / ".local" / "state";
  return base / "trajectoires" / "recuperation";
}

void QRecuperation::Change(bool modifie) {
  calendrier_.Change(modifie, Maintenant());
  if (!modifie) {
    // Saved, opened or new: the copy would only offer what the file holds.
    SupprimeCopie(copie_);
    ecrit_.clear();
  }
  Arme();
}

void QRecuperation::Arme() {
  const std::optional<std::int64_t> prochaine = calendrier_.Prochaine();
  if (!prochaine) {
    minuterie_.stop();
    return;
  }
  minuterie_.start(static_cast<int>(std::max<std::int64_t>(0, *prochaine - Maintenant())));
}

bool QRecuperation::Sauve() {
  std::string texte = TexteRoutine();
  // The same text is not written again: the copy on disk and its time stay those of the change.
  if (texte == ecrit_ && fs::exists(copie_.Routine)) return true;
  const TFicheRecuperation fiche{FichierRoutine, QDateTime::currentSecsSinceEpoch()};
  const bool reussie = EcritCopie(copie_, texte, fiche);
  ecrit_ = reussie ? std::move(texte) : std::string();
  return reussie;
}

void QRecuperation::Ecrit() {
  if (calendrier_.Due(Maintenant()) && calendrier_.Tentee(Sauve(), Maintenant()))
    Dialogues().MessageStatut("Copie de récupération impossible dans « " + dossier_.string() +
                              " » : le travail non enregistré ne sera pas protégé en cas d'arrêt brutal.");
  Arme();
}

bool QRecuperation::Propose(TFenCadre2& cadre, QWidget* parent) {
  // The locks of the copies offered are taken, so that no other editor starting now offers
  // them too; those kept for later are let go.
  std::map<fs::path, std::unique_ptr<QLockFile>> verrous;
  const std::vector<TCandidat> candidats = CopiesARecuperer(dossier_, [&](const TCopieRecuperation& c) {
    if (c.Verrou == copie_.Verrou) return false;
    auto verrou = std::make_unique<QLockFile>(Chemin(c.Verrou));
    // Stale only when its editor is gone, however old: a running editor keeps its lock.
    verrou->setStaleLockTime(0);
    if (!verrou->tryLock(0)) return false;
    verrous[c.Verrou] = std::move(verrou);
    return true;
  });
  if (candidats.empty()) return false;

  QDialogueRecuperation dialogue(candidats, parent);
  dialogue.exec();
  const std::vector<TChoixRecuperation> choix = dialogue.Choix();
  bool recuperee = false;
  for (std::size_t i = 0; i < candidats.size(); ++i) {
    const TCandidat& c = candidats[i];
    const TChoixRecuperation ch = i < choix.size() ? choix[i] : TChoixRecuperation::PlusTard;
    if (ch == TChoixRecuperation::Supprimer) {
      SupprimeCopie(c.Copie);
    } else if (ch == TChoixRecuperation::Recuperer && !recuperee && RecupereCopie(cadre, c)) {
      recuperee = true;
      // The old copy goes only once this editor's own holds the work.
      if (Sauve()) SupprimeCopie(c.Copie);
    }
    verrous[c.Copie.Verrou]->unlock();
  }
  return recuperee;
}
