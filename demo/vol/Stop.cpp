// What the flight generator is handed by the class family of model/elements/Stop.h.
#include "model/elements/Stop.h"

#include "demo/CV.h"

void TStop::DirectX() {
  if (CV* cv = GetCV()) cv->Stop(Num, t2.GetParam());
}
