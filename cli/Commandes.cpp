#include "Commandes.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "demo/D3DDemo.h"

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "Rejeu.h"

namespace {

// Reads IN as the editor opens a routine, optionally solves, writes OUT as the editor saves.
int Reenregistre(const std::vector<std::string>& args, bool resoudre) {
  if (args.size() != 2) {
    std::fprintf(stderr, "trajectoires-cli : il faut deux fichiers, IN et OUT (voir --help)\n");
    return 2;
  }
  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, args[0])) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", args[0].c_str());
    return 1;
  }
  if (resoudre) TFenDessin::MiseAJourVTotale();
  if (!EcritFichier(args[1], TexteRoutine())) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", args[1].c_str());
    return 1;
  }
  return 0;
}

// Reads IN and builds the flight as the editor's demonstration does; false when IN can't
// be read. Whether a scene came of it is in Globals.
bool ConstruitVol(TFenCadre2& cadre, const std::string& in) {
  cadre.SetupWindow();
  if (!LitRoutine(cadre, in)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", in.c_str());
    return false;
  }
  TFenDessin::Demo();
  return true;
}

void Affiche(const char* debut, int kite, float t, const TVecteur3& a, const TVecteur3& b, bool deux) {
  std::printf("%s %d %.9g %.9g %.9g %.9g", debut, kite, static_cast<double>(t), static_cast<double>(a.x),
              static_cast<double>(a.y), static_cast<double>(a.z));
  if (deux) std::printf(" %.9g %.9g %.9g", static_cast<double>(b.x), static_cast<double>(b.y), static_cast<double>(b.z));
  std::printf("\n");
}

int Cles(const std::vector<std::string>& args) {
  if (args.size() != 1) {
    std::fprintf(stderr, "trajectoires-cli : keys prend un fichier, IN (voir --help)\n");
    return 2;
  }
  TFenCadre2 cadre;
  if (!ConstruitVol(cadre, args[0])) return 1;
  const TD3DDemo* scene = Globals.pD3DDemo;
  if (!scene) return 0;  // the demonstration was refused: its message has been said
  for (int k = 0; k < nbCV; ++k)
    for (const TClePosee& c : scene->Trajectoires[k].Ordre) {
      if (c.Position)
        Affiche("P", k, c.t, c.P, c.P, false);
      else
        Affiche("O", k, c.t, c.O.Z, c.O.Y, true);
    }
  std::printf("END %.9g\n", static_cast<double>(scene->tFin));
  return 0;
}

int Echantillon(const std::vector<std::string>& args) {
  char* fin = nullptr;
  const float t = args.size() == 2 ? std::strtof(args[1].c_str(), &fin) : 0;
  if (args.size() != 2 || fin == args[1].c_str() || *fin != '\0') {
    std::fprintf(stderr, "trajectoires-cli : sample prend IN et un temps T en centièmes (voir --help)\n");
    return 2;
  }
  if (!std::isfinite(t)) {
    std::fprintf(stderr, "trajectoires-cli : le temps T de sample est un nombre fini de centièmes, pas « %s » (voir --help)\n",
                 args[1].c_str());
    return 2;
  }
  TFenCadre2 cadre;
  if (!ConstruitVol(cadre, args[0])) return 1;
  const TD3DDemo* scene = Globals.pD3DDemo;
  if (!scene) return 0;
  for (int k = 0; k < nbCV; ++k) {
    const TVecteur3 p = scene->Trajectoires[k].Positions.Echantillonne(t);
    const TOrientation o = scene->Trajectoires[k].Orientations.Echantillonne(t);
    std::printf("S %d %.9g %.9g %.9g %.9g %.9g %.9g %.9g %.9g %.9g\n", k, static_cast<double>(p.x),
                static_cast<double>(p.y), static_cast<double>(p.z), static_cast<double>(o.Z.x),
                static_cast<double>(o.Z.y), static_cast<double>(o.Z.z), static_cast<double>(o.Y.x),
                static_cast<double>(o.Y.y), static_cast<double>(o.Y.z));
  }
  return 0;
}

}  // namespace

int Peins(const std::vector<std::string>& args);  // cli/Peinture.cpp
int Colle(const std::vector<std::string>& args);   // cli/Collage.cpp
int Suit(const std::vector<std::string>& args);    // cli/Suivi.cpp
int Exporte(const std::vector<std::string>& args);  // cli/Feuilles.cpp
int Insere(const std::vector<std::string>& args);   // cli/Feuilles.cpp
int Vignette(const std::vector<std::string>& args);  // cli/Vignette.cpp
int Controle(const std::vector<std::string>& args);  // cli/Controle.cpp
int Frise(const std::vector<std::string>& args);     // cli/Frise.cpp
#ifdef TRAJ_AVEC_RENDU
int Rend(const std::vector<std::string>& args);  // cli/Rendu.cpp, where Qt and OpenGL are at hand
int Imprime(const std::vector<std::string>& args);  // cli/Impression.cpp, where Qt's PDF writer is
int Filme(const std::vector<std::string>& args);  // cli/Video.cpp, with the renderer and FFmpeg
#endif

