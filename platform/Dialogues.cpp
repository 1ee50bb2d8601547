#include "platform/Dialogues.h"

#include <cstdio>

namespace {
TDialoguesConsole dialoguesConsole;
TDialogues* dialoguesCourants = &dialoguesConsole;
}  // namespace

TDialogues& Dialogues() { return *dialoguesCourants; }

void SetDialogues(TDialogues* d) { dialoguesCourants = d ? d : &dialoguesConsole; }

TReponse TDialoguesConsole::MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons,
                                       TIcone) {
  std::fprintf(stderr, "%s: %s\n", titre.c_str(), texte.c_str());
  return boutons == TBoutons::OuiNon || boutons == TBoutons::OuiNonAnnuler ||
                 boutons == TBoutons::EnregistrerAbandonnerAnnuler
             ? TReponse::Oui
             : TReponse::OK;
}

void TDialoguesConsole::MessageBeep(int) {}

void TDialoguesConsole::MessageStatut(const std::string& texte) { std::fprintf(stderr, "%s\n", texte.c_str()); }

std::optional<std::string> TDialoguesConsole::FichierAOuvrir(TDialogueFichier&) {
  return std::nullopt;
}

std::optional<std::string> TDialoguesConsole::FichierAEnregistrer(TDialogueFichier&) {
  return std::nullopt;
}

std::optional<std::string> TDialoguesConsole::Saisie(const std::string&, const std::string&, const std::string&) {
  return std::nullopt;
}

void TDialoguesConsole::SetCurseur(TCurseur) {}
