#pragma once
// What the manoeuvres done on the spot share: no length, a fixed duration, and an end that
// is the end of the element before them. Dragging one moves that element's end.
#include "model/Elt.h"

class TManoeuvre : public TElt {
public:
  TManoeuvre(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, int contrainte, float duree);

  void Setpp2(const TPointf& p) override;
  TPointf Getp2() override;
  void SetV(float) override {}  // a manoeuvre's speed stays as it was made
  bool Clic(TDC&, int, const TPoint&) override { return false; }  // caught by its end point only
  void Translate(int, int, bool) override {}  // it follows the element before it
  float CalculLongueur() override { return 0; }
  float GetDureeConstante() const override { return DureeConstante; }

protected:
  // A chain of manoeuvres on one spot is repainted as far as an element with a length.
  TPropagation PropagationInvalid() const override { return TPropagation::Etendue; }
  // Stores p here and on the elements it stands on; returns p as the caller's point is left.
  TPointf Relaie(const TPointf& p);
  // The end point that the element before it gives.
  virtual TPointf PointDuPrecedent() const;
  bool RelaiePoint(TPointf& p) override;
  // The stored values of a record common to every manoeuvre, before the bar's refresh.
  void SetTempsDuree(int contrainte, float t, float duree);
};
