#include "editor/bars/BDPt.h"

#include "model/Elt.h"

void TBD_Pt::SetupWindow() {
  TBD::SetupWindow();
  SetDlgItemText(IDC_NOM, "Pt " + std::to_string(pElt->Num));
}
