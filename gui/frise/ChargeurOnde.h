#pragma once
// The music's waveform, read off the interface thread: one reading per file (by its path, size
// and date), kept for the next time; a reading no longer wanted is abandoned.
#include <QObject>

#include <atomic>
#include <memory>
#include <string>

#include "frise/Onde.h"

class QChargeurOnde : public QObject {
  Q_OBJECT
public:
  explicit QChargeurOnde(QObject* parent = nullptr);
  ~QChargeurOnde() override;

  // Asks for the waveform of `chemin`; nothing when it is the one asked last. "" asks for none.
  void Demande(const std::string& chemin);
  // The waveform asked for, null until it is read or when it can't be; why in Raison().
  const TOnde* Onde() const { return onde_.get(); }
  const std::string& Raison() const { return raison_; }
  bool EnCours() const { return travail_ != nullptr; }

signals:
  void Prete();

private:
  struct TTravail;
  void Fini(const std::shared_ptr<TTravail>& travail);

  std::string chemin_;
  std::shared_ptr<const TOnde> onde_;
  std::string raison_;
  std::shared_ptr<TTravail> travail_;
};
