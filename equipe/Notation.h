#pragma once
// The pilots' notation of a point of the wind window: the side and how far to it, then the
// height, both in whole units truncated toward zero ("<70 ^10", ">45 ^80", "<>0 ^50").
#include <string>

#include "model/Types.h"

std::string NotationPilote(const TPointf& p);
