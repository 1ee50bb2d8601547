#pragma once
// The surface that an event handler of a sheet works on: it keeps the mapping that
// SetEchelle sets and passes invalidations on to the sheet's window. Handlers never draw.
#include "platform/DC.h"

class TFenDessin;

class TDCClient : public TDCEtat {
public:
  explicit TDCClient(TFenDessin& feuille) : Feuille(feuille) {}

  void MoveToEx(const TPoint&) override {}
  void LineTo(const TPoint&) override {}
  void Rectangle(const TRect&) override {}
  void Ellipse(const TRect&) override {}
  void Polygon(const std::vector<TPoint>&) override {}
  bool Arc(const TRect&, const TPoint&, const TPoint&) override { return true; }
  void SetPixel(const TPoint&, TColor) override {}
  void TextOut(const TPoint&, const std::string&) override {}
  void InvalidateRect(const TRect& r, bool effacer = true) override;

private:
  TFenDessin& Feuille;
};
