#pragma once
// The editor's printer: two copies, and margins of 10 mm until the first sheet sets its own.
#include "platform/Printer.h"

class TImprimante : public TPrinter {
public:
  TImprimante() {
    Donnees.Copies = 2;
    Donnees.Marges = TMarges{1000, 1000, 1000, 1000};
  }
};
