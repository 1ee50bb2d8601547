#pragma once
// The timeline drawn with a QPainter: the dock's paint, the companion's picture and the
// benchmark all come through here.
#include <limits>
#include <vector>

#include "frise/Echelle.h"
#include "frise/Onde.h"
#include "frise/Pistes.h"
#include "frise/Tempo.h"

class QPainter;

struct TSceneFrise {
  const TFrise* Frise = nullptr;
  TDisposition Dispo;
  TVueTemps Vue;
  TTempo Tempo;
  const std::vector<TRepere>* Reperes = nullptr;
  const std::vector<TColonne>* Onde = nullptr;  // one per column, or null: an empty lane
  double Tete = std::numeric_limits<double>::quiet_NaN();  // the playhead, NaN for none
  const TElt* Selection = nullptr;
};

// On a surface already erased to white, as a widget's background or a new image is.
void PeintFrise(QPainter& p, const TSceneFrise& s);
