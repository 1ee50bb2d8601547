#pragma once
// The property bar of one element: a one-line form in the strip under the sheet. The
// element owns its bar and writes its values into the bar's fields by control number.
#include <map>
#include <set>
#include <string>

#include "platform/Types.h"

class TElt;

// Control numbers shared by every bar.
enum TControleBD : int {
  IDC_NOM = 500,
  IDC_CONTRAINTE = 501,
  IDC_X = 502,
  IDC_Y = 503,
  IDC_T = 504,
  IDC_V = 505,
  IDC_GAUCHE = 508,         // side of an axel
  IDC_DUREE = 509,          // duration; the radius on the arc bars
  IDC_RAYON = 509,
  IDC_ANGLE = 510,          // angle in degrees
  IDC_TYPE_ARC = 511,
  IDC_TYPE_POSE = 512,
  IDC_Z = 513,
  IDC_VECTEUR_Z = 514,      // 514 to 516: x, y, z
  IDC_VECTEUR_Y = 517,      // 517 to 519: x, y, z
  IDC_TRANSFORMATION = 520,
  IDC_ANGLE_CUMULE = 521,
  IDC_ANGLE_REVO = 522,
};

// Height of a bar in the strip, in pixels, until a view gives the one its font makes: ten
// dialog units of the editor's small font and the border.
inline constexpr int HAUTEUR_BD_DEFAUT = 18;
// An edit takes ten characters with its terminator: nine typed ones.
inline constexpr std::size_t LONGUEUR_SAISIE_BD = 9;

// What a bar tells the widget that shows it. The bar keeps every value; the widget reads
// them back, so that it shows what the bar says and holds no state of its own.
class TVueBD {
public:
  virtual ~TVueBD() = default;
  // The text or the read-only or enabled state of control id changed; 0 for the background,
  // the place or the visibility of the whole bar.
  virtual void Change(int id) = 0;
  // The bar is being destroyed: the widget must let go of it now.
  virtual void Detruite() = 0;
};

// The bar as a logic object: what its fields say, which of them take typing, and what a
// change of each does to the element. A view shows it on the screen and hands it the user's
// gestures through Tape, Entree, Clic, ClicFond and Echap; the command-line companion runs
// without one.
class TBD {
public:
  explicit TBD(TElt* elt);
  virtual ~TBD();
  TBD(const TBD&) = delete;
  TBD& operator=(const TBD&) = delete;

  virtual void SetDlgItemText(int id, const std::string& texte) {
    Textes[id] = texte;
    Signale(id);
  }
  std::string GetDlgItemText(int id) const;
  // Shows the bar at y in the strip, at its present size and in its place among the windows.
  virtual void Place(int y) {
    Y = y;
    Visible = true;
    Signale(0);
  }
  virtual int Hauteur() const { return HauteurBarre; }
  // Takes c as the background and repaints the bar.
  virtual void SetCouleurFond(TColor) { Signale(0); }
  // An edit that takes no typing still shows its value and still runs its handler.
  virtual void SetLectureSeule(int id, bool oui);
  // A disabled button takes no click.
  virtual void SetActif(int id, bool oui);
  bool EstLectureSeule(int id) const { return LectureSeule.count(id) != 0; }
  bool EstActif(int id) const { return Inactifs.count(id) == 0; }
  bool EstEdit(int id) const { return Edits.count(id) != 0; }
  bool EstBouton(int id) const { return Boutons.count(id) != 0; }
  // Every control of the bar, label, buttons and edits, in number order.
  std::set<int> Controles() const;
  // What control id shows or does, in a few words the view shows under the mouse; empty for
  // an id no bar has.
  virtual std::string Bulle(int id) const;

  // Fills the fields from the element once the bar exists; the classes add their label.
  virtual void SetupWindow();
  // The name label's colour again from the kite's.
  virtual void MAJColor();
  // The kite's colour, grey in place of black, which would hide the label's text.
  TColor CouleurNom() const;

