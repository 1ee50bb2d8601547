#pragma once
// The property bar of one element: a one-line form in the strip under the sheet. The
// element owns its bar and writes its values into the bar's fields by control number.
#include <map>
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

// The bar as a logic object: what its fields say and where it stands in the strip. A view
// shows it on the screen; the command-line companion runs without one.
class TBD {
public:
  explicit TBD(TElt* elt) : pElt(elt) {}
  virtual ~TBD() = default;
  TBD(const TBD&) = delete;
  TBD& operator=(const TBD&) = delete;

  virtual void SetDlgItemText(int id, const std::string& texte) { Textes[id] = texte; }
  std::string GetDlgItemText(int id) const {
    const auto i = Textes.find(id);
    return i == Textes.end() ? std::string() : i->second;
  }
  // Shows the bar at y in the strip, at its present size and in its place among the windows.
  virtual void Place(int y) {
    Y = y;
    Visible = true;
  }
  virtual int Hauteur() const { return HauteurBarre; }
  // Takes c as the background and repaints the bar.
  virtual void SetCouleurFond(TColor) {}
  // Shows the constraint on its button and the read-only state of the fields it fixes.
  virtual void SetContrainte() {}
  // The refreshes of the bars that show more than the constraint: by default the same.
  virtual void SetContrainteAngle() { SetContrainte(); }
  virtual void SetContrainteDroiteGaucheDuree() { SetContrainte(); }
  virtual void SetContrainteDureeAngle() { SetContrainte(); }
  virtual void SetContrainteDuree() { SetContrainte(); }
  virtual void SetContrainteDureeType() { SetContrainte(); }
  // Brings the bar in line with a constraint that the element changed by itself.
  virtual void MiseAJourContrainte() {}
  // Cancels the form, as closing the dialog does, before the bar is destroyed.
  virtual void CloseWindow(int) { Visible = false; }

  TElt* pElt;
  TColor Couleur = TColor::LtBlue;  // a new bar is blue until its first placing
  int Y = 0;                        // top of the bar in the strip, in pixels
  bool Visible = false;             // created hidden, shown by the first placing
  int HauteurBarre = HAUTEUR_BD_DEFAUT;

private:
  std::map<int, std::string> Textes;
};
