// trajectoires-cli video: the routine as a film with its music, each frame drawn as render
// draws it, written by FFmpeg's libraries.
#include "Commandes.h"
#include "Rendu.h"
#include "SonFichier.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

#include "gui/video/EncodeurFFmpeg.h"
#include "gui/video/MusiqueFFmpeg.h"
#include "video/ArgumentsFilm.h"
#include "video/ExportFilm.h"
#include "video/Film.h"

namespace {
volatile std::sig_atomic_t Interrompu = 0;
void Interrompt(int) { Interrompu = 1; }

int Usage(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; video IN OUT.mp4|OUT.webm [--size LxH] [--fps N] [--from T] "
               "[--to T] [--team N] (voir --help)\n", pourquoi.c_str());
  return 2;
}
}  // namespace

int Filme(const std::vector<std::string>& arguments) {
  TParametresFilm p;
  std::string erreur;
  if (!LitArgumentsFilm(arguments, p, erreur)) return Usage(erreur);
  TDemandeFilm demande;
  demande.Sortie = p.Sortie;
  if (!ConteneurDuNom(demande.Sortie, demande.Format.Conteneur))
    return Usage("OUT doit finir par .mp4 ou .webm : « " + demande.Sortie + " »");
  std::string message;
  if (!AjusteTailleFilm(p.Largeur, p.Hauteur, message)) return Usage(message);
  if (!message.empty()) std::fprintf(stderr, "trajectoires-cli : %s\n", message.c_str());
  demande.Format.Largeur = p.Largeur;
  demande.Format.Hauteur = p.Hauteur;
  demande.Format.Fps = p.Fps;

  return AvecImagesRoutine(p.Entree, p.Largeur, p.Hauteur, p.Equipe, p.Scene, [&](TImagesRoutine& images) {
    demande.De = p.De;
    demande.A = p.A;
    if (!VerifiePlage(demande.De, demande.A, static_cast<int>(images.Fin), erreur)) return Usage(erreur);
    std::vector<float> musique;
    if (!images.Musique.empty()) {
      if (!EstUnWav(images.Musique) || !DecodeMusique(images.Musique, musique, erreur)) {
        if (erreur.empty())
          erreur = "musique « " + images.Musique + " » illisible : ce n'est pas un fichier WAV que le lecteur sait jouer";
        std::fprintf(stderr, "trajectoires-cli : %s ; film sans son\n", erreur.c_str());
      } else {
        demande.Musique = &musique;
      }
    }
    QImage rgba;
    const TDessinFilm dessine = [&](int t, int& pas) -> const unsigned char* {
      rgba = images.Image(t).convertToFormat(QImage::Format_RGBA8888);
      if (rgba.width() != p.Largeur || rgba.height() != p.Hauteur) return nullptr;
      pas = static_cast<int>(rgba.bytesPerLine());
      return rgba.constBits();
    };
    // Ctrl-C, or the player's cancel, stops between two frames and leaves no file.
    std::signal(SIGINT, Interrompt);
    std::signal(SIGTERM, Interrompt);
    // On a terminal, one line rewritten; for the player, which reads it, a line per frame.
    const bool terminal = isatty(STDERR_FILENO);
    const bool lignes = std::getenv("TRAJ_PROGRES") != nullptr;
    const TProgresFilm progres = [&](int fait, int total) {
      if (lignes) std::fprintf(stderr, "image %d / %d\n", fait, total);
      else if (terminal) std::fprintf(stderr, "\rimage %d / %d%s", fait, total, fait == total ? "\n" : "");
      return Interrompu == 0;
    };
    TEncodeurFFmpeg encodeur;
    erreur.clear();
    const TIssueFilm issue = ExporteFilm(encodeur, demande, dessine, progres, erreur);
    if (issue == TIssueFilm::Fait) return 0;
    if (terminal && !lignes) std::fprintf(stderr, "\n");
    std::fprintf(stderr, "trajectoires-cli : %s ; « %s » n'est pas écrit\n",
                 issue == TIssueFilm::Annule ? "film interrompu" : erreur.c_str(), demande.Sortie.c_str());
    return 1;
  });
}
