// What the flight generator is handed by the class family of model/elements/Axel.h.
#include "model/elements/Axel.h"

#include "demo/CV.h"

// The manoeuvres on the spot read their own stored time, not a father's.
void TAxel::DirectX() {
  CV* cv = GetCV();
  if (!cv) return;
  if (Gauche)
    cv->AxelG(Num, t2.GetParam(), DureeConstante);
  else
    cv->AxelD(Num, t2.GetParam(), DureeConstante);
}

void T540::DirectX() {
  CV* cv = GetCV();
  if (!cv) return;
  if (Gauche)
    cv->Flat540G(Num, t2.GetParam());
  else
    cv->Flat540D(Num, t2.GetParam());
}
