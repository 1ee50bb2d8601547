// trajectoires-cli render: one frame of the demonstration, drawn offscreen, as a PNG.
#include "Commandes.h"
#include "Rendu.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <QGuiApplication>
#include <QImage>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "demo/Journal.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "gui/gl/RenduGL.h"
#include "gui/gl/ServeurX.h"
#include "platform/Types.h"
#include "scene/Instant.h"
#include "scene/OptionsScene.h"
#include "gui/gl/SurfaceHorsEcran.h"

namespace {
bool LitEntier(const std::string& texte, int& valeur) {
  char* fin = nullptr;
  const long v = std::strtol(texte.c_str(), &fin, 10);
  if (texte.empty() || *fin != '\0' || v < 0 || v > 100000000) return false;
  valeur = static_cast<int>(v);
  return true;
}

bool LitTaille(const std::string& texte, int& largeur, int& hauteur) {
  const auto x = texte.find('x');
  return x != std::string::npos && LitEntier(texte.substr(0, x), largeur) &&
         LitEntier(texte.substr(x + 1), hauteur) && largeur > 0 && hauteur > 0 &&
         largeur <= TAILLE_SURFACE_MAX && hauteur <= TAILLE_SURFACE_MAX;
}

int Usage(const char* pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; render IN T OUT.png [--size LxH] [--team N] [--traines [S]] [--lignes] [--sol] [--fenetre] [--camera public|pilotes|juge] [--alertes] (voir --help)\n",
               pourquoi);
  return 2;
}
}  // namespace

int Rend(const std::vector<std::string>& arguments) {
  std::vector<std::string> args = arguments;
  TOptionsScene options;
  std::string pourquoi;
  if (!PrendOptionsScene(args, options, pourquoi)) return Usage(pourquoi.c_str());
  std::vector<std::string> positionnels;
  int largeur = 800, hauteur = 400, equipe = 1;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--size" || args[i] == "--team") {
      if (i + 1 >= args.size()) return Usage("valeur manquante après une option");
      const std::string& v = args[++i];
      if (args[i - 1] == "--size") {
        if (!LitTaille(v, largeur, hauteur))
          return Usage(("--size attend LxH, chacun de 1 à " + std::to_string(TAILLE_SURFACE_MAX)).c_str());
      } else if (!LitEntier(v, equipe) || equipe < 1 || equipe > 5) {
        return Usage("valeur d'option illisible");
      }
    } else {
      positionnels.push_back(args[i]);
    }
  }
  int t = 0;
  if (positionnels.size() != 3) return Usage("il faut IN, T et OUT.png");
  if (!LitEntier(positionnels[1], t)) return Usage("T doit être un entier positif, en centièmes de seconde");

  return AvecImagesRoutine(positionnels[0], largeur, hauteur, equipe, options, [&](TImagesRoutine& images) {
    if (static_cast<float>(t) >= images.Fin)
      std::fprintf(stderr, "trajectoires-cli : T = %d est après la fin (%d) : image au temps 0\n", t,
                   static_cast<int>(images.Fin));
    const QImage& image = images.Image(t);
    if (image.isNull() || !image.save(QString::fromStdString(positionnels[2]), "PNG")) {
      std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", positionnels[2].c_str());
      return 1;
    }
    return 0;
  });
}

int AvecImagesRoutine(const std::string& routine, int largeur, int hauteur, int equipe,
                      const TOptionsScene& options,
                      const std::function<int(TImagesRoutine&)>& travail) {
  std::string erreur;
  TServeurX serveur;
  if (!serveur.PrepareHorsEcran(erreur)) {
    std::fprintf(stderr, "trajectoires-cli : pas d'affichage pour OpenGL : %s\n", erreur.c_str());
    return 1;
  }
  int argc = 1;
  char nom[] = "trajectoires-cli";
  char* argv[] = {nom, nullptr};
  QGuiApplication application(argc, argv);

  TSurfaceHorsEcran surface(QSize(largeur, hauteur));
  TRenduGL rendu(surface);
  SetRendu(&rendu);
  int code = 0;
  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, routine)) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", routine.c_str());
    code = 1;
  } else {
    TImagesRoutine images;
    images.Musique = std::string(_FichierMusique, strnlen(_FichierMusique, sizeof _FichierMusique));
    // After the routine, whose TEAM line would otherwise choose the models; and no sound
    // here, so no box about it either.
    Team = equipe;
    _FichierMusique[0] = '\0';
    TFenDessin::Demo();
    TD3DDemo* scene = Globals.pD3DDemo;
    if (!scene) {
      std::fprintf(stderr, "trajectoires-cli : pas de scène à dessiner (voir le journal %s)\n",
                   CheminJournal().c_str());
      code = 1;
    } else {
      images.Fin = scene->tFin;
      images.Image = [scene, &surface, &options](int t) -> const QImage& {
        DessineInstant(*scene, t, options);
        return surface.Image();
      };
      code = travail(images);
    }
  }
  FermeDemo();
  SetRendu(nullptr);
  return code;
}
