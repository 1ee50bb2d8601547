// The video command's arguments: read as the companion reads them, and written back by the
// player into the same request.
#include <gtest/gtest.h>

#include "video/ArgumentsFilm.h"

namespace {

std::vector<std::string> Mots(const std::string& ligne) {
  std::vector<std::string> mots;
  std::size_t i = 0;
  while ((i = ligne.find_first_not_of(' ', i)) != std::string::npos) {
    const std::size_t fin = ligne.find(' ', i);
    mots.push_back(ligne.substr(i, fin - i));
    i = fin;
  }
  return mots;
}

TParametresFilm Film(const char* entree, const char* sortie, int largeur = 1280, int hauteur = 720, int fps = 30,
                     int de = 0, int a = -1, int equipe = 1) {
  TParametresFilm p;
  p.Entree = entree;
  p.Sortie = sortie;
  p.Largeur = largeur;
  p.Hauteur = hauteur;
  p.Fps = fps;
  p.De = de;
  p.A = a;
  p.Equipe = equipe;
  return p;
}
TOptionsScene Scene(double traines, bool lignes, bool sol, bool fenetre, TCamera camera) {
  TOptionsScene o;
  o.Traines = traines;
  o.Lignes = lignes;
  o.Sol = sol;
  o.Fenetre = fenetre;
  o.Camera = camera;
  return o;
}

TEST(ArgumentsFilm, DefautsEtOptionsDansToutOrdre) {
  TParametresFilm p;
  std::string erreur;
  ASSERT_TRUE(LitArgumentsFilm(Mots("r.rou f.mp4"), p, erreur)) << erreur;
  EXPECT_EQ(p.Entree, "r.rou");
  EXPECT_EQ(p.Sortie, "f.mp4");
  EXPECT_EQ(p, Film("r.rou", "f.mp4"));

  TParametresFilm q;
  ASSERT_TRUE(LitArgumentsFilm(Mots("--fps 25 r.rou --sol --size 321x181 --traines --to 150 f.webm --from 50 "
                                    "--team 3 --camera juge --alertes"),
                               q, erreur))
      << erreur;
  TParametresFilm attendu = Film("r.rou", "f.webm", 321, 181, 25, 50, 150, 3);
  attendu.Scene.Sol = true;
  attendu.Scene.Traines = TRAINES_DEFAUT;
  attendu.Scene.Camera = TCamera::Juge;
  attendu.Scene.Securite = true;
  EXPECT_EQ(q, attendu);
}

TEST(ArgumentsFilm, ErreursDUsage) {
  const std::pair<const char*, const char*> cas[] = {
      {"r.rou", "il faut IN et OUT"},
      {"r.rou f.mp4 g.mp4", "il faut IN et OUT"},
      {"r.rou f.mp4 --fps", "valeur manquante après --fps"},
      {"r.rou f.mp4 --fps 0", "valeur illisible pour --fps : « 0 »"},
      {"r.rou f.mp4 --fps 121", "valeur illisible pour --fps : « 121 »"},
      {"r.rou f.mp4 --fps 2x", "valeur illisible pour --fps : « 2x »"},
      {"r.rou f.mp4 --size 640", "valeur illisible pour --size : « 640 »"},
      {"r.rou f.mp4 --size -2x4", "valeur illisible pour --size : « -2x4 »"},
      {"r.rou f.mp4 --from -1", "valeur illisible pour --from : « -1 »"},
      {"r.rou f.mp4 --team 6", "valeur illisible pour --team : « 6 »"},
      {"r.rou f.mp4 --vite", "option inconnue « --vite »"},
      {"r.rou f.mp4 --camera", "--camera prend public, pilotes ou juge"},
      {"r.rou f.mp4 --traines 61", "la durée des traînées"},
  };
  for (const auto& [ligne, message] : cas) {
    TParametresFilm p;
    std::string erreur;
    EXPECT_FALSE(LitArgumentsFilm(Mots(ligne), p, erreur)) << ligne;
    EXPECT_EQ(erreur.rfind(message, 0), 0u) << ligne << " : " << erreur;
  }
}

// What the player writes, the companion reads back as it was.
TEST(ArgumentsFilm, EcritsPuisRelusALIdentique) {
  std::vector<TParametresFilm> demandes(4);
  demandes[0] = Film("r.rou", "f.mp4");
  demandes[1] = Film("dossier/routine.rou", "/tmp/un film.webm", 640, 360, 24, 120, 900, 2);
  demandes[1].Scene = Scene(2.5, true, false, true, TCamera::Pilotes);
  demandes[2] = Film("a", "b.mp4", 3840, 2160, 120, 0, 0, 5);
  demandes[2].Scene = Scene(0.1, false, true, false, TCamera::Juge);
  demandes[3] = Film("a", "b.mp4", 2, 2, 1, 7, -1, 1);
  demandes[3].Scene = Scene(60, true, true, true, TCamera::Public);
  for (const TParametresFilm& d : demandes) {
    TParametresFilm relu;
    std::string erreur;
    ASSERT_TRUE(LitArgumentsFilm(ArgumentsFilm(d), relu, erreur)) << erreur;
    EXPECT_EQ(relu, d) << d.Sortie;
  }
}

}  // namespace
