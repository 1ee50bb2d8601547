#include "session/Recuperation.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <fstream>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lignes.h"
#include "model/Document.h"
#include "session/Modification.h"

namespace fs = std::filesystem;

namespace {
constexpr std::string_view ENTETE = "TRAJECTOIRES RECUPERATION 1";
constexpr std::string_view ORIGINAL = "ORIGINAL";
constexpr std::string_view INSTANT = "INSTANT";
// A card is a few lines: anything larger is not one, and is not read whole.
constexpr std::size_t TAILLE_FICHE_MAX = 8192;

// A line's key, and its value after one blank.
bool Cle(std::string_view ligne, std::string_view cle, std::string_view& valeur) {
  if (ligne.substr(0, cle.size()) != cle) return false;
  if (ligne.size() == cle.size()) {
    valeur = {};
    return true;
  }
  if (ligne[cle.size()] != ' ') return false;
  valeur = ligne.substr(cle.size() + 1);
  return true;
}

std::optional<std::string> LitDebut(const fs::path& chemin, std::size_t taille) {
  std::error_code ec;
  if (!fs::is_regular_file(chemin, ec)) return std::nullopt;
  std::ifstream f(chemin, std::ios::binary);
  if (!f) return std::nullopt;
  std::string texte(taille + 1, '\0');
  f.read(texte.data(), static_cast<std::streamsize>(texte.size()));
  if (f.bad()) return std::nullopt;
  texte.resize(static_cast<std::size_t>(f.gcount()));
  if (texte.size() > taille) return std::nullopt;
  return texte;
}

bool MemeFichier(const fs::path& a, const std::string& b) {
  if (b.empty()) return false;
  std::error_code ec;
  return fs::equivalent(a, b, ec) && !ec;
}
}  // namespace

std::string TexteFiche(const TFicheRecuperation& fiche) {
  std::string texte(ENTETE);
  texte += '\n';
  texte += ORIGINAL;
  texte += ' ';
  texte += fiche.Original;
  texte += '\n';
  texte += INSTANT;
  texte += ' ';
  texte += std::to_string(fiche.Instant);
  texte += '\n';
  return texte;
}

std::optional<TFicheRecuperation> LitFiche(std::string_view texte) {
  TFicheRecuperation fiche;
  bool entete = false, original = false, instant = false;
  while (!texte.empty()) {
    const std::size_t fin = texte.find('\n');
    std::string_view ligne = texte.substr(0, fin);
    texte = fin == std::string_view::npos ? std::string_view{} : texte.substr(fin + 1);
    if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
    // A path holds no NUL, and a card holds no other control than the line ends.
    if (ligne.find('\0') != std::string_view::npos || ligne.find('\r') != std::string_view::npos)
      return std::nullopt;
    if (!entete) {
      if (ligne != ENTETE) return std::nullopt;
      entete = true;
      continue;
    }
    std::string_view valeur;
    if (Cle(ligne, ORIGINAL, valeur)) {
      if (original) return std::nullopt;
      original = true;
      fiche.Original = valeur;
    } else if (Cle(ligne, INSTANT, valeur)) {
      if (instant || valeur.empty()) return std::nullopt;
      const auto [fin_nombre, erreur] = std::from_chars(valeur.data(), valeur.data() + valeur.size(), fiche.Instant);
      if (erreur != std::errc{} || fin_nombre != valeur.data() + valeur.size() || fiche.Instant < 0)
        return std::nullopt;
      instant = true;
    }
  }
  if (!original || !instant) return std::nullopt;
  return fiche;
}

TCopieRecuperation CopieNommee(const fs::path& dossier, const std::string& nom) {
  return {dossier / (nom + ".rou"), dossier / (nom + ".info"), dossier / (nom + ".lock")};
}

std::string NomCopie(long processus, std::int64_t instantMs) {
  return "copie-" + std::to_string(processus) + "-" + std::to_string(instantMs);
}

