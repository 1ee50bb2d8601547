#pragma once
// The state of a print run that drawing code asks about.

struct TImpression {
  bool blImpression = false;  // a print is running: sheets are mapped onto paper
};
