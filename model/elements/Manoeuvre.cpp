#include "model/elements/Manoeuvre.h"

TManoeuvre::TManoeuvre(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, int contrainte,
                       float duree)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = contrainte;
  DureeConstante = duree;
  SurPlace = true;
}

TPointf TManoeuvre::PointDuPrecedent() const {
  const TElt* prec = GetEltPrecedent();
  return prec ? prec->Getp2Param() : Getp2Param();
}

bool TManoeuvre::RelaiePoint(TPointf& p) {
  TElt::Setpp2(p);
  return true;
}

void TManoeuvre::Setpp2(const TPointf& p) { Relaie(p); }

TPointf TManoeuvre::Relaie(const TPointf& p) {
  TPointf q = p;
  RelaiePoint(q);
  const TPointf stocke = Getp2Param();
  const TPointf suite = PasseAuPrecedent(q);
  return q == stocke ? suite : stocke;
}

TPointf TManoeuvre::Getp2() { return Relaie(PointDuPrecedent()); }

void TManoeuvre::SetTempsDuree(int contrainte, float t, float duree) {
  Contrainte = contrainte;
  Sett2(t);
  DureeConstante = duree;
}
