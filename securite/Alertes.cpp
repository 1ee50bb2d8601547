#include "securite/Alertes.h"

#include <algorithm>
#include <cmath>

#include "editor/FenCadre2.h"
#include "editor/DCClient.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/DC.h"
#include "securite/Controle.h"

namespace {
struct TEtatAlertes {
  std::vector<TAlerte> Alertes;
  TReglagesSecurite Reglages;
};

TEtatAlertes& Etat() {
  static TEtatAlertes etat;
  return etat;
}

[[maybe_unused]] const bool Enregistre = (EnregistreReinitialisation([] { Etat() = TEtatAlertes(); }), true);
}  // namespace

std::vector<TAlerte> CalculeAlertes(const TPistesVol& vol, int nbCV, const TReglagesSecurite& reglages) {
  std::vector<TAlerte> alertes;
  for (const TConstat& c : ControleVol(vol, nbCV, reglages)) {
    const float t = static_cast<float>(TempsMontre(c));
    TAlerte a{c, vol[c.K1].Positions.Echantillonne(t), {}};
    if (c.K2 >= 0) a.P2 = vol[c.K2].Positions.Echantillonne(t);
    alertes.push_back(a);
  }
  return alertes;
}

const std::vector<TAlerte>& AlertesEditeur() { return Etat().Alertes; }

void RemplaceAlertesEditeur(std::vector<TAlerte> alertes, const TReglagesSecurite& reglages) {
  Etat().Alertes = std::move(alertes);
  Etat().Reglages = reglages;
}

int ConflitsEditeur() {
  const auto& a = Etat().Alertes;
  return static_cast<int>(std::count_if(a.begin(), a.end(), [](const TAlerte& x) { return x.Constat.Compte; }));
}

TElt* ElementVole(int k, float t) {
  if (k < 0 || k >= nbCV || k >= NB_CV_MAX) return nullptr;
  TElt* dernier = nullptr;
  for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
    dernier = static_cast<TElt*>(n);
    if (dernier->Gett2Param() >= t) return dernier;
  }
  return dernier;
}

int FeuilleAlerte(const TAlerte& a) {
  const TElt* e = ElementVole(a.Constat.K1, static_cast<float>(TempsMontre(a.Constat)));
  return e && e->pFen ? e->pFen->Num : 0;
}

std::string TexteAlerte(const TAlerte& a) {
  std::string texte = PhraseConstat(a.Constat);
  if (const int f = FeuilleAlerte(a)) texte += " – feuille " + std::to_string(f);
  return texte;
}

void MontreAlerte(TFenCadre2& cadre, const TAlerte& a, bool second) {
  const int k = second && a.Constat.K2 >= 0 ? a.Constat.K2 : a.Constat.K1;
  TElt* e = ElementVole(k, static_cast<float>(TempsMontre(a.Constat)));
  if (!e || !e->pFen) return;
  if (cadre.pFenDesActive != e->pFen) cadre.TabSelChange(e->pFen->Num - 1);
  TFenDessin* feuille = cadre.pFenDesActive;
  if (!feuille) return;
  TFenDessin::nCV = k;
  TDCClient dc(*feuille);
  feuille->SetEchelle(dc);
  feuille->ModifieSelection(dc, 0, e);
}

void DessineAlertes(TDC& dc, int feuille) {
  const TEtatAlertes& etat = Etat();
  const double rayon = etat.Reglages.Distance / etat.Reglages.MetresParUnite();
  const int r = std::max(1, static_cast<int>(std::lround(rayon)));
  bool stylo = false;
  for (const TAlerte& a : etat.Alertes) {
    if (a.Constat.Genre != TGenreConstat::Proximite || FeuilleAlerte(a) != feuille) continue;
    if (!stylo) {
      dc.SelectObject(TPen{TColor::LtRed, 0});
      stylo = true;
    }
    for (const TVecteur3& p : {a.P1, a.P2}) {
      const TPoint c(static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y)));
      const TRect boite(c.x - r, c.y - r, c.x + r, c.y + r);
      const TPoint rayonDroit(c.x + r, c.y);
      dc.Arc(boite, rayonDroit, rayonDroit);
    }
  }
  if (stylo) dc.SelectStockObject(TStockObject::BlackPen);
}
