#pragma once
// One sheet ("feuille") of the editor: its number, its mapping of the wind window onto
// pixels, and the state of the mouse machine shared by all sheets. The widget that shows a
// sheet forwards its events here and gives it the size of its client area.
#include <memory>
#include <string>
#include <string_view>

#include "editor/Impression.h"
#include "editor/boites/BDColler.h"
#include "editor/boites/BDFeuille.h"
#include "editor/boites/BDInsererFic.h"
#include "editor/Imprimante.h"
#include "model/Types.h"
#include "platform/Dialogues.h"

class TDC;
class TElt;
class TFenCadre2;
class TFenListe;
class TListeCV;

inline constexpr int FONCTION_MODIFICATION = 300;
inline constexpr int FONCTION_AJOUT_SYNCHRO = 330;
inline constexpr int FONCTION_SUPPR_SYNCHRO = 331;
inline constexpr int TAILLE_MESSAGE_ERREUR = 160;
// The state bit of a mouse event that extends a selection, and the keys a sheet answers.
inline constexpr unsigned MK_SHIFT = 0x0004;
inline constexpr unsigned CAR_ECHAP = 27;
inline constexpr unsigned VK_DELETE = 0x2E;

// The five values of Fonction that draw an element click by click.
constexpr bool EstFonctionDessin(int f) { return f == 301 || f == 305 || f == 309 || f == 311 || f == 312; }

class TFenDessin {
public:
  TFenDessin(TFenCadre2* cadre, TFenListe* liste, int num);

  void SetNum(int num) { Num = num; }

  // The mouse and the keyboard, in device pixels of the sheet (Souris.cpp).
  void EvMouseMove(unsigned flags, const TPoint& p);
  void EvLButtonDown(unsigned flags, const TPoint& p);
  void EvLButtonUp(unsigned flags, const TPoint& p);
  void EvRButtonDown(unsigned flags, const TPoint& p);
  void EvChar(unsigned key, unsigned repetitions, unsigned flags);
  void EvKeyDown(unsigned key, unsigned repetitions, unsigned flags);
  // Builds the element of the drawing tool at the logical point p, after pEltSel; nothing
  // when no drawing tool is chosen.
  void CreerElt(const TPoint& p);
  void ModifElt(TDC& dc, TElt* e, const TPointf& p);
  bool ClicSelection(TDC& dc, const TPoint& p);
  bool ModifieSelection(TDC& dc, unsigned flags, TElt* e);
  bool EtendSelection(TDC& dc, TElt* e);

  // The menu's commands (Commandes.cpp).
  void Trt_Menu(unsigned id);
  void Echap();
  void Suppr();
  // "Options > &Sécurité...": the routine's safety numbers, through their dialog.
  void ReglerSecurite();
  void Suppr(TDC& dc, TElt* e);
  // The property bars of this sheet's elements.
  void OpenBD();
  void CloseBD();
  // Rebuilds the tab labels from this sheet on, from the times of the first kite.
  void MetAJourOnglets();
  // The undo copy of this sheet's elements, and its exchange with them (Annulation.cpp).
  void MAJUnDo();
  void Undo();
  // The selected range into the copy buffer, and the buffer after the current element,
  // transformed as the paste dialog says (Collage.cpp).
  void Copier();
  void Coller();
  // The paste itself, once the dialog has answered: the buffer after `apres`, on `feuille`,
  // moved by `mode` (551 to 555) and its first element anchored `decalage` later. The pasted
  // range becomes the selection. No undo copy is taken and nothing is solved or repainted.
  static void ColleTampon(TElt* apres, TFenDessin* feuille, int mode, int decalage);

  // The file commands (Fichiers.cpp).
  // Asks first, with unsaved changes, whether to save them.
  void Ouvrir();
  // The i-th of the recent routines still on disk, as "&Ouvrir" opens it.
  void OuvrirRecent(std::size_t i);
  // An empty routine as at start, after asking about unsaved changes.
  void Nouveau();
  // Opens chemin as "&Ouvrir" does once the dialog has answered. With a nom, the document
  // reads chemin but takes nom as its name (a recovery copy takes its original's).
  void Ouvrir(const std::string& chemin, const std::string& nom = {});
  void Enregistrer();
  void EnregistrerSous();
  void EnregistrerSelection();
  void OuvrirMusique();
  // A range of sheets as a routine of its own, and a routine inserted after the active sheet
  // (files/Feuilles.cpp). True when the file was written, the routine inserted.
  bool EnregistrerFeuille();
  bool OuvrirFeuille();
  // The client area of the window, in device pixels, as the view last laid it out.
  void SetTailleClient(int largeur, int hauteur) { TailleClient = TSize{largeur, hauteur}; }

