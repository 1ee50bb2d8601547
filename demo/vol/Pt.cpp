// What the flight generator is handed by the class family of model/elements/Pt.h.
#include "model/elements/Pt.h"

#include "demo/CV.h"

void TPt::DirectX() {
  if (CV* cv = GetCV()) cv->Point(Num, Gett2Param(), x.GetParam(), y.GetParam());
}
