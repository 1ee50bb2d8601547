#pragma once
// Looks at the document after each action of the user (a button let go, a key let go, a
// wheel turned), once the action has run: whatever it changed marks the document modified.
// Mouse moves are not looked at: a drag ends with a button let go.
#include <QObject>

class QSuiviModification : public QObject {
  Q_OBJECT
public:
  // Watches every event of the application.
  explicit QSuiviModification(QObject* parent = nullptr);
  ~QSuiviModification() override;

protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  bool Prevu = false;  // a look is already on its way
};
