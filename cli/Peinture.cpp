// trajectoires-cli paint: one sheet painted as the editor paints it on the screen, on a
// surface that writes one line per drawing primitive.
#include "Commandes.h"
#include "Peinture.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/DCJournal.h"
#include "platform/Types.h"
#include "securite/Alertes.h"

namespace {

constexpr const char* USAGE =
    "paint IN SHEET OUT.log [--width W] [--current K:I] [--range K:I:J] [--png OUT.png] [--alertes]";

int Usage(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s ; %s (voir --help)\n", pourquoi.c_str(), USAGE);
  return 2;
}

int Refus(const std::string& pourquoi) {
  std::fprintf(stderr, "trajectoires-cli : %s\n", pourquoi.c_str());
  return 2;
}

std::optional<int> Entier(std::string_view texte) {
  int v = 0;
  const char* fin = texte.data() + texte.size();
  const auto r = std::from_chars(texte.data(), fin, v);
  if (texte.empty() || r.ec != std::errc() || r.ptr != fin) return std::nullopt;
  return v;
}

// "K:I" or "K:I:J": whole numbers, none negative.
std::optional<std::vector<int>> Entiers(const std::string& texte, std::size_t combien) {
  std::vector<int> valeurs;
  std::size_t debut = 0;
  while (true) {
    const std::size_t fin = texte.find(':', debut);
    const std::size_t n = fin == std::string::npos ? std::string::npos : fin - debut;
    const auto v = Entier(std::string_view(texte).substr(debut, n));
    if (!v || *v < 0) return std::nullopt;
    valeurs.push_back(*v);
    if (fin == std::string::npos) break;
    debut = fin + 1;
  }
  if (valeurs.size() != combien) return std::nullopt;
  return valeurs;
}

struct TOptions {
  std::vector<std::string> Positionnels;
  int Largeur = 880;
  std::optional<std::vector<int>> Courant;  // K, I
  std::optional<std::vector<int>> Plage;    // K, I, J
  std::string Png;  // empty: no picture
  bool Alertes = false;  // the safety marks over the sheet, as the editor's window shows them
};

// Empty when the options are read, otherwise why not.
std::string LitOptions(const std::vector<std::string>& args, TOptions& o) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a.rfind("--", 0) != 0) {
      o.Positionnels.push_back(a);
      continue;
    }
    if (a == "--alertes") {
      o.Alertes = true;
      continue;
    }
    if (a != "--width" && a != "--current" && a != "--range" && a != "--png") return "option inconnue « " + a + " »";
    if (i + 1 >= args.size()) return "valeur manquante après " + a;
    const std::string& v = args[++i];
    if (a == "--width") {
      const auto w = Entier(v);
      if (!w || *w < 1 || *w > TAILLE_SURFACE_MAX)
        return "--width attend un entier de 1 à " + std::to_string(TAILLE_SURFACE_MAX) + ", pas « " + v + " »";
      o.Largeur = *w;
    } else if (a == "--current") {
      if (!(o.Courant = Entiers(v, 2))) return "--current attend K:I, pas « " + v + " »";
    } else if (a == "--range") {
      if (!(o.Plage = Entiers(v, 3))) return "--range attend K:I:J, pas « " + v + " »";
    } else {
      if (v.empty()) return "--png attend un nom de fichier";
      o.Png = v;
    }
  }
  if (o.Positionnels.size() != 3) return "il faut IN, SHEET et OUT.log";
  if (o.Courant && o.Plage) return "--current et --range ne vont pas ensemble";
  return {};
}

// Element i of kite k, or null.
TElt* Element(int k, int i) {
  if (k >= NB_CV_MAX) return nullptr;
  return static_cast<TElt*>(TabLElt[k].GetPt(i));
}

// Sets the selection as the options give it; empty when it is one the editor could make.
std::string Selectionne(const TOptions& o) {
  if (o.Courant) {
    const int k = (*o.Courant)[0], i = (*o.Courant)[1];
    TElt* e = Element(k, i);
    if (!e) return "pas d'élément " + std::to_string(i) + " au cerf-volant " + std::to_string(k);
    TFenDessin::pEltCourant = e;
    TFenDessin::nCV = k;
  }
  if (o.Plage) {
    const int k = (*o.Plage)[0], i = (*o.Plage)[1], j = (*o.Plage)[2];
    TElt* premier = Element(k, i);
    TElt* dernier = Element(k, j);
    if (!premier || !dernier)
      return "pas d'élément " + std::to_string(premier ? j : i) + " au cerf-volant " + std::to_string(k);
    // The editor's rules for a range: the start point is never in it, it runs forward, and
    // it lies on one sheet.
    if (i == 0) return "une sélection ne commence pas au point de départ (I = 0)";
    if (i > j) return "une sélection va de I à J, avec I <= J";
    if (premier->pFen != dernier->pFen) return "une sélection tient sur une seule feuille";
    TFenDessin::pEltCourant2 = premier;
    TFenDessin::pEltCourant = dernier;
    TFenDessin::nCV = k;
  }
  return {};
}

}  // namespace

void DimensionneFeuilles(TFenCadre2& cadre, int largeur) {
  for (int i = 0; i < cadre.nbFeuilles; ++i) cadre.GetFeuille(i)->SetTailleClient(largeur, largeur / 2);
}

int Peins(const std::vector<std::string>& args) {
  TOptions o;
  if (const std::string pourquoi = LitOptions(args, o); !pourquoi.empty()) return Usage(pourquoi);
  const auto feuille = Entier(o.Positionnels[1]);
  if (!feuille) return Usage("SHEET est un numéro de feuille, pas « " + o.Positionnels[1] + " »");
#ifndef TRAJ_AVEC_RENDU
  // The picture on an image is drawn by the Qt surface, which this build does not have.
  if (!o.Png.empty()) return Refus("--png demande la surface de dessin Qt, que cette version ne contient pas");
#endif

  TFenCadre2 cadre;
  cadre.SetupWindow();
  if (!LitRoutine(cadre, o.Positionnels[0])) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", o.Positionnels[0].c_str());
    return 1;
  }
  if (*feuille < 1 || *feuille > cadre.nbFeuilles)
    return Refus("pas de feuille " + std::to_string(*feuille) + " : la routine en a " +
                 std::to_string(cadre.nbFeuilles));
  if (const std::string pourquoi = Selectionne(o); !pourquoi.empty()) return Refus(pourquoi);

  DimensionneFeuilles(cadre, o.Largeur);
  TDCJournal dc;
  if (o.Alertes) RemplaceAlertesEditeur(CalculeAlertes(VolHorsScene(), nbCV, ReglagesSecurite), ReglagesSecurite);
  cadre.GetFeuille(*feuille - 1)->Paint(dc, false, TRect());
  if (o.Alertes) DessineAlertes(dc, *feuille);
  if (!EcritFichier(o.Positionnels[2], dc.Texte())) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", o.Positionnels[2].c_str());
    return 1;
  }
#ifdef TRAJ_AVEC_RENDU
  if (!o.Png.empty() && !PeintPng(*cadre.GetFeuille(*feuille - 1), o.Largeur, o.Png, o.Alertes)) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", o.Png.c_str());
    return 1;
  }
#endif
  return 0;
}
