// What the flight generator is handed by the class family of model/elements/Arc.h.
#include "model/elements/Arc.h"

#include "demo/CV.h"

void TArc::DirectX() {
  if (CV* cv = GetCV()) cv->Arc(Num, Gett2Param(), Centre.x, Centre.y, x.GetParam(), y.GetParam(), Sens);
}

void TArcRevo::DirectX() {
  if (CV* cv = GetCV())
    cv->ArcRevo(Num, Gett2Param(), Centre.x, Centre.y, x.GetParam(), y.GetParam(), Sens, AngleRevo);
}
