#include "platform/Son.h"

namespace {
TSonMuet sonMuet;
TSon* sonCourant = &sonMuet;
}  // namespace

TSon& Son() { return *sonCourant; }

void SetSon(TSon* s) { sonCourant = s ? s : &sonMuet; }
