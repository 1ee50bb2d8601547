#pragma once
// The bars of circular flight. The end of an arc comes from its radius and sweep, so x and y
// are never typed; the kind button says which of the two a drag of the end keeps.
#include "editor/bars/BD.h"

class TArc;
class TArcRevo;

class TBD_Arc : public TBD {
public:
  explicit TBD_Arc(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override;
  void TrtChangep2x() override {}
  void TrtChangep2y() override {}
  // 509 is the radius here, not a duration, and the angle the arc's sweep.
  std::string Bulle(int id) const override;

protected:
  virtual std::string Libelle() const;
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  int PremierChamp() const override { return IDC_T; }
  void Trt_Contrainte();
  void Trt_TypeArc();
  // The caption of 511 and the state of the radius and angle fields by the arc's kind.
  void MontreTypeArc();
  void TrtChangeRayon();
  void TrtChangeAngle();
  TArc* Element() const;
};

class TBD_ArcRevo : public TBD_Arc {
public:
  explicit TBD_ArcRevo(TElt* elt);
  void SetupWindow() override;
  void SetContrainteAngle() override;

protected:
  std::string Libelle() const override;
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  int PremierChamp() const override { return IDC_ANGLE_REVO; }
  void TrtChangeAngleRevo();
  TArcRevo* ElementRevo() const;
};
