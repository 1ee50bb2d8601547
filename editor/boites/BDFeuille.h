#pragma once
// The sheet export dialog "Enregistrer Feuilles": all the sheets, or a range of them. The
// settings outlive the dialog.
#include <string>

struct ParamTBDFeuille {
  bool Tout = false;
  bool Feuilles = true;
  int Premiere = 1;
  int Derniere = 1;
};

class TBD_Feuille {
public:
  static constexpr int ID_TOUT = 573;
  static constexpr int ID_FEUILLES = 574;
  static constexpr int ID_PREMIERE = 570;
  static constexpr int ID_DERNIERE = 571;
  static constexpr int LONGUEUR_SAISIE = 10;

  explicit TBD_Feuille(ParamTBDFeuille* param) : Param(param) {}
  void SetupWindow();
  // Either edit gaining the focus: the range is chosen.
  void TrtFeuille();
  // With OK (1) the settings are taken back; an unreadable number keeps the old one.
  bool CloseWindow(int id);

  bool Tout = false;
  bool Feuilles = false;
  std::string Premiere;
  std::string Derniere;
  ParamTBDFeuille* Param;
};
