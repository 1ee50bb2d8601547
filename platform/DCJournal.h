#pragma once
// A drawing surface that draws nothing and keeps a journal: one line of text per drawing
// primitive, in the order drawn, with the coordinates exactly as passed and the state that
// colours the primitive. Selecting pens, brushes, fonts, colours and modes writes nothing by
// itself: it shows in the primitives that follow. Invalidations are kept apart, since they
// are not part of a picture.
//
// A line starts with the mode in force, L (logical units) or D (device pixels):
//   M line X1 Y1 X2 Y2 PEN                 from the current position
//   M rect L T R B PEN BRUSH
//   M ellipse L T R B PEN BRUSH
//   M polygon N X1 Y1 ... XN YN PEN BRUSH
//   M arc L T R B X1 Y1 X2 Y2 PEN
//   M pixel X Y COLOUR
//   M text X Y ALIGN FONT TEXTCOLOUR BK "TEXT"
// COLOUR is #rrggbb, PEN COLOUR/WIDTH/solid or COLOUR/WIDTH/dot, BRUSH a COLOUR, FONT
// FACE/HEIGHT/WEIGHT, BK opaque:COLOUR or transparent.
#include <string>
#include <vector>

#include "platform/DC.h"

class TDCJournal : public TDCEtat {
public:
  struct TInvalidation {
    TRect Rect;
    bool Effacer = true;
    friend bool operator==(const TInvalidation&, const TInvalidation&) = default;
  };



  void MoveToEx(const TPoint& p) override { Position = p; }
  void LineTo(const TPoint& p) override;
  void Rectangle(const TRect& r) override;
  void Ellipse(const TRect& r) override;
  void Polygon(const std::vector<TPoint>& points) override;
  bool Arc(const TRect& r, const TPoint& debut, const TPoint& fin) override;
  void SetPixel(const TPoint& p, TColor couleur) override;

  void TextOut(const TPoint& p, const std::string& texte) override;

  void InvalidateRect(const TRect& r, bool effacer = true) override { Invalidations.push_back({r, effacer}); }

  // The journal as text, one line each, each ended by a line feed.
  std::string Texte() const;

  std::vector<std::string> Lignes;
  std::vector<TInvalidation> Invalidations;

  TPoint Position;  // the current position, as given

private:
  // The mode letter and the primitive's name, to which its fields are added.
  std::string Debut(const char* primitive) const;
};