const std::vector<TCommande>& Commandes() {
  static const std::vector<TCommande> commandes = {
      {"resave", "IN OUT", "relit la routine IN et l'écrit dans OUT, sans rien recalculer",
       [](const std::vector<std::string>& a) { return Reenregistre(a, false); }},
      {"solve", "IN OUT", "relit IN, recalcule tous les temps et vitesses, écrit OUT",
       [](const std::vector<std::string>& a) { return Reenregistre(a, true); }},
      {"keys", "IN", "relit IN, construit le vol comme la démo, écrit chaque clé posée puis END tFin", Cles},
      {"sample", "IN T", "le même vol, puis la pose de chaque cerf-volant au temps T", Echantillon},
      {"paint", "IN SHEET OUT.log",
       "relit IN, peint la feuille SHEET comme l'écran, une ligne par tracé (--width W, défaut 880, au plus 16384 ; "
       "--current K:I ; --range K:I:J)",
       Peins},
      {"replay", "SCRIPT OUT",
       "l'éditeur sans écran : deux feuilles et un cerf-volant (ou, avec --in IN, la routine IN ouverte), "
       "les événements de SCRIPT, puis OUT écrit comme « E&nregistrer »",
       Rejoue},
      {"paste", "IN K FIRST LAST TK TARGET MODE SHIFT OUT",
       "relit IN, copie les éléments FIRST à LAST du cerf-volant K, les colle après l'élément TARGET du "
       "cerf-volant TK (MODE 551 à 555, SHIFT en centièmes), écrit OUT",
       Colle},
      {"follow", "IN K FIRST LAST DELAY OUT",
       "relit IN, les éléments FIRST à LAST du cerf-volant K mènent ; chaque suivant de --followers A,B,... "
       "les reprend après son dernier élément, DELAY centièmes de plus que le précédent (--mode 551 à 555, "
       "défaut 551), écrit OUT",
       Suit},
      {"export", "IN FIRST LAST OUT",
       "relit IN, écrit ses feuilles FIRST à LAST dans OUT comme « Enregistrer &feuilles sous... »", Exporte},
      {"insert", "IN FILE AFTER OUT",
       "relit IN, insère la routine FILE après sa feuille AFTER comme « In&sérer fichier après feuille "
       "active ... », écrit OUT (--times keep|calc|N, défaut keep ; --dx N, --dy N, défaut 0 ; "
       "--map a,b,c,d,e,f : le CV i prend le CV map[i] du fichier, défaut 1,2,3,4,5,6)",
       Insere},
      {"check", "IN", "le même vol, contrôlé : CV trop proches, lignes enroulées, CV hors de la fenêtre, trop rapides "
                      "(--ligne L, --distance D, --enroulement W, --vitesse V ; code 3 s'il y a un conflit)",
       Controle},
      {"vignette", "IN OUT.png",
       "relit IN, dessine sa feuille 1 sur fond blanc dans une image PNG de N sur N/2 pixels, pour les "
       "vignettes d'un gestionnaire de fichiers (--size N, de 16 à 4096, défaut 256 ; les figures sont "
       "cherchées aussi dans le dossier de IN)",
       Vignette},
      {"frise", "IN OUT.png",
       "relit IN, dessine sa frise (une piste par cerf-volant, les feuilles, la musique, les temps et les repères) "
       "dans une image PNG (--width W, de 16 à 16384, défaut 1600 ; --from T, --to T en centièmes ; --texte : "
       "la même frise en texte)",
       Frise},
#ifdef TRAJ_AVEC_RENDU
      {"render", "IN T OUT.png", "le même vol, tenu au temps T, dessiné en PNG (--size LxH, défaut 800x400 ; --team N, défaut 1 ; "
       "--traines [S], --lignes, --sol, --fenetre, --camera public|pilotes|juge)",
       Rend},
      {"print", "IN OUT.pdf", "relit IN, imprime toutes ses feuilles dans le PDF OUT.pdf (--per-page 1, 2, 4 ou 8, défaut 8 ; "
       "--pilote K : la feuille du pilote du CV K, de 1 à 6, sa trajectoire seule en couleur et annotée)",
       Imprime},
      {"video", "IN OUT.mp4|OUT.webm",
       "le même vol en film avec sa musique : H.264 et AAC en MP4, VP9 et Opus en WebM (--size LxH, défaut "
       "1280x720, au plus 3840x2160 ; --fps N, défaut 30 ; --from T, --to T en centièmes, défaut toute la "
       "routine ; --team N ; --traines [S], --lignes, --sol, --fenetre, --camera public|pilotes|juge)",
       Filme},
#endif
  };
  return commandes;
}