bool EcritCopie(const TCopieRecuperation& copie, const std::string& texte, const TFicheRecuperation& fiche) {
  if (MemeFichier(copie.Routine, fiche.Original) || MemeFichier(copie.Fiche, fiche.Original)) return false;
  TFicheRecuperation f = fiche;
  // A card is read by lines: a path that holds a line end can't be kept, the copy is then
  // offered unnamed rather than not at all.
  if (f.Original.find_first_of("\r\n") != std::string::npos) f.Original.clear();
  // The next start may be in another folder.
  std::error_code ec;
  if (!f.Original.empty())
    if (fs::path absolu = fs::absolute(f.Original, ec); !ec) f.Original = absolu.string();
  // The routine first: a card always stands beside a whole routine.
  return EcritFichier(copie.Routine.string(), texte) && EcritFichier(copie.Fiche.string(), TexteFiche(f));
}

void SupprimeCopie(const TCopieRecuperation& copie) {
  std::error_code ec;
  // The card first: a routine without a card is never offered.
  fs::remove(copie.Fiche, ec);
  fs::remove(copie.Routine, ec);
}

std::vector<TCandidat> CopiesARecuperer(const fs::path& dossier,
                                        const std::function<bool(const TCopieRecuperation&)>& libre) {
  std::vector<TCandidat> candidats;
  std::error_code ec;
  fs::directory_iterator it(dossier, ec), fin;
  for (; !ec && it != fin; it.increment(ec)) {
    const fs::path& chemin = it->path();
    if (chemin.extension() != ".info") continue;
    const std::optional<std::string> texte = LitDebut(chemin, TAILLE_FICHE_MAX);
    if (!texte) continue;
    const std::optional<TFicheRecuperation> fiche = LitFiche(*texte);
    if (!fiche) continue;
    TCandidat c{CopieNommee(dossier, chemin.stem().string()), *fiche};
    if (!LitFichier(c.Copie.Routine.string())) continue;
    candidats.push_back(std::move(c));
  }
  std::sort(candidats.begin(), candidats.end(), [](const TCandidat& a, const TCandidat& b) {
    if (a.Fiche.Instant != b.Fiche.Instant) return a.Fiche.Instant > b.Fiche.Instant;
    return a.Copie.Routine < b.Copie.Routine;
  });
  std::erase_if(candidats, [&](const TCandidat& c) { return !libre(c.Copie); });
  return candidats;
}

std::string NomRoutine(const TFicheRecuperation& fiche) {
  const std::string nom = fs::path(fiche.Original).filename().string();
  return nom.empty() ? "Sans titre" : nom;
}

std::string HeureCopie(std::int64_t instant) {
  const std::time_t t = static_cast<std::time_t>(instant);
  std::tm date{};
  if (!localtime_r(&t, &date)) return "?";
  char texte[32];
  if (std::strftime(texte, sizeof texte, "%d/%m/%Y %H:%M", &date) == 0) return "?";
  return texte;
}

bool RecupereCopie(TFenCadre2& cadre, const TCandidat& candidat) {
  TFenDessin* feuille = cadre.pFenDesActive;
  if (!feuille || !LitFichier(candidat.Copie.Routine.string())) return false;
  feuille->Ouvrir(candidat.Copie.Routine.string(), candidat.Fiche.Original);
  if (candidat.Fiche.Original.empty()) {
    // As a new routine: the next save asks for a name.
    FichierRoutine[0] = '\0';
    cadre.SetTitre("Dessin Trajectoires");
  }
  MarqueModifie();
  return true;
}

void TCalendrierRecuperation::Change(bool modifie, std::int64_t maintenant) {
  if (!modifie)
    Prochaine_.reset();
  else if (!Prochaine_)
    Prochaine_ = maintenant + PREMIERE;
}

bool TCalendrierRecuperation::Tentee(bool reussie, std::int64_t maintenant) {
  if (Prochaine_) Prochaine_ = maintenant + PERIODE;
  if (reussie) {
    EchecDit = false;
    return false;
  }
  const bool dire = !EchecDit;
  EchecDit = true;
  return dire;
}
