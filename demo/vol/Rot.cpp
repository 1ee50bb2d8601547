// What the flight generator is handed by the class family of model/elements/Rot.h.
#include "model/elements/Rot.h"

#include "demo/CV.h"

void TRot::DirectX() {
  if (CV* cv = GetCV()) cv->Rot(Num, t2.GetParam(), Angle);
}
