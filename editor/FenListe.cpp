#include "editor/FenListe.h"

#include <algorithm>
#include <string>
#include <utility>

#include "editor/FenCadre2.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/Dialogues.h"

namespace {
constexpr int LARGEUR_SANS_BARRE = 751;
constexpr int ECART_CV = 5;  // pixels between the bars of two kites
}  // namespace

void TFenListe::EvSize(int largeur, int hauteur) {
  Largeur = largeur;
  Hauteur = hauteur;
  BarreHorizontale = largeur < LARGEUR_SANS_BARRE;
  if (!BarreHorizontale) XPos = 0;
}

void TFenListe::EvLButtonDown() {
  Dialogues().MessageBox("XPos = " + std::to_string(XPos) + ", YPos = " + std::to_string(YPos), "EvLButton()");
}

void TFenListe::ScrollTo(int x, int y) {
  XPos = std::clamp(x, 0, std::max(XRange, 0));
  YPos = std::clamp(y, 0, std::max(YRange, 0));
}

namespace {
// Whole units in the wheel's turn plus what was left over, keeping the new remainder.
int Unites(int delta, int& reste) {
  reste += delta * TFenListe::UNITES_PAR_CRAN;
  const int unites = reste / TFenListe::CRAN;  // towards zero: the rest keeps its sign
  reste -= unites * TFenListe::CRAN;
  return unites;
}
}  // namespace

bool TFenListe::Molette(int dx, int dy, bool deTravers) {
  if (deTravers && dx == 0) std::swap(dx, dy);
  if (!BarreHorizontale) dx = 0;
  // A turn the other way starts afresh rather than paying back the rest first.
  if ((dx > 0 && ResteX < 0) || (dx < 0 && ResteX > 0)) ResteX = 0;
  if ((dy > 0 && ResteY < 0) || (dy < 0 && ResteY > 0)) ResteY = 0;
  const int x = XPos - Unites(dx, ResteX);
  const int y = YPos - Unites(dy, ResteY);
  const int avantX = XPos, avantY = YPos;
  ScrollTo(x, y);
  if (XPos == avantX && YPos == avantY) return false;
  RetraceBD();
  return true;
}

int TFenListe::Place(TElt* cible, int& yCible) {
  const int s = YPos * YUnit;
  int y = 1;
  // Walked without the lists' cursor, which the elements use themselves.
  for (int k = 0; k < nbCV; ++k) {
    for (TNoeud* n = TabLElt[k].Premier(); n; n = n->GetSuivant()) {
      auto* e = static_cast<TElt*>(n);
      y += e->MoveBD(y - s);
      if (e == cible) yCible = (y - Hauteur / 2 + ECART_CV) / YUnit;
    }
    y += ECART_CV;
  }
  return y;
}

void TFenListe::RetraceBD() {
  int inutile = YPos;
  const int y = Place(nullptr, inutile);
  YRange = y / YUnit - 1;
  YPos = std::clamp(YPos, 0, std::max(YRange, 0));
  if (pFenCadre) pFenCadre->BarresChangees();
}

void TFenListe::ScrollBD(TElt* e) {
  int cible = YPos;
  const int y = Place(e, cible);
  YRange = y / YUnit - 1;
  const int avant = YPos;
  ScrollTo(XPos, cible);
  // Bars placed before the scroll stand too high or too low by what it moved.
  if (YPos != avant) Place(nullptr, cible);
  if (pFenCadre) pFenCadre->BarresChangees();
}
