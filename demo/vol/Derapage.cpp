// What the flight generator is handed by the class family of model/elements/Derapage.h.
#include "model/elements/Derapage.h"

#include "demo/CV.h"

void TDerapage::DirectX() {
  if (CV* cv = GetCV()) cv->Derapage(Num, Gett2Param(), x.GetParam(), y.GetParam());
}
