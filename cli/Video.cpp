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
#include "scene/OptionsScene.h"
#include "video/ExportFilm.h"
#include "video/Film.h"

namespace {
volatile std::sig_atomic_t Interrompu = 0;
void Interrompt(int) { Interrompu = 1; }

bool LitNombre(const std::string& texte, int mini, int maxi, int& valeur) {
  char* fin = nullptr;
  const long v = std::strtol(texte.c_str(), &fin, 10);
  if (texte.empty() || *fin != '\0' || v < mini || v > maxi) return false;
  valeur = static_cast<int>(v);
  return true;
}

bool LitTaille(const std::string& texte, int& largeur, int& hauteur) {
  const auto x = texte.find('x');
  return x != std::string::npos && LitNombre(texte.substr(0, x), 0, 1000000, largeur) &&
         LitNombre(texte.substr(x + 1), 0, 1000000, hauteur);
}

int Usage(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; video IN OUT.mp4|OUT.webm [--size LxH] [--fps N] [--from T] "
               "[--to T] [--team N] (voir --help)\n", pourquoi.c_str());
  return 2;
}
}  // namespace

int Filme(const std::vector<std::string>& arguments) {
  std::vector<std::string> args = arguments;
  TOptionsScene options;
  std::string erreur;
  if (!PrendOptionsScene(args, options, erreur)) return Usage(erreur);
  std::vector<std::string> positionnels;
  int largeur = 1280, hauteur = 720, fps = 30, de = 0, a = -1, equipe = 1;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& o = args[i];
    if (o == "--size" || o == "--fps" || o == "--from" || o == "--to" || o == "--team") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après " + o);
      const std::string& v = args[++i];
      const bool bon = o == "--size"   ? LitTaille(v, largeur, hauteur)
                       : o == "--fps"  ? LitNombre(v, 1, 120, fps)
                       : o == "--from" ? LitNombre(v, 0, 100000000, de)
                       : o == "--to"   ? LitNombre(v, 0, 100000000, a)
                                       : LitNombre(v, 1, 5, equipe);
      if (!bon) return Usage("valeur illisible pour " + o + " : « " + v + " »");
    } else if (o.size() > 1 && o[0] == '-') {
      return Usage("option inconnue « " + o + " »");
    } else {
      positionnels.push_back(o);
    }
  }
  if (positionnels.size() != 2) return Usage("il faut IN et OUT");
  TDemandeFilm demande;
  demande.Sortie = positionnels[1];
  if (!ConteneurDuNom(demande.Sortie, demande.Format.Conteneur))
    return Usage("OUT doit finir par .mp4 ou .webm : « " + demande.Sortie + " »");
  std::string message;
  if (!AjusteTailleFilm(largeur, hauteur, message)) return Usage(message);
  if (!message.empty()) std::fprintf(stderr, "trajectoires-cli : %s\n", message.c_str());
  demande.Format.Largeur = largeur;
  demande.Format.Hauteur = hauteur;
  demande.Format.Fps = fps;

  return AvecImagesRoutine(positionnels[0], largeur, hauteur, equipe, options, [&](TImagesRoutine& images) {
    demande.De = de;
    demande.A = a;
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
      if (rgba.width() != largeur || rgba.height() != hauteur) return nullptr;
      pas = static_cast<int>(rgba.bytesPerLine());
      return rgba.constBits();
    };
    // Ctrl-C, or the player's cancel, stops between two frames and leaves no file.
    std::signal(SIGINT, Interrompt);
    std::signal(SIGTERM, Interrompt);
    const bool terminal = isatty(STDERR_FILENO);
    const TProgresFilm progres = [&](int fait, int total) {
      if (terminal) std::fprintf(stderr, "\rimage %d / %d%s", fait, total, fait == total ? "\n" : "");
      return Interrompu == 0;
    };
    TEncodeurFFmpeg encodeur;
    erreur.clear();
    const TIssueFilm issue = ExporteFilm(encodeur, demande, dessine, progres, erreur);
    if (issue == TIssueFilm::Fait) return 0;
    if (terminal) std::fprintf(stderr, "\n");
    std::fprintf(stderr, "trajectoires-cli : %s ; « %s » n'est pas écrit\n",
                 issue == TIssueFilm::Annule ? "film interrompu" : erreur.c_str(), demande.Sortie.c_str());
    return 1;
  });
}
