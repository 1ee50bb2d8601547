#pragma once
// The bar of a kite's start point: its point and time, and no constraint to show.
#include "editor/bars/BD.h"

class TBD_Pt : public TBD {
public:
  using TBD::TBD;
  void SetupWindow() override;
  void MiseAJourContrainte() override {}
};
