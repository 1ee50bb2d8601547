#pragma once
// The editor frame: the numbered sheets of the routine, their tabs, and the close guard.
// The window that shows it is a view over this object.
#include <memory>
#include <string>
#include <vector>

class TFenDessin;
class TFenListe;

inline constexpr int NB_FEUILLES_MAX = 200;

class TFenCadre2 {
public:
  // Gives the document tables their kite numbers and colours and makes sheet 1.
  TFenCadre2();
  ~TFenCadre2();
  TFenCadre2(const TFenCadre2&) = delete;
  TFenCadre2& operator=(const TFenCadre2&) = delete;

  // Adds the spare sheet 2: a routine always has an empty sheet after its last one.
  void SetupWindow();
  // A new sheet after the last; false when the 200 sheets are all in use.
  bool AddFeuille();
  // A new sheet after the active one, which it replaces as active; the sheets after it move
  // up by one. False when the 200 sheets are all in use.
  bool InsereFeuille();
  // Asks "Fermeture Définitive ?"; true when the user agrees to end the program.
  bool CanClose();

  // The control bar's gadget that shows the father picked for the next synchronisation.
  void SetTexteGadgetSynchro(const std::string& texte) { TexteGadgetSynchro = texte; }
  const std::string& GetTexteGadgetSynchro() const { return TexteGadgetSynchro; }

  TFenDessin* GetFeuille(int i) const { return TabFenDes[static_cast<std::size_t>(i)].get(); }
  const std::string& GetLabelOnglet(int i) const { return TabOnglets[static_cast<std::size_t>(i)]; }

  TFenListe* pFenListe = nullptr;
  int nbFeuilles = 0;
  TFenDessin* pFenDesActive = nullptr;

private:
  std::vector<std::unique_ptr<TFenDessin>> TabFenDes;  // entry i is sheet number i + 1
  std::vector<std::string> TabOnglets;                 // the tab labels, same index
  std::string TexteGadgetSynchro = " / ";
};
