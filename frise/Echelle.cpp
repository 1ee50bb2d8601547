#include "frise/Echelle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {
constexpr int TOLERANCE_BLOC = 3;   // pixels around a block too thin to aim at
constexpr int TOLERANCE_REPERE = 4;  // pixels around a mark's flag
constexpr int TOLERANCE_FIN = 3;     // pixels around a block's end, where a drag takes it
}  // namespace

TVueTemps Ajuste(double debut, double fin, int largeur) {
  TVueTemps v;
  const int utile = std::max(largeur - 20, 10);
  const double duree = std::max(fin - debut, 100.0);
  v.PixelsParCentieme = std::clamp(utile / duree, ZOOM_MIN, ZOOM_MAX);
  v.Debut = debut - 10 / v.PixelsParCentieme;
  return v;
}

TVueTemps Zoome(const TVueTemps& vue, double x, double facteur) {
  TVueTemps v;
  const double t = vue.T(x);
  v.PixelsParCentieme = std::clamp(vue.PixelsParCentieme * facteur, ZOOM_MIN, ZOOM_MAX);
  v.Debut = t - x / v.PixelsParCentieme;
  return v;
}

double PasRegle(double pixelsParCentieme, double pixelsMin) {
  static constexpr std::array<double, 17> pas = {1,    2,    5,    10,    20,    50,    100,   200,   500,
                                                  1000, 1500, 3000, 6000,  12000, 30000, 60000, 180000};
  for (double p : pas)
    if (p * pixelsParCentieme >= pixelsMin) return p;
  // Beyond half an hour a step, whole hours.
  double p = 360000;
  while (p * pixelsParCentieme < pixelsMin && p < 1e12) p *= 2;
  return p;
}

std::string TexteTemps(double t, double pas) {
  const long long c = std::llround(std::fabs(t));
  const char* signe = t < 0 && c != 0 ? "-" : "";
  const long long minutes = c / 6000, secondes = (c / 100) % 60, centiemes = c % 100;
  char texte[48];
  if (std::fmod(pas, 100) == 0)
    std::snprintf(texte, sizeof texte, "%s%lld:%02lld", signe, minutes, secondes);
  else if (std::fmod(pas, 10) == 0)
    std::snprintf(texte, sizeof texte, "%s%lld:%02lld.%lld", signe, minutes, secondes, centiemes / 10);
  else
    std::snprintf(texte, sizeof texte, "%s%lld:%02lld.%02lld", signe, minutes, secondes, centiemes);
  return texte;
}

TRect TDisposition::Piste(int i) const {
  const int haut = YPistes + i * HauteurPiste;
  return TRect(0, haut, Largeur, haut + HauteurPiste);
}

TDisposition Dispose(int largeur, int hauteur, int nbPistes) {
  TDisposition d;
  d.Largeur = std::max(largeur, 1);
  d.Hauteur = std::max(hauteur, 1);
  d.NbPistes = std::max(nbPistes, 0);
  d.YFeuilles = HAUTEUR_REGLE;
  d.YOnde = d.YFeuilles + HAUTEUR_FEUILLES;
  // The music takes a share of what is left, the kites the rest, evenly.
  const int reste = std::max(d.Hauteur - d.YOnde, 0);
  const int onde = std::min(HAUTEUR_ONDE_MAX, reste / (d.NbPistes + 1));
  d.YPistes = d.YOnde + onde;
  d.HauteurPiste = d.NbPistes > 0 ? std::max((d.Hauteur - d.YPistes) / d.NbPistes, 1) : 0;
  return d;
}

TTouche Touche(const TFrise& frise, const TDisposition& d, const TVueTemps& vue, const std::vector<TRepere>& reperes,
               const TPoint& p) {
  TTouche t;
  t.T = vue.T(p.x);
  if (p.x < 0 || p.x >= d.Largeur || p.y < 0 || p.y >= d.Hauteur) return t;
  if (p.y < d.YFeuilles) {
    t.Zone = TZone::Regle;
    // A mark outside the view is drawn at its edge, and taken there.
    double meilleur = TOLERANCE_REPERE + 1;
    for (std::size_t i = 0; i < reperes.size(); ++i) {
      const double x = std::clamp(vue.X(reperes[i].T), 0.0, static_cast<double>(d.Largeur - 1));
      if (const double ecart = std::fabs(x - p.x); ecart <= TOLERANCE_REPERE && ecart < meilleur) {
        meilleur = ecart;
        t.Repere = static_cast<int>(i);
      }
    }
    return t;
  }
  if (p.y < d.YOnde) {
    t.Zone = TZone::Feuilles;
    for (const TBandeFeuille& b : frise.Feuilles)
      if (t.T >= b.Debut && t.T < b.Fin) t.Feuille = b.Feuille;
    return t;
  }
  if (p.y < d.YPistes) {
    t.Zone = TZone::Onde;
    return t;
  }
  const int i = d.HauteurPiste > 0 ? (p.y - d.YPistes) / d.HauteurPiste : -1;
  if (i < 0 || i >= d.NbPistes || i >= static_cast<int>(frise.Pistes.size())) return t;
  t.Zone = TZone::Piste;
  t.Piste = i;
  // The block that holds the point; else the nearest one within the tolerance, which gives
  // the blocks of no duration (a start point, an element of no time) a width to click.
  double meilleur = TOLERANCE_BLOC + 0.5, meilleureFin = TOLERANCE_FIN + 0.5;
  for (const TBloc& b : frise.Pistes[static_cast<std::size_t>(i)].Blocs) {
    // Where two blocks meet, the end is the earlier one's: the later one's start follows it.
    if (const double ecart = std::fabs(vue.X(b.Fin) - p.x); ecart < meilleureFin) {
      meilleureFin = ecart;
      t.Fin = &b;
    }
    const double x0 = vue.X(std::min(b.Debut, b.Fin)), x1 = vue.X(std::max(b.Debut, b.Fin));
    const double ecart = p.x < x0 ? x0 - p.x : p.x > x1 ? p.x - x1 : 0;
    // On a tie the later block wins: the one whose start is at the point.
    if (ecart < meilleur || (ecart == 0 && meilleur == 0)) {
      meilleur = ecart;
      t.Bloc = &b;
    }
  }
  return t;
}
