#pragma once
// The editor as the companion's editing commands use it, with no window: a frame and its
// sheets, the scripted dialogs in place of the user, a routine opened as "&Ouvrir" opens it.
#include <string>

#include "DialoguesScript.h"
#include "editor/FenCadre2.h"

class TElt;
class TFenDessin;

class TEditeurScript {
public:
  TEditeurScript();
  ~TEditeurScript();
  TEditeurScript(const TEditeurScript&) = delete;
  TEditeurScript& operator=(const TEditeurScript&) = delete;

  // Opens the routine `chemin` in the active sheet; false, said on standard error, when it
  // can't be read.
  bool Ouvre(const std::string& chemin);
  // Writes the routine as "E&nregistrer" does; false, said, when it can't be.
  bool Ecrit(const std::string& chemin);

  // The sheet of e made the active one, as a click on its tab does.
  TFenDessin* Montre(TElt* e);

  TDialoguesScript Dialogues;
  TFenCadre2 Cadre;
};

// Element i of kite k, positions from 0 as the companion's commands take them; null for none.
TElt* Element(int k, int i);

// True when every element from debut to fin, further along the same track, is on fin's sheet.
bool SurUneFeuille(TElt* debut, TElt* fin);

// A plain integer, sign and digits only; false for anything else.
bool Entier(const std::string& s, int& n);
