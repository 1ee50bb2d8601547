#include "files/Ecriture.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "frise/Tempo.h"
#include "model/elements/Pt.h"
#include "securite/Reglages.h"

std::string TexteRoutine() {
  std::string texte = "TEAM   " + std::to_string(Team) + " \n";
  if (_FichierMusique[0] != '\0')
    texte += "MUSIQUE   " + std::string(_FichierMusique, strnlen(_FichierMusique, sizeof _FichierMusique)) + " \n";
  AjouteLigneSecurite(texte);
  AjouteLignesRythme(texte);
  const int kites = std::min(nbCV, NB_CV_MAX);
  for (int i = 0; i < kites; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->Enregistrer(texte, 0, 0.0f);
  return texte;
}

namespace {
bool DansPlage(const TElt* e, int premiere, int derniere) {
  return e->pFen && e->pFen->Num >= premiere && e->pFen->Num <= derniere;
}

// The first element of the track on a sheet of the range, or null.
TElt* PremierDansPlage(const TListeCV& liste, int premiere, int derniere) {
  for (TNoeud* n = liste.Premier(); n; n = n->GetSuivant())
    if (auto* e = static_cast<TElt*>(n); DansPlage(e, premiere, derniere)) return e;
  return nullptr;
}

// A time cut to a whole number of hundredths, as the export's start times are.
float TempsEntier(float t) { return static_cast<float>(Tronque(t)); }
}  // namespace

std::string TexteFeuilles(int premiere, int derniere) {
  const int kites = std::min(nbCV, NB_CV_MAX);
  // The shifts: the first sheet written is 1, the earliest start 0.
  int decalageFeuille = 0;
  float decalageTemps = 0;
  bool premier = true;
  for (int i = 0; i < kites; ++i) {
    TListeCV& liste = TabLElt[i];
    TElt* e = PremierDansPlage(liste, premiere, derniere);
    if (!e) continue;
    const TElt* avant = e->GetEltPrecedent();
    // A POINT will stand before e in the file: a father's index is then its index there.
    liste.IndexPremier = liste.GetIndex(e) - (avant ? 1 : 0);
    const int feuille = e->pFen->Num - 1;
    const float debut = TempsEntier(avant ? avant->Gett2Param() : e->Gett2Param());
    if (premier || feuille < decalageFeuille) decalageFeuille = feuille;
    if (premier || debut < decalageTemps) decalageTemps = debut;
    premier = false;
  }

  std::string texte;
  for (int i = 0; i < kites; ++i) {
    bool debut = true;
    for (TNoeud* n = TabLElt[i].Premier(); n; n = n->GetSuivant()) {
      auto* e = static_cast<TElt*>(n);
      if (!DansPlage(e, premiere, derniere)) continue;
      if (const TElt* avant = e->GetEltPrecedent(); debut && avant) {
        // The kite starts where it stood; the point belongs to no list of the document.
        const TPointf p = avant->Getp2Param();
        TPt pt(TPoint(Tronque(p.x), Tronque(p.y)), e->pFen, nullptr, &TabLElt[i]);
        pt.Sett2Param(TempsEntier(avant->Gett2Param()));
        pt.Enregistrer(texte, decalageFeuille, decalageTemps);
      }
      debut = false;
      e->Enregistrer(texte, decalageFeuille, decalageTemps);
    }
  }
  for (int i = 0; i < NB_CV_MAX; ++i) TabLElt[i].IndexPremier = 0;
  return texte;
}

bool FichierExiste(const std::string& chemin) {
  std::error_code erreur;
  return std::filesystem::exists(chemin, erreur);
}

bool EcritFichier(const std::string& chemin, const std::string& texte) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::path cible(chemin);
  // Through a link, the file it names is replaced, not the link.
  if (fs::is_symlink(cible, ec)) {
    fs::path lien = fs::weakly_canonical(cible, ec);
    if (!ec) cible = lien;
  }
  const bool existe = fs::exists(cible, ec);
  // The rename would replace a file whatever its own permissions: ask the file itself.
  // Opening to append changes nothing in it.
  if (existe && !std::ofstream(cible, std::ios::binary | std::ios::app)) return false;

  fs::path provisoire = cible;
  provisoire += ".tmp";
  {
    std::ofstream f(provisoire, std::ios::binary | std::ios::trunc);
    if (!f) return false;
    f.write(texte.data(), static_cast<std::streamsize>(texte.size()));
    f.close();
    if (!f) {
      fs::remove(provisoire, ec);
      return false;
    }
  }
  // A file written anew keeps the permissions of the one it replaces.
  if (existe) {
    const fs::file_status etat = fs::status(cible, ec);
    if (!ec) fs::permissions(provisoire, etat.permissions(), ec);
  }
  fs::rename(provisoire, cible, ec);
  if (ec) {
    std::error_code ignore;
    fs::remove(provisoire, ignore);
    return false;
  }
  return true;
}
