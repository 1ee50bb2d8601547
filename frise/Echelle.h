#pragma once
// The timeline's geometry: how time maps to pixels, the ruler's steps, where each lane lies,
// and what a point of the view falls on.
#include <string>
#include <vector>

#include "frise/Pistes.h"
#include "frise/Tempo.h"
#include "platform/Types.h"

struct TVueTemps {
  double Debut = 0;                // the time at the left edge, hundredths
  double PixelsParCentieme = 0.1;  // always above 0
  double X(double t) const { return (t - Debut) * PixelsParCentieme; }
  double T(double x) const { return Debut + x / PixelsParCentieme; }
};

inline constexpr double ZOOM_MIN = 1e-4;  // pixels per hundredth: a day in 8640 pixels
inline constexpr double ZOOM_MAX = 20;    // 20 pixels per hundredth

// The view that shows debut to fin in largeur pixels, with a little room on both sides.
TVueTemps Ajuste(double debut, double fin, int largeur);
// The view zoomed by facteur around the pixel x, which keeps its time.
TVueTemps Zoome(const TVueTemps& vue, double x, double facteur);

// The ruler's step in hundredths: the smallest of 1, 2, 5 hundredths and so on, seconds and
// minutes, whose ticks are at least pixelsMin apart.
double PasRegle(double pixelsParCentieme, double pixelsMin = 70);
// A time of the ruler for its step: "1:05", "1:05.5", "1:05.25", "-0:02".
std::string TexteTemps(double t, double pas);

// The bands of the view from top to bottom: ruler, sheets, music, then one lane per kite.
struct TDisposition {
  int Largeur = 0, Hauteur = 0;
  int YFeuilles = 0, YOnde = 0, YPistes = 0;
  int HauteurPiste = 0;
  int NbPistes = 0;
  // The lane of kite index i from the top.
  TRect Piste(int i) const;
};
inline constexpr int HAUTEUR_REGLE = 22;
inline constexpr int HAUTEUR_FEUILLES = 16;
inline constexpr int HAUTEUR_ONDE_MAX = 48;
TDisposition Dispose(int largeur, int hauteur, int nbPistes);

enum class TZone { Aucune, Regle, Feuilles, Onde, Piste };

struct TTouche {
  TZone Zone = TZone::Aucune;
  double T = 0;               // the time under the point
  int Piste = -1;             // in a lane: its index
  const TBloc* Bloc = nullptr;  // the block under the point, or nearest within a few pixels
  const TBloc* Fin = nullptr;   // the block whose end is within a few pixels of the point
  int Feuille = 0;            // on the sheets' band: the sheet under the point
  int Repere = -1;            // on the ruler: the mark whose flag is under the point
};
// What the point p of the view falls on.
TTouche Touche(const TFrise& frise, const TDisposition& d, const TVueTemps& vue, const std::vector<TRepere>& reperes,
               const TPoint& p);