  // Puts dc into the logical mode of the wind window and refreshes the scales, the origin
  // and EchIE: for the client area on the screen, for this sheet's place on the page while
  // a print runs.
  void SetEchelle(TDC& dc);
  // Both ways, coordinates are clamped to LIMITE_COORDONNEES: far off every surface and
  // every sheet, yet so far inside int that a symbol's few pixels, a circle's radius, the
  // difference of two mouse positions or a squared distance in 64 bits never overflow.
  static constexpr int LIMITE_COORDONNEES = 1 << 24;
  TPoint LPtoDP(const TPointf& p) const;
  // Always whole logical units; (0, 0) while the window has no size.
  TPointf DPtoLP(const TPoint& p) const;
  // The sheet's background: the wind window, its dotted quarters, labels and grid as wide
  // as the window allows. dc must be in logical mode.
  void DessinAxes(TDC& dc);
  // The whole sheet: background, every kite's elements on it, then the current element and
  // the selection on top. The flag and the rectangle are not used: the platform clips.
  void Paint(TDC& dc, bool effacer, const TRect& rect);

  // Reports a user's error on the status line as "!!!! texte", with one beep. The text is
  // cut to 160 characters in the caller's buffer. The status line is the editor's, whichever
  // sheet reports.
  static void MessageErreur(char* texte);
  static void MessageErreur(const std::string& texte);
  static void MessageErreur(const char* texte) { MessageErreur(std::string(texte)); }

  // Solving of times and speeds. A local update from e, towards the next stretch when
  // Suivant is set and the previous one when Precedent is set.
  static void MiseAJourV(TElt* e, bool Suivant, bool Precedent);
  // Every element of the first nbCV tracks, each end time solved once.
  static void MiseAJourVTotale();
  // A new paused scene, its tracks laid by every element, then a whole-document update.
  // Refused, with a message, while a kite has no more than its start point.
  static void Demo();
  // Links e to the element at Index in the track NumCV of Table (-1: no link).
  static void Synchronise(TElt* e, int NumCV, TListeCV* Table, int Index, TFenDessin* pFen);
  // Reading of routine and figure files. One line, without its line end: with pListe null
  // it joins the document (the routine reader), otherwise it is appended to pListe (the
  // figure reader). The insertion reader builds into the six tracks of pTable instead.
  void CreeElement(std::string_view ligne, TListeCV* pListe);
  void CreeElementInsere(const char* ligne, TListeCV* pTable);
  // The elements of a figure file, in a new list; empty when the file cannot be read.
  TListeCV* OuvrirFigure(const char* Fichier);

  // Takes the selected element, or its father, as the father of the next synchronisation.
  bool PreleveSynchro();
  // Cuts e from its father; e stays a time anchor at the time it had.
  void SupprSynchro(TElt* e);
  // Undoes every synchronisation of e, as a father and as a child, before e goes.
  static void Detache(TElt* e);
  // Clears e's place among its father's children, and the father's number with the last one.
  static void DetachePere(TElt* e);

  TFenCadre2* pFenCadre;
  TFenListe* pFenListe;
  float EchelleX = 0;  // pixels per logical unit along x
  float EchelleY = 0;  // pixels per logical unit along y, negative: y goes up
  TPoint Origine;      // logical coordinates of the top left corner
  int Num;
  int TempsFeuille = 0;
  int NbSynchro = 0;  // the last synchronisation number used on this sheet
  TSize TailleClient;

  // Shared by all sheets, so that a gesture can cross a change of sheet.
  static float EchIE;  // multiplier of symbol sizes: 1 on the screen
  static int Fonction;
  static int Etape;
  static TElt* pEltCourant;
  static TElt* pEltCourant2;
  static TElt* pEltSynchro;
  static TElt* pEltSel;
  static TCurseur CursorType;
  static int nCV;
  static bool MAJPermanente;
  static bool MAJUp;
  static TImpression Imp;
  // Made by the first sheet, with A4 paper and the editor's margins; Imp prints through it.
  static std::unique_ptr<TImprimante> Printer;

  // The last settings of the paste, export and insertion dialogs.
  static ParamTBDColler ParamColler;
  static ParamTBDFeuille ParamFeuille;
  static ParamTBDInsererFic ParamInsererFic;

  static TPoint PointClic;  // previous position of a drag, whole logical units
  static TPoint DernierePosition;  // last mouse position, whole logical units

  static void ReinitialiseStatiques();
  // The cursor of the sheets and of the frame.
  static void SetCurseur(TCurseur c);

private:
  // A hit test over the elements of this sheet in the order of the search (Souris.cpp).
  enum class TBouton { Gauche, Droit };
  template <class Test>
  TElt* Recherche(TBouton bouton, Test test);
  void ClicConstruction(TDC& dc, const TPoint& p);
  void ClicModification(TDC& dc, unsigned flags, const TPoint& p);
  void ClicSynchro(TDC& dc, const TPoint& p);
  void ClicSupprSynchro(TDC& dc, const TPoint& p);
  void Deplace(TDC& dc, const TPoint& position);
  // Repaints the selected range.
  void InvalidPlage(TDC& dc);
  void CommandeDessin(unsigned id, const char* statut);
  void CommandeInsertion(TDC& dc, unsigned id);
  void AjoutCV(TDC& dc);
  // Gives up the element being drawn, if any: true when one was removed.
  // Only Escape repaints the element before the one given up.
  bool AbandonneEnCours(TDC& dc, bool retracePrecedent = false);
  // The whole sheet painted again, the strip laid out again, the tabs' labels refreshed.
  void RetraceTout();
  // Writes the routine to chemin; false, with the message, when it can't be written.
  bool EcritRoutine(const std::string& chemin);
};
