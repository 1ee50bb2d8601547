#include "session/Modification.h"

#include <cstring>
#include <map>
#include <string>

#include "files/Ecriture.h"
#include "model/Document.h"

namespace {
struct TEtat {
  bool Modifie = false;
  bool TexteConnu = false;
  std::string Texte;  // the routine's text when last seen
  std::map<int, std::function<void(bool)>> Observateurs;
  std::map<int, std::function<void()>> ObservateursTexte;
  int Prochain = 1;
};

TEtat& Etat() {
  static TEtat etat;
  return etat;
}

void Change(bool modifie) {
  TEtat& e = Etat();
  if (e.Modifie == modifie) return;
  e.Modifie = modifie;
  // A copy: an observer may remove itself.
  const auto observateurs = e.Observateurs;
  for (const auto& [numero, o] : observateurs) o(modifie);
}

void NouveauTexte() {
  const auto observateurs = Etat().ObservateursTexte;
  for (const auto& [numero, o] : observateurs) o();
}

void Reinitialise() {
  TEtat& e = Etat();
  e.Modifie = false;
  e.TexteConnu = false;
  e.Texte.clear();
}

[[maybe_unused]] const bool Enregistre = (EnregistreReinitialisation(Reinitialise), true);
}  // namespace

void VerifieModification() {
  TEtat& e = Etat();
  std::string texte = TexteRoutine();
  if (e.TexteConnu && texte == e.Texte) return;
  const bool change = e.TexteConnu;
  e.Texte = std::move(texte);
  e.TexteConnu = true;
  if (change) Change(true);
  NouveauTexte();
}

void MarqueModifie() {
  Change(true);
}

void MarqueIntact() {
  TEtat& e = Etat();
  std::string texte = TexteRoutine();
  const bool nouveau = !e.TexteConnu || texte != e.Texte;
  e.Texte = std::move(texte);
  e.TexteConnu = true;
  Change(false);
  if (nouveau) NouveauTexte();
}

bool DocumentModifie() { return Etat().Modifie; }

int AjouteObservateurModification(std::function<void(bool)> observateur) {
  TEtat& e = Etat();
  const int numero = e.Prochain++;
  e.Observateurs.emplace(numero, std::move(observateur));
  return numero;
}

void RetireObservateurModification(int numero) { Etat().Observateurs.erase(numero); }

int AjouteObservateurTexte(std::function<void()> observateur) {
  TEtat& e = Etat();
  const int numero = e.Prochain++;
  e.ObservateursTexte.emplace(numero, std::move(observateur));
  return numero;
}

void RetireObservateurTexte(int numero) { Etat().ObservateursTexte.erase(numero); }

std::string NomFichier(const std::string& chemin) {
  const std::size_t barre = chemin.rfind('/');
  return barre == std::string::npos ? chemin : chemin.substr(barre + 1);
}

std::string NomDocument() {
  const std::string chemin(FichierRoutine, strnlen(FichierRoutine, sizeof FichierRoutine));
  return chemin.empty() ? "Sans titre" : NomFichier(chemin);
}
