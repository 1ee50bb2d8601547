#pragma once
// The state of a print run that drawing code asks about: whether a print is running, and
// where and how large a sheet stands on the page.

struct TImpression {
  bool blImpression = false;  // a print is running: sheets are mapped onto paper
  int Lf = 0;                 // width of a printed sheet, device units; always 2 * Hf
  int Hf = 0;                 // height of a printed sheet, device units
  int Mx = 0;                 // left margin of the page, device units
  int My = 0;                 // top margin of the page, device units
  int NbParPage = 8;          // sheets on a page: 1, 2, 4 or 8
};
