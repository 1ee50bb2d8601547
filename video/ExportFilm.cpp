#include "video/ExportFilm.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "video/Film.h"

namespace {
// An empty file of a name no one else has, in OUT's folder so that the rename stays on one
// file system; empty string when the folder can't be written.
std::string CreeTemporaire(const std::string& sortie) {
  const std::filesystem::path p(sortie);
  const std::filesystem::path dossier = p.has_parent_path() ? p.parent_path() : std::filesystem::path(".");
  std::string modele = (dossier / ("." + p.filename().string() + ".XXXXXX")).string();
  const int fd = mkstemp(modele.data());
  if (fd < 0) return {};
  // mkstemp's file is its owner's only; the film gets what any new file gets.
  const mode_t masque = umask(0);
  umask(masque);
  fchmod(fd, 0666 & ~masque);
  close(fd);
  return modele;
}

// The sound of frames [0, images): what was sent already is in `envoyes`.
bool EnvoieSon(TEncodeurVideo& encodeur, const TDemandeFilm& demande, int images, long long& envoyes,
               std::string& erreur) {
  const long long jusqua = NbEchantillons(images, demande.Format.Fps);
  const std::vector<float>& musique = *demande.Musique;
  const long long premier = PremierEchantillon(demande.De);
  std::vector<float> bloc;
  while (envoyes < jusqua) {
    const int nb = static_cast<int>(std::min<long long>(jusqua - envoyes, 4096));
    bloc.resize(2 * static_cast<std::size_t>(nb));
    ExtraitMusique(musique.data(), static_cast<long long>(musique.size() / 2), premier, envoyes, bloc.data(), nb);
    if (!encodeur.AjouteSon(bloc.data(), nb, erreur)) return false;
    envoyes += nb;
  }
  return true;
}

TIssueFilm Ecrit(TEncodeurVideo& encodeur, const TDemandeFilm& demande, const std::string& chemin,
                 const TDessinFilm& dessine, const TProgresFilm& progres, std::string& erreur) {
  TFormatFilm format = demande.Format;
  format.AvecSon = demande.Musique != nullptr;
  if (!encodeur.Ouvre(chemin, format, erreur)) return TIssueFilm::Echec;
  const int total = NbImages(demande.De, demande.A, format.Fps);
  long long envoyes = 0;
  for (int i = 0; i < total; ++i) {
    const int t = TempsImage(demande.De, format.Fps, i);
    int pas = 0;
    const unsigned char* image = dessine(t, pas);
    if (!image) {
      erreur = "image au temps " + std::to_string(t) + " impossible à dessiner";
      return TIssueFilm::Echec;
    }
    if (!encodeur.AjouteImage(image, pas, erreur)) return TIssueFilm::Echec;
    if (format.AvecSon && !EnvoieSon(encodeur, demande, i + 1, envoyes, erreur)) return TIssueFilm::Echec;
    if (progres && !progres(i + 1, total)) return TIssueFilm::Annule;
  }
  return encodeur.Termine(erreur) ? TIssueFilm::Fait : TIssueFilm::Echec;
}
}  // namespace

TIssueFilm ExporteFilm(TEncodeurVideo& encodeur, const TDemandeFilm& demande, const TDessinFilm& dessine,
                       const TProgresFilm& progres, std::string& erreur) {
  const std::string temporaire = CreeTemporaire(demande.Sortie);
  if (temporaire.empty()) {
    erreur = "impossible d'écrire dans le dossier de « " + demande.Sortie + " »";
    return TIssueFilm::Echec;
  }
  TIssueFilm issue = Ecrit(encodeur, demande, temporaire, dessine, progres, erreur);
  std::error_code e;
  if (issue == TIssueFilm::Fait) {
    std::filesystem::rename(temporaire, demande.Sortie, e);
    if (e) {
      erreur = "impossible d'écrire « " + demande.Sortie + " »";
      issue = TIssueFilm::Echec;
    }
  }
  if (issue != TIssueFilm::Fait) std::filesystem::remove(temporaire, e);
  return issue;
}