  // Shows the constraint on its button and the read-only state of the fields it fixes.
  virtual void SetContrainte() {}
  // The refreshes of the bars that show more than the constraint: by default the same.
  virtual void SetContrainteAngle() { SetContrainte(); }
  virtual void SetContrainteDroiteGaucheDuree() { SetContrainte(); }
  virtual void SetContrainteDureeAngle() { SetContrainte(); }
  virtual void SetContrainteDuree() { SetContrainte(); }
  virtual void SetContrainteDureeType() { SetContrainte(); }
  // Brings the bar in line with a constraint that the element changed by itself: a child of
  // a synchronisation shows its father's number and takes no time.
  virtual void MiseAJourContrainte();
  // Cancels the form, as closing the dialog does, before the bar is destroyed.
  virtual void CloseWindow(int) { Visible = false; }

  // What a field's text does to the element, when it loses the focus or takes Enter.
  virtual void TrtChangep2x();
  virtual void TrtChangep2y();
  virtual void TrtChanget2();
  // The speeds around the element after a change of its time.
  virtual void MiseAJourV();

  // The user's gestures. Text typed into edit id, which then loses the focus.
  void Tape(int id, const std::string& texte);
  // Text typed into edit id, then Enter; the current element's bar then asks for the next
  // element of the drawing tool under it.
  void Entree(int id, const std::string& texte);
  void Clic(int bouton);
  // A click on the bar's background selects its element; Shift extends the selection.
  void ClicFond(bool shift);
  // Escape in the bar is Escape on the sheet. The bar may be gone on return.
  void Echap();

  TElt* pElt;
  TColor Couleur = TColor::LtBlue;  // a new bar is blue until its first placing
  TColor CouleurLabel = TColor::Gray;
  int Y = 0;                        // top of the bar in the strip, in pixels
  bool Visible = false;             // created hidden, shown by the first placing
  int HauteurBarre = HAUTEUR_BD_DEFAUT;
  int Focus = 0;                    // the control that has the focus, 0 for none
  TVueBD* Vue = nullptr;            // the widget that shows the bar, if any

protected:
  void AjouteEdit(int id) { Edits.insert(id); }
  void AjouteBouton(int id, const std::string& libelle);
  // The handler of edit id on the loss of the focus; those of the classes, then the base's.
  virtual void PerteFocus(int id);
  // Enter in a field that the base does not take.
  virtual void AutreEvCommand(int) {}
  virtual void TrtBouton(int) {}
  // The first control in tab order, which a click on the background gives the focus to.
  virtual int PremierChamp() const { return IDC_X; }
  // The text of edit id as the edit gives it: nine characters at most.
  std::string Lit(int id) const;
  // The caption of 501 and the state of t for a constraint of the two given.
  void MontreContrainte(int contrainteLibre, const char* libelleLibre, int contrainteFixe, const char* libelleFixe);
  // A click on 501: beeps and swaps the two constraints, then solves. On the way to the
  // free one, relitTemps keeps the shown time as a fixed one.
  void BasculeContrainte(int contrainteLibre, const char* libelleLibre, int contrainteFixe, const char* libelleFixe,
                         bool relitTemps);
  // x and y of the elements that take their point from the one before them.
  void PointLectureSeule();
  static void Bip();
  void Signale(int id) {
    if (Vue) Vue->Change(id);
  }

private:
  std::map<int, std::string> Textes;
  std::set<int> Edits;
  std::set<int> Boutons;
  std::set<int> LectureSeule;
  std::set<int> Inactifs;
};

// Whether a time or a duration typed, or an angle of a turn typed, is one that a routine can
// hold. If not, the status line says so, and the field's handler keeps the stored value, as
// it does with a text that is no number.
bool TempsSaisiAdmis(float t);
bool AngleSaisiAdmis(float degres);

// A float as the bars show it: ten significant digits.
std::string TexteBD(double valeur);
// A number as the bars show it truncated.
std::string EntierBD(double valeur);
