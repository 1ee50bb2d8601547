#pragma once
// The bar of a placed figure: its time, its duration as read from the file, and the
// mirror it is placed with.
#include "editor/bars/BD.h"

class TBD_Figure : public TBD {
public:
  explicit TBD_Figure(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override;

protected:
  void TrtBouton(int id) override;
  int PremierChamp() const override { return IDC_T; }
  void TrtChangeTransformation();
};
