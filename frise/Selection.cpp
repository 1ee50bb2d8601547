#include "frise/Selection.h"

#include <cmath>
#include <string>

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Elt.h"

bool SelectionneElement(TFenCadre2& cadre, TElt* e) {
  if (!e || !e->pFen || e->pFen->Num < 1 || e->pFen->Num > cadre.nbFeuilles) return false;
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

float DeplaceFin(TElt* e, double t) {
  if (!FinDeplacable(e)) return e ? e->t2.GetParam() : 0.0f;
  // Typed as the bar takes it, so the bounds, the snapping and what follows are the bar's.
  if (std::isfinite(t) && std::fabs(t) < 1e9) e->pBD->Tape(IDC_T, std::to_string(std::lround(t)));
  return e->t2.GetParam();
}
