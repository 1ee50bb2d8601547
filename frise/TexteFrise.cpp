#include "frise/TexteFrise.h"

#include "frise/Battements.h"
#include "model/Nombres.h"

namespace {
void Nombre(std::string& t, double v) {
  t += ' ';
  AjouteGcvt(t, v, 7);
}
}  // namespace

std::string TexteFrise(const TFrise& frise, const TTempo& tempo, const std::vector<TRepere>& reperes, double debut,
                       double fin) {
  std::string t = "ROUTINE";
  Nombre(t, frise.Debut);
  Nombre(t, frise.Fin);
  t += "\nFIN";
  Nombre(t, frise.FinRoutine);
  t += '\n';
  for (const TBandeFeuille& b : frise.Feuilles) {
    t += "FEUILLE " + std::to_string(b.Feuille);
    Nombre(t, b.Debut);
    Nombre(t, b.Fin);
    t += '\n';
  }
  for (const TPiste& p : frise.Pistes) {
    t += "CV " + std::to_string(p.Cv) + '\n';
    for (const TBloc& b : p.Blocs) {
      t += "BLOC " + std::to_string(b.Index) + " feuille " + std::to_string(b.Feuille);
      Nombre(t, b.Debut);
      Nombre(t, b.Fin);
      t += " « " + b.Nom + " »";
      if (b.Synchro) t += " synchro " + std::to_string(b.Synchro);
      if (b.Duree) t += " durée";
      t += '\n';
    }
  }
  if (tempo.Defini()) {
    t += "TEMPO";
    Nombre(t, tempo.Bpm);
    Nombre(t, tempo.T0);
    t += '\n';
    const std::vector<TBattement> battements = Battements(tempo, debut, fin);
    for (const TBattement& b : battements) {
      t += "TEMPS " + std::to_string(b.Numero);
      Nombre(t, b.T);
      if (b.Fort) t += " fort";
      t += '\n';
    }
  }
  for (const TRepere& r : reperes) {
    t += "REPERE";
    Nombre(t, r.T);
    t += " « " + r.Nom + " »\n";
  }
  return t;
}
