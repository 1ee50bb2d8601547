#include "frise/Tempo.h"

#include <algorithm>
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

void AjouteRepere(double t) {
  Reperes.push_back({0, "Repère " + std::to_string(Reperes.size() + 1)});
  DeplaceRepere(Reperes.size() - 1, std::round(t));
}

bool DeplaceRepere(std::size_t i, double t) {
  if (i >= Reperes.size() || std::isnan(t)) return false;
  Reperes[i].T = static_cast<float>(std::round(std::clamp(t, -double{TEMPS_MAX}, double{TEMPS_MAX})));
  return true;
}

bool RenommeRepere(std::size_t i, const std::string& nom) {
  if (i >= Reperes.size()) return false;
  std::string n = nom.substr(0, 200);
  // Never half a character: the cut goes back to the start of the one it fell in.
  if (nom.size() > n.size())
    while (!n.empty() && (static_cast<unsigned char>(nom[n.size()]) & 0xC0) == 0x80) n.pop_back();
  for (char& c : n)
    if (c == '\n' || c == '\r') c = ' ';
  Reperes[i].Nom = n;
  return true;
}

bool SupprimeRepere(std::size_t i) {
  if (i >= Reperes.size()) return false;
  Reperes.erase(Reperes.begin() + static_cast<std::ptrdiff_t>(i));
  return true;
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
    // Every whole hundredth a routine may hold, up to TEMPS_MAX.
    AjouteGcvt(texte, r.T, 8);
    texte += ' ';
    texte += r.Nom;
    texte += " \n";
  }
}
