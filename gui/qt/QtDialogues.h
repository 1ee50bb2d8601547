#pragma once
// The dialogs of the real application: Qt's message box, file, input, print and page setup
// dialogs, the editor's own boxes, the editor's status bar and the mouse cursor. While it
// is the one in use, print jobs go to Qt's printers and PDF files, the ones its print
// dialog offers.
#include "platform/Dialogues.h"
#include "gui/qt/ImprimanteQt.h"

#include <QCursor>
#include <QPointer>
#include <QStatusBar>
#include <QString>
#include <QWidget>

class TQtDialogues : public TDialogues {
public:
  TQtDialogues();
  ~TQtDialogues() override;
  TQtDialogues(const TQtDialogues&) = delete;
  TQtDialogues& operator=(const TQtDialogues&) = delete;

  // The window the dialogs are centred on and modal to; none: centred on the screen.
  void SetParent(QWidget* parent) { parent_ = parent; }
  // Where MessageStatut writes; none: the message is dropped.
  void SetBarreStatut(QStatusBar* barre) { barre_ = barre; }
  // The widget whose cursor SetCurseur sets (the drawing area); the busy cursor is global.
  void SetZoneCurseur(QWidget* zone) { zone_ = zone; }

  TReponse MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons,
                      TIcone icone) override;
  void MessageBeep(int type) override;
  void MessageStatut(const std::string& texte) override;
  std::optional<std::string> FichierAOuvrir(TDialogueFichier& d) override;
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier& d) override;
  std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                    const std::string& valeur) override;
  void SetCurseur(TCurseur curseur) override;
  bool Impression(TDonneesImprimante& donnees) override;
  bool MiseEnPage(TDonneesImprimante& donnees) override;
  bool Execute(TBD_Coller& bd) override;
  bool Execute(TBD_Suivre& bd) override;
  bool Execute(TBD_Feuille& bd) override;
  bool Execute(TBD_InsererFic& bd) override;
  bool Execute(TBD_Securite& bd) override;

private:
  void RetireAttente();
  std::optional<std::string> Fichier(TDialogueFichier& d, bool enregistrer);

  QPointer<QWidget> parent_;
  QPointer<QStatusBar> barre_;
  QPointer<QWidget> zone_;
  bool attente_ = false;  // our busy cursor is on the application's override stack
  TPeripheriqueQt imprimantes_;
};

// A file filter in Qt's form. Callers may give it in the two-column form
// "Routines (*.cv)|*.cv|Tous (*.*)|*.*": each description is kept, with its patterns
// (';'-separated) appended in brackets when the description lacks them.
QString FiltreQt(const std::string& filtre);
