#pragma once
// The file insertion dialog "Insérer Fichier": the time shift of the inserted elements, the
// kite of the file each kite of the document takes, and a shift in x and y. OK is refused,
// with a message, while a value is out of bounds or the correspondence is not one to one.
#include <string>

#include "model/Document.h"

struct ParamTBDInsererFic {
  bool Conserver = true;
  bool Calcul = false;
  bool Decaler = false;
  int Temps = 0;  // 1/100 s
  int DecalageX = 0;
  int DecalageY = 0;
  int Correspondance[NB_CV_MAX] = {1, 2, 3, 4, 5, 6};  // from 1
  int NbCVFichier = 1;  // highest kite number of the file, plus 1
  // The earliest and latest end times of each kite of the file, and the shift that Calcul
  // gives: what the shift of the times is checked against.
  float TempsMin[NB_CV_MAX] = {};
  float TempsMax[NB_CV_MAX] = {};
  float DecalageCalcule = 0;
};

class TBD_InsererFic {
public:
  static constexpr int ID_CONSERVER = 580;
  static constexpr int ID_CALCUL = 581;
  static constexpr int ID_DECALER = 585;
  static constexpr int ID_TEMPS = 582;
  static constexpr int ID_DECALAGE_X = 583;
  static constexpr int ID_DECALAGE_Y = 584;
  static constexpr int ID_CORRESPONDANCE = 591;  // to 596
  static constexpr int ID_LIBELLE_CV = 601;       // to 606
  static constexpr int LONGUEUR_SAISIE = 10;
  static constexpr int DECALAGE_MAX = 100;

  TBD_InsererFic(ParamTBDInsererFic* param, int nbCVDocument) : Param(param), NbLignes(nbCVDocument) {}
  // The controls take the settings; only the first NbLignes kites are shown.
  void SetupWindow();
  // With OK (1): checks the shifts in x and y, the correspondence, then the shift in time,
  // which may take no time of a kite taken beyond what a routine can hold; the first fault
  // in a message box and false, with nothing changed; otherwise the settings are stored.
  bool CloseWindow(int id);

  static std::string LibelleCV(int i);  // "- CV N°1     : " for kite 0

  bool Conserver = false;
  bool Calcul = false;
  bool Decaler = false;
  std::string Temps;
  std::string Correspondance[NB_CV_MAX];
  std::string DecalageX;
  std::string DecalageY;
  ParamTBDInsererFic* Param;
  int NbLignes;  // kites of the document
};
