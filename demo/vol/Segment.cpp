// What the flight generator is handed by the class family of model/elements/Segment.h.
#include "model/elements/Segment.h"

#include "demo/CV.h"

void TSegment::DirectX() {
  // A kite swings round to a new heading in a tenth of a second.
  if (CV* cv = GetCV()) cv->Segment(Num, Gett2Param(), x.GetParam(), y.GetParam(), 10.0f);
}

void TSegRevo::DirectX() {
  if (CV* cv = GetCV()) cv->SegRevo(Num, Gett2Param(), x.GetParam(), y.GetParam(), Angle);
}
