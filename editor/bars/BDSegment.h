#pragma once
// The bars of straight flight: segment, slide, and the segment flown turned away.
#include "editor/bars/BD.h"

class TSegRevo;

class TBD_Segment : public TBD {
public:
  explicit TBD_Segment(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override;

protected:
  virtual std::string Libelle() const;
  void PerteFocus(int id) override;
  void TrtBouton(int id) override;
  void Trt_Contrainte();
  // The speed comes from the solver: leaving its field only acknowledges.
  void TrtChangeVitesse() { Bip(); }
};

class TBD_Derapage : public TBD_Segment {
public:
  using TBD_Segment::TBD_Segment;

protected:
  std::string Libelle() const override;
};

class TBD_SegRevo : public TBD_Segment {
public:
  explicit TBD_SegRevo(TElt* elt);
  void SetupWindow() override;
  void SetContrainteAngle() override;

protected:
  std::string Libelle() const override;
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  int PremierChamp() const override { return IDC_ANGLE; }
  void TrtChangeAngle();
  TSegRevo* Element() const;
};
