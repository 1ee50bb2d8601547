#pragma once
// Message boxes, the beep, the editor's status line, the file and input dialogs and the
// cursor: every exchange with the user that is not drawing. Behaviour code reaches them
// only through Dialogues(), so that tests can script the answers.
#include <optional>
#include <string>

struct TDonneesImprimante;
class TBD_Coller;
class TBD_Feuille;
class TBD_InsererFic;
class TBD_Securite;
class TBD_Suivre;

// EnregistrerAbandonnerAnnuler: "Enregistrer" answers Oui, "Ne pas enregistrer" Non.
enum class TBoutons { OK, OKAnnuler, OuiNon, OuiNonAnnuler, EnregistrerAbandonnerAnnuler };
enum class TIcone { Aucune, Information, Question, Avertissement, Erreur };
enum class TReponse { OK, Annuler, Oui, Non };
enum class TCurseur { Fleche, Croix, Carre, CarreCroix, Attente };

// One file dialog of a command: what it shows, and the last file chosen in it, which the
// next showing starts from, so that each dialog remembers its own folder.
struct TDialogueFichier {
  std::string Titre;
  // Descriptions and patterns separated by bars: "fichiers routine ROU | *.rou|...".
  std::string Filtre;
  std::string Extension;  // given to a name typed without one
  std::string Dernier;
};

class TDialogues {
public:
  virtual ~TDialogues() = default;

  virtual TReponse MessageBox(const std::string& texte, const std::string& titre,
                              TBoutons boutons = TBoutons::OK, TIcone icone = TIcone::Aucune) = 0;
  virtual void MessageBeep(int type = -1) = 0;
  // The message area of the editor frame's status bar.
  virtual void MessageStatut(const std::string& texte) = 0;
  // File dialogs: the chosen path, or nothing when the user cancels. The file to open must
  // exist. The dialog keeps the path chosen in d.Dernier.
  virtual std::optional<std::string> FichierAOuvrir(TDialogueFichier& d) = 0;
  virtual std::optional<std::string> FichierAEnregistrer(TDialogueFichier& d) = 0;
  // The one-line input dialog: the text typed, or nothing on Cancel.
  virtual std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                            const std::string& valeur) = 0;
  virtual void SetCurseur(TCurseur curseur) = 0;
  // The print dialog (printer, copies, or a PDF file) and the page setup dialog (paper and
  // margins): they change donnees as the user chose, and are false when cancelled. With no
  // one to ask, they accept the settings as they are, as the first button would.
  virtual bool Impression(TDonneesImprimante&) { return true; }
  virtual bool MiseEnPage(TDonneesImprimante&) { return true; }
  // The editor's own dialog boxes. The box shows the controls of bd as its SetupWindow left
  // them, hands the user's OK to bd.CloseWindow(1) and stays open while that refuses. True
  // when it closes on OK; with no one to ask, they are cancelled.
  virtual bool Execute(TBD_Coller&) { return false; }
  virtual bool Execute(TBD_Feuille&) { return false; }
  virtual bool Execute(TBD_InsererFic&) { return false; }
  virtual bool Execute(TBD_Securite&) { return false; }
  virtual bool Execute(TBD_Suivre&) { return false; }
};

// Answers every box with its first button and writes what it was asked to standard error:
// what the command-line companion uses, and the default until the application installs its own.
class TDialoguesConsole : public TDialogues {
public:
  TReponse MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons,
                      TIcone icone) override;
  void MessageBeep(int type) override;
  void MessageStatut(const std::string& texte) override;
  std::optional<std::string> FichierAOuvrir(TDialogueFichier& d) override;
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier& d) override;
  std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                    const std::string& valeur) override;
  void SetCurseur(TCurseur curseur) override;
};

// Says nothing and answers every box with its first button: for runs with no one to ask,
// such as fuzzing and benchmarks.
class TDialoguesMuets : public TDialogues {
public:
  TReponse MessageBox(const std::string&, const std::string&, TBoutons, TIcone) override { return TReponse::OK; }
  void MessageBeep(int) override {}
  void MessageStatut(const std::string&) override {}
  std::optional<std::string> FichierAOuvrir(TDialogueFichier&) override { return {}; }
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier&) override { return {}; }
  std::optional<std::string> Saisie(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  void SetCurseur(TCurseur) override {}
};

TDialogues& Dialogues();
// Installs d (not owned) as the one used from now on; null brings back the console one.
void SetDialogues(TDialogues* d);
