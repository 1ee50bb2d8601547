// What every element shares in the hand-over to the flight generator.
#include "model/Elt.h"

#include "demo/D3DDemo.h"

CV* TElt::GetCV() const { return pListeCV ? CVDeLaScene(pListeCV->Num) : nullptr; }
