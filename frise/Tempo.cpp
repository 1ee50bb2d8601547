#include "frise/Tempo.h"

#include <cmath>

#include "files/Lignes.h"
#include "model/Bornes.h"
#include "model/Nombres.h"

TTempo Tempo;
std::vector<TRepere> Reperes;

void VideRythme() {
  Tempo = TTempo();
  Reperes.clear();
}

bool TempoAdmis(double bpm) { return std::isfinite(bpm) && bpm > 0 && bpm <= TEMPO_MAX; }

bool LitLigneTempo(TLecteurChamps& champs) {
  float bpm = 0, t0 = 0;
  if (!champs.Reel(bpm) || !TempoAdmis(bpm)) return false;
  // The first beat may be left out: the music's start.
  if (champs.Reel(t0) && !TempsAdmis(t0)) return false;
  Tempo.Bpm = bpm;
  Tempo.T0 = t0;
  return true;
}

bool LitLigneRepere(TLecteurChamps& champs) {
  float t = 0;
  if (!champs.Reel(t) || !TempsAdmis(t)) return false;
  TRepere r;
  r.T = t;
  champs.FinDeLigne(r.Nom);
  Reperes.push_back(std::move(r));
  return true;
}

void AjouteLignesRythme(std::string& texte) {
  if (Tempo.Defini()) {
    texte += "TEMPO ";
    AjouteGcvt(texte, Tempo.Bpm, 6);
    texte += ' ';
    AjouteGcvt(texte, Tempo.T0, 6);
    texte += " \n";
  }
  for (const TRepere& r : Reperes) {
    texte += "REPERE ";
    AjouteGcvt(texte, r.T, 6);
    texte += ' ';
    texte += r.Nom;
    texte += " \n";
  }
}
