#include "frise/Pistes.h"

#include <algorithm>

#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Derapage.h"
#include "model/elements/Figure.h"
#include "model/elements/Pose.h"
#include "model/elements/Pt.h"
#include "model/elements/Rot.h"
#include "model/elements/Segment.h"
#include "model/elements/Stop.h"

namespace {
// The word of an element's class. Derived classes first: a SegRevo is a Segment too.
std::string Classe(const TElt& e) {
  if (dynamic_cast<const TPt*>(&e)) return "Pt";
  if (dynamic_cast<const TSegRevo*>(&e)) return "SegRev";
  if (dynamic_cast<const TSegment*>(&e)) return "Seg";
  if (dynamic_cast<const TDerapage*>(&e)) return "Derap";
  if (dynamic_cast<const TArcRevo*>(&e)) return "ArcRev";
  if (dynamic_cast<const TArc*>(&e)) return "Arc";
  if (dynamic_cast<const TAxel*>(&e)) return "Axel";
  if (dynamic_cast<const T540*>(&e)) return "540";
  if (dynamic_cast<const TRot*>(&e)) return "Rotat";
  if (dynamic_cast<const TStop*>(&e)) return "Stop";
  if (dynamic_cast<const TPose*>(&e)) return "Posé";
  if (dynamic_cast<const TAllerA*>(&e)) return "Aller A";
  if (const auto* f = dynamic_cast<const TFigure*>(&e)) return f->Nom;
  return "?";
}
}  // namespace

bool TFrise::Vide() const {
  return std::all_of(Pistes.begin(), Pistes.end(), [](const TPiste& p) { return p.Blocs.empty(); });
}

std::string NomCourt(const TElt& e) { return Classe(e) + " " + std::to_string(e.Num); }

TFrise ConstruitFrise() {
  TFrise frise;
  bool premiere = true;
  const int kites = std::min(nbCV, NB_CV_MAX);
  for (int k = 0; k < kites; ++k) {
    TPiste piste;
    piste.Cv = k;
    piste.Couleur = TabLElt[k].Couleur;
    const TElt* avant = nullptr;
    int index = 0;
    for (const TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant(), ++index) {
      const auto* e = static_cast<const TElt*>(n);
      TBloc b;
      b.Elt = e;
      b.Index = index;
      b.Feuille = e->pFen ? e->pFen->Num : 0;
      b.Fin = e->Gett2Param();
      b.Debut = avant ? avant->Gett2Param() : b.Fin;
      b.Nom = NomCourt(*e);
      // A child shows its father's number, a father its own.
      b.Synchro = e->pPere ? e->pPere->NumSynchro : e->NumSynchro;
      b.Duree = dynamic_cast<const TManoeuvre*>(e) || dynamic_cast<const TFigure*>(e);
      piste.Blocs.push_back(std::move(b));
      avant = e;
    }
    if (!piste.Blocs.empty()) {
      const float debut = piste.Blocs.front().Debut, fin = piste.Blocs.back().Fin;
      frise.Debut = premiere ? debut : std::min(frise.Debut, debut);
      frise.Fin = premiere ? fin : std::max(frise.Fin, fin);
      frise.FinRoutine = premiere ? fin : std::min(frise.FinRoutine, fin);
      premiere = false;
    }
    frise.Pistes.push_back(std::move(piste));
  }
  // The sheets' bands follow the first kite, as their tabs do: a sheet ends with the last
  // element of that kite on it, and starts where the sheet before it ended.
  if (!frise.Pistes.empty()) {
    float debut = 0;
    bool debutConnu = false;
    for (const TBloc& b : frise.Pistes.front().Blocs) {
      if (b.Feuille <= 0) continue;
      if (!debutConnu) {
        debut = b.Debut;
        debutConnu = true;
      }
      if (frise.Feuilles.empty() || frise.Feuilles.back().Feuille != b.Feuille) {
        if (!frise.Feuilles.empty()) debut = frise.Feuilles.back().Fin;
        frise.Feuilles.push_back({b.Feuille, debut, b.Fin});
      } else {
        frise.Feuilles.back().Fin = b.Fin;
      }
    }
  }
  return frise;
}

const TBloc* BlocDe(const TFrise& frise, const TElt* e) {
  if (!e) return nullptr;
  for (const TPiste& p : frise.Pistes)
    for (const TBloc& b : p.Blocs)
      if (b.Elt == e) return &b;
  return nullptr;
}
