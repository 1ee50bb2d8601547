#pragma once
// The player frame, captioned "CV". It cannot be closed by itself: it ends with the program.
#include "platform/Dialogues.h"

class TFenCadre {
public:
  bool CanClose() {
    Dialogues().MessageBeep(-1);
    return false;
  }
};
