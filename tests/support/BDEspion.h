#pragma once
// A property bar that remembers what its element wrote into it.
#include <map>
#include <string>

#include "editor/bars/BD.h"

class TBDEspion : public TBD {
public:
  explicit TBDEspion(TElt* elt, bool* detruit = nullptr) : TBD(elt), Detruit(detruit) {}
  ~TBDEspion() override {
    if (Detruit) *Detruit = true;
  }

  void SetDlgItemText(int id, const std::string& texte) override { Champs[id] = texte; }
  void Place(int y) override { Y = y; }
  int Hauteur() const override { return 21; }
  void SetCouleurFond(TColor c) override {
    Fond = c;
    ++Repeints;
  }
  void SetContrainte() override { ++RafraichisContrainte; }
  void SetContrainteAngle() override { ++RafraichisAngle; }
  void MiseAJourContrainte() override { ++MisesAJourContrainte; }
  void CloseWindow(int) override { ++Fermetures; }

  std::map<int, std::string> Champs;
  int Y = -1;
  TColor Fond;
  int Repeints = 0;
  int RafraichisContrainte = 0;
  int RafraichisAngle = 0;
  int MisesAJourContrainte = 0;
  int Fermetures = 0;
  bool* Detruit;
};
