#pragma once
// The bar of a go-to: its point and the kite's pose at it, with a duration or a time.
#include "editor/bars/BD.h"

class TBD_AllerA : public TBD {
public:
  explicit TBD_AllerA(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override;

protected:
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  // The field of the go-to that edit id shows: z and the two axes; null for the others.
  float* Champ(int id) const;
};
