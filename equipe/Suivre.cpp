#include "equipe/Suivre.h"

#include "equipe/BDSuivre.h"

#include <string>

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "model/elements/Pt.h"
#include "platform/Dialogues.h"

namespace {
std::string CV(int k) { return "le CV n°" + std::to_string(k + 1); }

// The last element of track k on the sheet numbered `feuille` or an earlier one; null when
// the track is empty or starts later.
TElt* DernierJusqua(int k, int feuille) {
  TElt* trouve = nullptr;
  for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    if (e->pFen && e->pFen->Num > feuille) break;
    trouve = e;
  }
  return trouve;
}

// The command copies and pastes through buffers of its own, so that what the user copied
// stays ready to paste.
class TTamponsPropres {
public:
  TTamponsPropres() : tampon_(Tampon), tampon2_(Tampon2), point_(PointDebutTampon) {
    Tampon = &a_;
    Tampon2 = &b_;
  }
  ~TTamponsPropres() {
    Tampon = tampon_;
    Tampon2 = tampon2_;
    PointDebutTampon = point_;
  }
  TTamponsPropres(const TTamponsPropres&) = delete;
  TTamponsPropres& operator=(const TTamponsPropres&) = delete;

private:
  TListeCV* tampon_;
  TListeCV* tampon2_;
  TPointf point_;
  TListeCV a_, b_;
};

bool Refuse(const std::string& raison) {
  TFenDessin::MessageErreur("Suivre impossible : " + raison);
  return false;
}

// Every refusal, checked before anything changes.
bool Accepte(const TElt* premier, const TParamSuivre& p) {
  const int meneur = premier->pListeCV->Num;
  if (p.Suiveurs.empty()) return Refuse("aucun CV suiveur");
  for (std::size_t i = 0; i < p.Suiveurs.size(); ++i) {
    const int k = p.Suiveurs[i];
    if (k < 0 || k >= nbCV) return Refuse("pas de CV n°" + std::to_string(k + 1));
    if (k == meneur) return Refuse(CV(k) + " est le meneur");
    for (std::size_t j = 0; j < i; ++j)
      if (p.Suiveurs[j] == k) return Refuse(CV(k) + " est nommé deux fois");
    if (!TabLElt[k].IsVide() && !DernierJusqua(k, premier->pFen->Num))
      return Refuse(CV(k) + " commence sur une feuille suivante");
  }
  return true;
}
}  // namespace

bool Suivre(TElt* premier, TElt* dernier, const TParamSuivre& p) {
  if (!premier || !dernier || !premier->pListeCV || !premier->GetEltPrecedent()) {
    TFenDessin::MessageErreur("Sélection Vide");
    return false;
  }
  if (!Accepte(premier, p)) return false;
  TFenDessin* feuille = premier->pFen;
  const TTamponsPropres tampons;
  feuille->MAJUnDo();
  // The followers take the leader's times as the solver gives them, not as they were last
  // written.
  TFenDessin::MiseAJourVTotale();
  TFenDessin::pEltCourant2 = premier;
  TFenDessin::pEltCourant = dernier;
  feuille->Copier();
  for (std::size_t i = 0; i < p.Suiveurs.size(); ++i) {
    const int k = p.Suiveurs[i];
    const int decalage = static_cast<int>(i + 1) * p.Delai;
    TListeCV& piste = TabLElt[k];
    if (piste.IsVide()) {
      const TPointf debut = PointDebutTampon;
      piste.Append(new TPt(TPoint(Tronque(debut.x), Tronque(debut.y)), feuille, feuille->pFenListe, &piste));
    }
    TFenDessin::ColleTampon(DernierJusqua(k, feuille->Num), feuille, p.Mode, decalage);
    // The paste anchors the first element alone; the leader's other anchors move with it.
    for (TElt* e = TFenDessin::pEltCourant2->GetEltSuivant(); e;
         e = e == TFenDessin::pEltCourant ? nullptr : e->GetEltSuivant())
      if (e->Contrainte == CONTRAINTE_TEMPS) e->Sett2Param(e->Gett2Param() + static_cast<float>(decalage));
  }
  // The leader's range stays the selection, ready for the next followers.
  TFenDessin::pEltCourant2 = premier;
  TFenDessin::pEltCourant = dernier;
  TFenDessin::MiseAJourVTotale();
  return true;
}

TParamSuivre& ParamSuivre() {
  static TParamSuivre param;
  return param;
}

bool SuivreLeMeneur() {
  TElt* premier = TFenDessin::pEltCourant2;
  TElt* dernier = TFenDessin::pEltCourant;
  if (!premier || !dernier || !premier->pListeCV) {
    TFenDessin::MessageErreur("Sélection Vide");
    return false;
  }
  TBD_Suivre bd(&ParamSuivre(), nbCV, premier->pListeCV->Num);
  if (!Dialogues().Execute(bd)) return false;
  return Suivre(premier, dernier, ParamSuivre());
}
