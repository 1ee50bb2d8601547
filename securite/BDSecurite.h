#pragma once
// The dialog "Sécurité": the routine's safety numbers, typed as the user reads them (a
// decimal comma or point). OK takes them all or none.
#include <array>
#include <string>

class TBD_Securite {
public:
  enum TChamp { LIGNE, DISTANCE, ENROULEMENT, VITESSE, ESPACEMENT, NB_CHAMPS };
  static constexpr int LONGUEUR_SAISIE = 12;
  // The label and unit shown beside each number.
  static const char* Libelle(int champ);
  static const char* Unite(int champ);

  void SetupWindow();
  // With OK (1), every number is checked and the routine's settings replaced; a number that
  // can't be one keeps the box open with a message naming it.
  bool CloseWindow(int id);

  std::array<std::string, NB_CHAMPS> Textes;
};
