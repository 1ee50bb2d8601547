#include "video/Film.h"

#include <algorithm>
#include <cctype>

bool AjusteTailleFilm(int& largeur, int& hauteur, std::string& message) {
  message.clear();
  if (largeur < 2 || hauteur < 2 || largeur > LARGEUR_FILM_MAX || hauteur > HAUTEUR_FILM_MAX) {
    message = "taille " + std::to_string(largeur) + "x" + std::to_string(hauteur) +
              " refusée : de 2x2 à " + std::to_string(LARGEUR_FILM_MAX) + "x" + std::to_string(HAUTEUR_FILM_MAX);
    return false;
  }
  if (largeur % 2 || hauteur % 2) {
    const int l = largeur & ~1, h = hauteur & ~1;
    message = "taille " + std::to_string(largeur) + "x" + std::to_string(hauteur) + " arrondie à " +
              std::to_string(l) + "x" + std::to_string(h) + " : l'encodeur veut des tailles paires";
    largeur = l;
    hauteur = h;
  }
  return true;
}

bool ConteneurDuNom(const std::string& chemin, TConteneur& conteneur) {
  const auto point = chemin.rfind('.');
  const auto barre = chemin.rfind('/');
  if (point == std::string::npos || (barre != std::string::npos && point < barre)) return false;
  std::string ext = chemin.substr(point + 1);
  std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
  if (ext == "mp4") conteneur = TConteneur::Mp4;
  else if (ext == "webm") conteneur = TConteneur::Webm;
  else return false;
  return true;
}

bool VerifiePlage(int& de, int& a, int fin, std::string& erreur) {
  if (a < 0) a = fin;
  if (de < 0 || de >= fin || a > fin || a <= de) {
    erreur = "plage " + std::to_string(de) + ".." + std::to_string(a) + " hors de la routine (0.." +
             std::to_string(fin) + ", en centièmes de seconde)";
    return false;
  }
  return true;
}

int TempsImage(int de, int fps, int i) { return de + static_cast<int>(100LL * i / fps); }

int NbImages(int de, int a, int fps) {
  // The first i with de + 100 i / fps >= a.
  return a <= de ? 0 : static_cast<int>((static_cast<long long>(a - de) * fps + 99) / 100);
}

long long NbEchantillons(int images, int fps) {
  return (static_cast<long long>(images) * FREQUENCE_FILM + fps / 2) / fps;
}

long long PremierEchantillon(int de) { return static_cast<long long>(de) * FREQUENCE_FILM / 100; }

void ExtraitMusique(const float* musique, long long nbMusique, long long premier, long long debut,
                    float* sortie, int nb) {
  for (int k = 0; k < nb; ++k) {
    const long long j = premier + debut + k;
    const bool dedans = j >= 0 && j < nbMusique;
    sortie[2 * k] = dedans ? musique[2 * j] : 0.0f;
    sortie[2 * k + 1] = dedans ? musique[2 * j + 1] : 0.0f;
  }
}
