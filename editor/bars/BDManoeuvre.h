#pragma once
// The bars of the manoeuvres done on the spot: axel, 540, rotation, stop, landing. Their
// point is the end of the element before them, so x and y are never typed.
#include "editor/bars/BD.h"

class TBD_Axel : public TBD {
public:
  explicit TBD_Axel(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override { SetContrainteDroiteGaucheDuree(); }
  void SetContrainteDroiteGaucheDuree() override;

protected:
  virtual std::string Libelle() const;
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  int PremierChamp() const override { return IDC_T; }
  void TrtChangeDuree();
};

class TBD_540 : public TBD_Axel {
public:
  using TBD_Axel::TBD_Axel;

protected:
  std::string Libelle() const override;
};

class TBD_Rot : public TBD {
public:
  explicit TBD_Rot(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override { SetContrainteDureeAngle(); }
  void SetContrainteDureeAngle() override;

protected:
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  int PremierChamp() const override { return IDC_ANGLE; }
};

class TBD_Stop : public TBD {
public:
  explicit TBD_Stop(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override { SetContrainteDuree(); }
  void SetContrainteDuree() override;

protected:
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  int PremierChamp() const override { return IDC_T; }
};

class TBD_Pose : public TBD {
public:
  explicit TBD_Pose(TElt* elt);
  void SetupWindow() override;
  void SetContrainte() override { SetContrainteDureeType(); }
  void SetContrainteDureeType() override;

protected:
  void PerteFocus(int id) override;
  void AutreEvCommand(int id) override;
  void TrtBouton(int id) override;
  void TrtChangeDuree();
  void TrtChangeTypePose();
};
