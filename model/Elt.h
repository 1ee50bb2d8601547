#pragma once
// One stretch of a kite's flight: the base of every element class.
//
// An element stores its end point and end time; its start is the end of the element before
// it in the track. Its time operations are in Solveur.cpp; the hand-over to the flight
// generator is in demo/vol/ and the drawing on a sheet in editor/peinture/, one file per
// class family; the property bars' operations join the class with the editor's views.
#include <string>

#include "model/ListeCV.h"
#include "model/Param.h"
#include "model/Types.h"

class TDC;
class TFenDessin;
class TFenListe;
class TBD;
class CV;

// Which of an element's values is given by the user.
enum TContrainte : int {
  CONTRAINTE_TEMPS = 2,        // "temps": the end time
  CONTRAINTE_VCONSTANTE = 3,   // "v.constante": part of a stretch flown at even speed
  CONTRAINTE_DUREE = 5,        // "Duree": a fixed duration
};

// Transformations of paste, figures and Transforme.
enum TModeTransformation : int {
  TRANSFORMATION_MEMES_POINTS = 551,
  TRANSFORMATION_PARALLELE = 552,
  TRANSFORMATION_SYMETRIE_X = 553,
  TRANSFORMATION_SYMETRIE_Y = 554,
  TRANSFORMATION_SYMETRIE_POINT = 555,
};

inline constexpr int NB_FILS_MAX = 5;
inline constexpr float V_DEFAUT = 0.4f;

class TElt : public TNoeud {
public:
  TElt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);
  ~TElt() override;

  static int NbElt;  // the next element number; never falls when an element goes

  // Neighbours in the track, without touching the list's cursor.
  TElt* GetEltPrecedent() const { return static_cast<TElt*>(GetPrecedent()); }
  TElt* GetEltSuivant() const { return static_cast<TElt*>(GetSuivant()); }

  // Draws the element if it lies on sheet Feuille; Selection gives it the look of the
  // selected range. The surface is in logical mode on entry and, but for an arc that could
  // not be calculated, on return.
  virtual void Paint(TDC& dc, int Feuille, bool Selection) = 0;
  // The cross where the track arrives from another sheet, the square where it leaves.
  virtual void PaintChangeFeuille(TDC& dc);
  // The handle of the end point p, which the mouse takes to move it.
  virtual void PaintPoignee(TDC& dc, const TPointf& p);
  // The numbers of the synchronisation the element belongs to.
  virtual void PaintSynchro(TDC& dc);
  virtual void Translate(int dx, int dy, bool AvecDebut) = 0;
  virtual void Setpp2(const TPointf& p);
  virtual void Setp2Poignee(const TPointf& p) { Setpp2(p); }
  virtual void Setp2Param(const TPointf& p);
  virtual TPointf Getp2() { return Getp2Param(); }
  virtual TPointf Getp2Param() const { return TPointf(x.GetParam(), y.GetParam()); }
  virtual void Sett2Param(float t) { t2.SetParam(t); }
  virtual void Sett2(float t);
  virtual bool Sett2(TElt* pere, int n);
  virtual void Sett2();
  virtual float Gett2();
  virtual float Gett2Param() const;
  virtual void SetV(float v);
  virtual float GetV() const { return V.GetParam(); }
  virtual void SetNum(int n) { Num = n; }
  virtual TVect GetVDir() = 0;
  virtual int GetAngle() { return 0; }
  virtual void SetpFen(TFenDessin* fen) { pFen = fen; }
  virtual bool Clicp2(TDC& dc, int Feuille, const TPoint& p);
  virtual bool Clic(TDC& dc, int Feuille, const TPoint& p) = 0;
  // The device rectangle to repaint for the element, a few pixels larger than its drawing.
  virtual TRect GetRectEcran(TDC& dc) = 0;
  // Asks for a repaint of the element and, by sens (0 the previous side, 1 the next, 2
  // both), of the neighbours whose picture depends on it.
  virtual void Invalid(TDC& dc, bool etendu, int sens);
  // Asks for a repaint of the numbers of the element's synchronisation, which change colour
  // with the current element.
  virtual void InvalidSynchro(TDC& dc);
  // A change of the previous element changes this one's picture.
  virtual bool IsAInvalider() const { return false; }
  virtual int MoveBD(int y);
  // Opens the element's property bar, hidden until the strip places it; nothing if it is open.
  virtual void OpenBD();
  virtual void CloseBD();
  virtual void Supprime();
  virtual bool IsCalculV() const { return false; }
  virtual void CalculV();
  virtual void CalculT();
  virtual float CalculLongueur() = 0;
  virtual TColor GetCouleur() const;
  virtual float GetDureeConstante() const = 0;
  virtual void GetDistanceDuree(int* Distance, int* Duree);
  virtual TElt* GetEltT();
  virtual TElt* Copie(TListeCV* l, bool Lien) = 0;
  virtual void Copie2(TElt* c, bool Lien);
  virtual void Transforme(TPointf Origine, TPointf Destination, int Mode);
  // Hands the element to the flight generator of its kite in the running scene.
  virtual void DirectX() = 0;
  // The element's line of a routine or figure file, appended to Fichier. The base writes the
  // common fields only; each class writes its record name before them, then its own fields
  // and the synchro tail. The sheet and time are written less the two shifts.
  virtual void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps);
  // The synchro tail and the line feed.
  virtual void Enregistrer2(std::string& Fichier);

  int Num;
  int Contrainte = CONTRAINTE_TEMPS;
  TFenDessin* pFen;
  TListeCV* pListeCV;
  TBD* pBD = nullptr;
  TElt* pFils[NB_FILS_MAX] = {};
  TElt* pPere = nullptr;
  int NumSynchro = 0;
  int NumCVPere = -1;
  int IndexPere = -1;
  bool MAJFaite = false;  // visited mark of a whole-document update
  TParam t2{'t', 0};
  TParam x;
  TParam y;
  TParam V{'v', V_DEFAUT};
  bool SurPlace = false;
  float DureeConstante = 0;
  TFenListe* pFenListe;

  // The element is in the track it names. A node knows its list, so this needs no walk.
  bool EstDansListe() const { return pListeCV && GetpListe() == pListeCV; }
  // The pass of TFenDessin::MiseAJourV that last took this element as its starting point.
  unsigned PassageMiseAJourV = 0;

