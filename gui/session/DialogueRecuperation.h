#pragma once
// "Récupérer le travail non enregistré": one line per copy left by an editor that stopped
// without saving, with its routine's name and the time of the copy, and for each the choice
// of "Récupérer", "Supprimer" or "Plus tard". One document is open at a time, so one line
// at most is recovered: choosing it on a line puts back "Plus tard" where it was chosen.
// Closing the box without validating keeps every copy for later.
#include <QDialog>

#include <vector>

#include "session/Recuperation.h"

class QButtonGroup;

enum class TChoixRecuperation { Recuperer, Supprimer, PlusTard };

class QDialogueRecuperation : public QDialog {
  Q_OBJECT
public:
  // The newest copy, first in `candidats`, is offered for recovery, the others for later.
  explicit QDialogueRecuperation(const std::vector<TCandidat>& candidats, QWidget* parent = nullptr);

  // One choice per line, in the order of the lines; every one "Plus tard" unless validated.
  std::vector<TChoixRecuperation> Choix() const;

private:
  std::vector<QButtonGroup*> groupes_;
};
