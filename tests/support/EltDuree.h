#pragma once
// A manoeuvre on the spot with a fixed duration, for solving tests: no length, its end
// point the one it was built on, and a time change passes through it.
#include "model/Elt.h"

class TEltDuree : public TElt {
public:
  TEltDuree(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float duree)
      : TElt(p, fen, fenListe, liste) {
    Contrainte = CONTRAINTE_DUREE;
    DureeConstante = duree;
    SurPlace = true;
  }

  void Translate(int, int, bool) override {}
  TVect GetVDir() override { return TVect(0, 1); }
  bool Clic(TDC&, int, const TPoint&) override { return false; }
  bool IsCalculV() const override { return true; }
  float CalculLongueur() override { return 0; }
  float GetDureeConstante() const override { return DureeConstante; }
  void SetV(float) override {}
  TElt* Copie(TListeCV*, bool) override { return nullptr; }
};
