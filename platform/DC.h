#pragma once
// The drawing surface handed to every paint, invalidation and hit test of the editor.
// A surface is either in logical mode (the mapping set by SetWindowExt/SetViewportExt/
// SetWindowOrg) or in device mode (pixels, origin at the top left of the drawing area).
#include <string>
#include <vector>

#include "platform/Types.h"

enum class TMapMode { Texte, Anisotrope };  // device pixels, or the logical mapping

struct TPen {
  enum class Style { Plein, Pointille };
  TColor Couleur = TColor::Black;
  int Largeur = 0;  // 0: one device pixel at any scale
  Style Trait = Style::Plein;
  friend bool operator==(const TPen&, const TPen&) = default;
};

struct TBrush {
  TColor Couleur = TColor::White;
  friend bool operator==(const TBrush&, const TBrush&) = default;
};

struct TFont {
  std::string Nom;
  int Hauteur = 0;  // in the units of the current mode
  int Graisse = 400;
  int JeuCaracteres = 1;
  friend bool operator==(const TFont&, const TFont&) = default;
};

enum class TStockObject { BlackPen, WhiteBrush };

// Text alignment flags, combined with |.
enum TTextAlign : unsigned {
  TA_LEFT = 0, TA_RIGHT = 2, TA_CENTER = 6,
  TA_TOP = 0, TA_BOTTOM = 8, TA_BASELINE = 24,
};

enum class TBkMode { Transparent, Opaque };

class TDC {
public:
  virtual ~TDC() = default;

  virtual void SetMapMode(TMapMode mode) = 0;
  virtual void SetWindowExt(const TSize& ext) = 0;
  virtual void SetViewportExt(const TSize& ext) = 0;
  virtual void SetWindowOrg(const TPoint& origine) = 0;
  // The extents last set, which give the scale of the logical mode.
  virtual TSize GetWindowExt() const = 0;
  virtual TSize GetViewportExt() const = 0;

  virtual void SelectObject(const TPen& pen) = 0;
  virtual void SelectObject(const TBrush& brush) = 0;
  virtual void SelectObject(const TFont& font) = 0;
  virtual void SelectStockObject(TStockObject objet) = 0;

  virtual void MoveToEx(const TPoint& p) = 0;
  virtual void LineTo(const TPoint& p) = 0;  // last pixel excluded
  virtual void Rectangle(const TRect& r) = 0;
  virtual void Ellipse(const TRect& r) = 0;
  virtual void Polygon(const std::vector<TPoint>& points) = 0;
  // Arc of the ellipse inscribed in r, counter-clockwise on screen from the ray
  // through debut to the ray through fin; false when the surface could not draw it.
  virtual bool Arc(const TRect& r, const TPoint& debut, const TPoint& fin) = 0;
  virtual void SetPixel(const TPoint& p, TColor couleur) = 0;

  virtual void SetTextAlign(unsigned flags) = 0;
  virtual void SetTextColor(TColor couleur) = 0;
  virtual void SetBkColor(TColor couleur) = 0;
  virtual void SetBkMode(TBkMode mode) = 0;
  virtual void TextOut(const TPoint& p, const std::string& texte) = 0;

  // Marks a device rectangle to be erased to the background and repainted.
  virtual void InvalidateRect(const TRect& r, bool effacer = true) = 0;
};

// The state of a new surface: device mode, black pen, white brush, no font, black text on an
// opaque white background, left and top alignment.
struct TEtatDC {
  TMapMode Mode = TMapMode::Texte;
  TSize ExtFenetre{1, 1};
  TSize ExtVue{1, 1};
  TPoint OrigineFenetre;
  TPen Plume;
  TBrush Brosse;
  TFont Police{"", 0, 0, 0};
  TColor CouleurTexte = TColor::Black;
  TColor CouleurFond = TColor::White;
  TBkMode ModeFond = TBkMode::Opaque;
  unsigned Alignement = TA_LEFT | TA_TOP;
};

// A surface that keeps what the selections set: the mapping, the pen, the brush, the font and
// the text's colours and alignment. The surfaces differ only in what they do with a primitive.
class TDCEtat : public TDC, public TEtatDC {
public:
  void SetMapMode(TMapMode mode) override { Mode = mode; }
  void SetWindowExt(const TSize& ext) override { ExtFenetre = ext; }
  void SetViewportExt(const TSize& ext) override { ExtVue = ext; }
  void SetWindowOrg(const TPoint& origine) override { OrigineFenetre = origine; }
  TSize GetWindowExt() const override { return ExtFenetre; }
  TSize GetViewportExt() const override { return ExtVue; }

  void SelectObject(const TPen& pen) override { Plume = pen; }
  void SelectObject(const TBrush& brush) override { Brosse = brush; }
  void SelectObject(const TFont& font) override { Police = font; }
  void SelectStockObject(TStockObject objet) override {
    if (objet == TStockObject::BlackPen)
      Plume = TPen{};
    else
      Brosse = TBrush{};
  }

  void SetTextAlign(unsigned flags) override { Alignement = flags; }
  void SetTextColor(TColor couleur) override { CouleurTexte = couleur; }
  void SetBkColor(TColor couleur) override { CouleurFond = couleur; }
  void SetBkMode(TBkMode mode) override { ModeFond = mode; }

  void ReinitialiseEtat() { static_cast<TEtatDC&>(*this) = TEtatDC(); }
};
