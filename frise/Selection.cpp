#include "frise/Selection.h"

#include <cmath>
#include <string>

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/Elt.h"

namespace {
// Compares pointers only: e may be gone.
bool DuDocument(const TElt* e) {
  for (int k = 0; k < nbCV; ++k)
    for (const TNoeud* n = TabLElt[k].Init2(); n; n = n->GetSuivant())
      if (n == e) return true;
  return false;
}
}  // namespace

bool SelectionneElement(TFenCadre2& cadre, TElt* e) {
  // The timeline's blocks may outlive an element until it is built again: it is looked for first.
  if (!e || !DuDocument(e) || !e->pFen || e->pFen->Num < 1 || e->pFen->Num > cadre.nbFeuilles) return false;
  if (cadre.pFenDesActive != e->pFen) cadre.TabSelChange(e->pFen->Num - 1);
  TDCClient dc(*e->pFen);
  e->pFen->SetEchelle(dc);
  e->pFen->ModifieSelection(dc, 0, e);
  return true;
}

bool FinDeplacable(const TElt* e) { return e && e->pBD && !e->pBD->EstLectureSeule(IDC_T); }

bool PrendFin(TElt* e) {
  if (!FinDeplacable(e) || !e->pFen) return false;
  e->pFen->MAJUnDo();
  return true;
}

bool DeplaceFin(TElt* e, double t) {
  if (!e || !DuDocument(e) || !FinDeplacable(e)) return false;
  // Typed as the bar takes it, so the bounds, the snapping and what follows are the bar's.
  if (std::isfinite(t) && std::fabs(t) < 1e9) e->pBD->Tape(IDC_T, std::to_string(std::lround(t)));
  return true;
}
