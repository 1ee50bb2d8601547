#pragma once
// The editor frame: the numbered sheets of the routine and their tabs, the strip of property
// bars, the gadgets and the caption. The window that shows it is a view over this object
// (TVueCadre2); without one, as in the command-line companion, it runs all the same.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "editor/FenListe.h"
#include "platform/Types.h"

class TFenDessin;
class TVueCadre2;

inline constexpr int NB_FEUILLES_MAX = 200;
inline constexpr int LONGUEUR_ONGLET_MAX = 10;

class TFenCadre2 {
public:
  // Gives the document tables their kite numbers and colours and makes sheet 1.
  TFenCadre2();
  ~TFenCadre2();
  TFenCadre2(const TFenCadre2&) = delete;
  TFenCadre2& operator=(const TFenCadre2&) = delete;

  void SetVue(TVueCadre2* vue) { Vue = vue; }

  // Adds the spare sheet 2: a routine always has an empty sheet after its last one.
  void SetupWindow();
  // The client area is now cx by cy: sheets as wide and half as high, the strip below them.
  void EvSize(int cx, int cy);
  // The heights of the control bar, of the tabs and of the status bar, as the view has them.
  void SetHauteurs(int barreControle, int onglets, int statut);
  // The user picked the tab at index i.
  void TabSelChange(int i);
  // A new sheet after the last; false, with a message, when the 200 sheets are all in use.
  bool AddFeuille();
  // A new sheet after the active one, which it replaces as active; the sheets after it move
  // up by one. False, with a message, when the 200 sheets are all in use.
  bool InsereFeuille();
  // Removes the active sheet, or sheet n, with its elements; refused while it holds the start
  // of a track.
  void SupprFeuille();
  void SupprFeuille(int n);
  // Back to sheet 1, after a file is read.
  void SetClientFenDes();
  void SetLabelOnglet(const std::string& texte, int i);
  // Bare labels "n - " for the sheets from number n on.
  void NumeroteOnglets(int n);
  // With unsaved changes, asks whether to save them first: true when the document may go,
  // saved or let go; false when the user cancels or the save did not happen. Without
  // changes, true at once.
  bool ConfirmePerte();
  // With unsaved changes, the question of ConfirmePerte; without, "Fermeture Définitive ?".
  // True when the program may end.
  bool CanClose();
  // "&Quitter": as closing the window; the view is told to end when the answer allows it.
  bool Quitter();

  // Caption, gadgets and check marks: each change is passed on to the view.
  void SetTitre(const std::string& titre);
  const std::string& GetTitre() const { return Titre; }
  void SetTextePosition(const std::string& texte);
  const std::string& GetTextePosition() const { return TextePosition; }
  void SetTexteGadgetSynchro(const std::string& texte);
  const std::string& GetTexteGadgetSynchro() const { return TexteGadgetSynchro; }
  void SetCoche(int id, bool coche);
  bool GetCoche(int id) const;

  // Calls from the sheets and the strip to their window.
  void Invalide(TFenDessin* feuille, const TRect& r);
  void Focus();
  void BarresChangees();

  TFenDessin* GetFeuille(int i) const { return TabFenDes[static_cast<std::size_t>(i)].get(); }
  const std::string& GetLabelOnglet(int i) const { return TabOnglets[static_cast<std::size_t>(i)]; }
  // Index of the active sheet's tab.
  int GetOngletActif() const;

  TFenListe* pFenListe = nullptr;
  int nbFeuilles = 0;
  TFenDessin* pFenDesActive = nullptr;
  int YFeuille = 0;  // top of the sheets in the client area
  int Largeur = 0;   // client width
  int Hauteur = 0;   // client height between the tabs and the status bar

private:
  std::unique_ptr<TFenDessin> NouvelleFeuille(int num);
  // Shows sheet f alone, as the active one, at its place.
  void Active(TFenDessin* f);
  void Onglets();

  TVueCadre2* Vue = nullptr;
  std::unique_ptr<TFenListe> FenListe;
  std::vector<std::unique_ptr<TFenDessin>> TabFenDes;  // entry i is sheet number i + 1
  std::vector<std::string> TabOnglets;                 // the tab labels, same index
  std::string Titre = "Dessin Trajectoires";
  std::string TextePosition;
  std::string TexteGadgetSynchro = " / ";
  std::map<int, bool> Coches{{332, false}, {334, true}};
  int HauteurBarreControle = 0;
  int HauteurOnglets = 31;
  int HauteurStatut = 0;
};
