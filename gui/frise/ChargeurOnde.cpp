#include "gui/frise/ChargeurOnde.h"

#include <QCoreApplication>
#include <QPointer>

#include <filesystem>
#include <map>
#include <mutex>
#include <thread>
#include <tuple>

struct QChargeurOnde::TTravail {
  std::string Chemin;
  std::atomic<bool> Abandon{false};
  std::shared_ptr<const TOnde> Onde;
  TErreurOnde Erreur = TErreurOnde::Aucune;
};

namespace {

// A file is known again by its path, size and date: an edited file is read anew.
using TCle = std::tuple<std::string, std::uintmax_t, long long>;

std::mutex& Verrou() {
  static std::mutex m;
  return m;
}
std::map<TCle, std::shared_ptr<const TOnde>>& Cache() {
  static std::map<TCle, std::shared_ptr<const TOnde>> c;
  return c;
}

bool Cle(const std::string& chemin, TCle& cle) {
  std::error_code e;
  const auto taille = std::filesystem::file_size(chemin, e);
  if (e) return false;
  const auto date = std::filesystem::last_write_time(chemin, e);
  if (e) return false;
  cle = {chemin, taille, static_cast<long long>(date.time_since_epoch().count())};
  return true;
}

}  // namespace

QChargeurOnde::QChargeurOnde(QObject* parent) : QObject(parent) {}

QChargeurOnde::~QChargeurOnde() {
  if (travail_) travail_->Abandon = true;
}

void QChargeurOnde::Demande(const std::string& chemin) {
  if (chemin == chemin_) return;
  chemin_ = chemin;
  if (travail_) travail_->Abandon = true;
  travail_.reset();
  onde_.reset();
  raison_ = chemin.empty() ? "Pas de musique" : "";
  if (chemin.empty()) {
    emit Prete();
    return;
  }
  TCle cle;
  if (Cle(chemin, cle)) {
    const std::lock_guard<std::mutex> garde(Verrou());
    if (const auto it = Cache().find(cle); it != Cache().end()) {
      onde_ = it->second;
      emit Prete();
      return;
    }
  }
  auto travail = std::make_shared<TTravail>();
  travail->Chemin = chemin;
  travail_ = travail;
  raison_ = "Lecture de la musique...";
  QPointer<QChargeurOnde> moi(this);
  std::thread([travail, moi] {
    auto onde = std::make_shared<TOnde>();
    travail->Erreur = LitOnde(travail->Chemin, *onde, &travail->Abandon);
    if (travail->Erreur == TErreurOnde::Aucune) {
      travail->Onde = onde;
      TCle cle;
      if (Cle(travail->Chemin, cle)) {
        const std::lock_guard<std::mutex> garde(Verrou());
        if (Cache().size() >= 8) Cache().clear();  // a few songs at most: a session rarely has more
        Cache()[cle] = onde;
      }
    }
    if (travail->Abandon) return;
    // Back on the interface thread; the loader may have gone meanwhile.
    QMetaObject::invokeMethod(QCoreApplication::instance(), [travail, moi] {
      if (moi) moi->Fini(travail);
    });
  }).detach();
}

void QChargeurOnde::Fini(const std::shared_ptr<TTravail>& travail) {
  if (travail != travail_) return;  // asked for another file since
  travail_.reset();
  onde_ = travail->Onde;
  raison_ = TexteErreurOnde(travail->Erreur);
  emit Prete();
}
