#pragma once
// What the editor frame asks of the window that shows it. The frame keeps every value
// itself; the view is told when one changes and reads it back. Without a view (the
// command-line companion, the tests) nothing is shown and nothing else changes.
#include "platform/Types.h"

class TFenDessin;

class TVueCadre2 {
public:
  virtual ~TVueCadre2() = default;
  // The tabs changed: their number, a label, or the one selected.
  virtual void Onglets() {}
  // Another sheet is the active one and is shown.
  virtual void FeuilleActive() {}
  // Part of a sheet, in its device pixels, is to be painted again.
  virtual void Invalide(TFenDessin*, const TRect&) {}
  // The caption, the position gadget, the synchronisation gadget or a menu check mark.
  virtual void Textes() {}
  // The keyboard focus goes to the active sheet, so that Escape and Delete reach it.
  virtual void Focus() {}
  // The property bars moved, opened or closed.
  virtual void Barres() {}
  // The program ends: the user has agreed, and nothing is to be asked again.
  virtual void Ferme() {}
};
