#pragma once
// Recovery copies of the open routine: while it holds unsaved changes, the editor writes it
// now and then to a folder of its own, so that a crash loses a few minutes of work at most.
// A copy is three files of one name in that folder:
//   NOM.rou   the routine as a save writes it, read back by the normal reader;
//   NOM.info  its card: the routine's own path and when the copy was written;
//   NOM.lock  held by the running editor that writes the copy (on the Qt side).
// At the next start, the copies whose editor is gone are offered to the user.
// Nothing here knows a clock: times come from the caller.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class TFenCadre2;

// What the card says.
struct TFicheRecuperation {
  std::string Original;      // the routine's path; empty when it had none
  std::int64_t Instant = 0;  // when the copy was written, in seconds since 1970 (UTC)
};
// The card's text: a first line that names the format, then ORIGINAL and INSTANT lines.
std::string TexteFiche(const TFicheRecuperation& fiche);
// The card read back; nothing for anything else than what TexteFiche writes (lines in
// another order, unknown lines and a carriage return before a line feed are accepted).
std::optional<TFicheRecuperation> LitFiche(std::string_view texte);

// The files of one copy.
struct TCopieRecuperation {
  std::filesystem::path Routine, Fiche, Verrou;
};
TCopieRecuperation CopieNommee(const std::filesystem::path& dossier, const std::string& nom);
// A name that no other editor uses: its process and the moment it started, in milliseconds.
std::string NomCopie(long processus, std::int64_t instantMs);

// Writes `texte` as the copy's routine, then its card, each whole or not at all; the card
// holds the original's absolute path. Refused
// (false) when the copy would land on the routine's own file. False on any failure.
bool EcritCopie(const TCopieRecuperation& copie, const std::string& texte, const TFicheRecuperation& fiche);
// Removes the routine and the card, not the lock: the editor that holds it removes it.
void SupprimeCopie(const TCopieRecuperation& copie);

// A copy that may be offered.
struct TCandidat {
  TCopieRecuperation Copie;
  TFicheRecuperation Fiche;
};
// The copies of `dossier` with a card that reads and a routine that can be opened, for which
// `libre(copie)` is true (no running editor holds its lock), the newest first. `libre` is
// asked last, of those only: on the Qt side it takes the lock.
std::vector<TCandidat> CopiesARecuperer(const std::filesystem::path& dossier,
                                        const std::function<bool(const TCopieRecuperation&)>& libre);

// How a copy is named to the user: the file name of its original, or "Sans titre".
std::string NomRoutine(const TFicheRecuperation& fiche);
// The time of a copy as the user reads it, in local time: "14/03/2025 09:05".
std::string HeureCopie(std::int64_t instant);

// Opens the copy in the editor as the routine it was made from, with its changes not saved:
// named after its original (figures are looked up beside it), or unnamed when it had none.
// False when the copy can't be read.
bool RecupereCopie(TFenCadre2& cadre, const TCandidat& candidat);

// When the copies are due, from times in milliseconds of any steady clock: the first change
// after the document was saved is copied PREMIERE ms later (changes close together make one
// copy), then every PERIODE ms while it stays modified; nothing while it is not.
class TCalendrierRecuperation {
public:
  static constexpr std::int64_t PREMIERE = 2000;
  static constexpr std::int64_t PERIODE = 120000;

  // The document's modified state changed.
  void Change(bool modifie, std::int64_t maintenant);
  // When the next copy is due; nothing while the document is not modified.
  std::optional<std::int64_t> Prochaine() const { return Prochaine_; }
  bool Due(std::int64_t maintenant) const { return Prochaine_ && maintenant >= *Prochaine_; }
  // A copy was tried: the next one is a period later. True when the user must be told of
  // its failure: the first failure since the last copy written, so that a folder that can't
  // be written is told once, not every period.
  bool Tentee(bool reussie, std::int64_t maintenant);

private:
  std::optional<std::int64_t> Prochaine_;
  bool EchecDit = false;
};
