#include "platform/Rendu.h"

namespace {
TRenduAbsent renduAbsent;
TRendu* renduCourant = &renduAbsent;
}  // namespace

TRendu& Rendu() { return *renduCourant; }

void SetRendu(TRendu* r) { renduCourant = r ? r : &renduAbsent; }