protected:
  // How Invalid passes on to the neighbours: Base, the rule of TElt; the others by sens
  // alone, with etendu true (Etendue) or false (Restreinte).
  enum class TPropagation { Base, Etendue, Restreinte };
  virtual TPropagation PropagationInvalid() const { return TPropagation::Base; }

  // The flight generator of this element's kite, or null with no scene.
  CV* GetCV() const;

  // Opens the bar of class B and fills it from the element; nothing if it is open.
  template <class B>
  void OuvreBD() {
    if (pBD) return;
    B* b = new B(this);
    pBD = b;
    b->SetupWindow();
  }

  // The end point of the copy: the stored one, truncated to whole units.
  TPoint PointCopie() const;
  // A new element of class T at PointCopie, built with the class's own fields `champs`,
  // then given the common values by Copie2.
  template <class T, class... Champs>
  TElt* CopieDe(TListeCV* l, bool Lien, Champs... champs) {
    TElt* c = new T(PointCopie(), pFen, pFenListe, l, champs..., true);
    Copie2(c, Lien);
    return c;
  }
  // The record name, which carries its own blanks, then the common fields.
  void EnregistrerDebut(std::string& Fichier, const char* Nom, int decalageFeuille, float decalageTemps);

  // The values of a record common to the classes with a speed, before the bar's refresh.
  void SetValeurs(int contrainte, float t, float v);

  // Shared by the classes flown along the straight line from their start to their end.
  float LongueurDroite() const;
  TVect GetVDirDroite();
  bool ClicDroit(int Feuille, const TPoint& p) const;
  void TranslateDroit(int dx, int dy, bool AvecDebut);
  // The end lies on the start, within EPS on both axes.
  bool SansLongueur() const;

  // True while the element's direction is only that of the element before it.
  virtual bool DelegueVDir() { return false; }
  // The direction of the first element before this one that has a direction of its own.
  // A loop rather than a recursion, so that a long run of such elements cannot exhaust
  // the stack; a track with nothing before gives straight up, as from a start point.
  TVect DirectionPrecedente();

  // What an element that stands on its predecessor's end does with a point that is passed
  // back to it: true when it stored the point and passes it further back, perhaps changed.
  virtual bool RelaiePoint(TPointf&) { return false; }
  // Sets p as the end of the element before this one, through the elements that relay it;
  // returns p as the relay leaves it, which a landing on the way puts on the ground.
  TPointf PasseAuPrecedent(TPointf p);
};

// Background colours of a property bar in the strip.
inline constexpr TColor COULEUR_BD_COURANT{250, 250, 180};
inline constexpr TColor COULEUR_BD_SELECTION{250, 250, 220};
