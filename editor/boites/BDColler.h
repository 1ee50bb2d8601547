#pragma once
// The paste dialog "Coller": the transformation of the pasted range and the shift of its
// first end time. The settings outlive the dialog, so that each paste offers the last choice.
#include <string>

struct ParamTBDColler {
  int Mode = 552;     // id of the radio button, 551 to 555
  int Decalage = 0;   // 1/100 s
};

class TBD_Coller {
public:
  static constexpr int ID_PREMIER_MODE = 551;
  static constexpr int ID_DERNIER_MODE = 555;
  static constexpr int ID_DECALAGE = 556;
  static constexpr int LONGUEUR_DECALAGE = 10;

  explicit TBD_Coller(ParamTBDColler* param) : Param(param) {}
  // The controls take the settings: the button of Mode checked, Decalage in the edit.
  void SetupWindow();
  // With OK (1): Decalage read from the edit, an unreadable text keeping the old value, and
  // Mode from the first button checked. A shift that takes the first pasted element beyond
  // what a routine can hold is refused, in a message box and false, with nothing changed.
  bool CloseWindow(int id);

  static const char* TexteMode(int id);  // the text of radio button id

  // The controls while the dialog is open.
  bool Coche[5] = {};  // buttons 551 to 555
  std::string Decalage;
  ParamTBDColler* Param;
  float TempsDebut = 0;  // the time of the first element to paste, which the shift moves
};
