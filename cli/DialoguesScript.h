#pragma once
// The dialogs of the companion's editor commands: what they show goes to standard error,
// one line each, and their answers come from a queue, first in first out. A dialog with no
// answer waiting is cancelled; an answer of the wrong kind stops the run.
#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogues.h"

enum class TIssue { Continue, Illisible, Usage };

// One queued answer: its kind ("ok", "cancel", "file", "texte", "coller", "feuilles",
// "inserer", "securite") and its words.
struct TReponseScript {
  std::string Genre;
  std::vector<std::string> Mots;
};

class TDialoguesScript : public TDialogues {
public:
  TReponse MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons, TIcone) override;
  void MessageBeep(int) override;
  void MessageStatut(const std::string& texte) override;
  std::optional<std::string> FichierAOuvrir(TDialogueFichier&) override;
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier&) override;
  std::optional<std::string> Saisie(const std::string&, const std::string&, const std::string&) override;
  void SetCurseur(TCurseur) override {}
  bool Execute(TBD_Coller& bd) override;
  bool Execute(TBD_Feuille& bd) override;
  bool Execute(TBD_InsererFic& bd) override;
  bool Execute(TBD_Securite& bd) override;

  // Queues the answer written as the words after "answer"; false, with `erreur`, when they
  // are not one. `texte` is the rest of the line, for a file or a typed text with blanks.
  bool Ajoute(const std::vector<std::string>& mots, const std::string& texte, std::string& erreur);

  std::deque<TReponseScript> Reponses;
  TIssue Issue = TIssue::Continue;
  std::string Message;

private:
  std::optional<std::string> Fichier();
  // Answers of kind `genre` given to bd by `remplit` until its CloseWindow takes one.
  template <class Boite, class Remplit>
  bool Repond(const char* genre, Boite& bd, Remplit remplit);
  // The next answer if it is of one of the kinds; a wrong kind stops the run.
  std::optional<TReponseScript> Prend(std::initializer_list<const char*> genres);
};
