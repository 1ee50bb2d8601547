#pragma once
// The dialog "Suivre le meneur": which kites follow, the delay, the transformation. The
// settings outlive it, so that each use offers the last choice.
#include "equipe/Suivre.h"

class TBD_Suivre {
public:
  TBD_Suivre(TParamSuivre* param, int nbCV, int meneur) : Param(param), NbCV(nbCV), Meneur(meneur) {}

  TParamSuivre* Param;
  int NbCV;    // the kites offered: 0 to NbCV - 1, the leader's box disabled
  int Meneur;
};

// The settings of the last use, kept for the next.
TParamSuivre& ParamSuivre();

// "Suivre le meneur...": the selected range leads, the dialog says who follows. True when the
// followers were added.
bool SuivreLeMeneur();
