// What the flight generator is handed by the class family of model/elements/AllerA.h.
#include "model/elements/AllerA.h"

#include "demo/CV.h"

void TAllerA::DirectX() {
  if (CV* cv = GetCV()) cv->Va(Num, Gett2Param(), x.GetParam(), y.GetParam(), z, xZ, yZ, zZ, xY, yY, zY);
}
