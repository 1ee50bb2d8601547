#include "frise/Selection.h"

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "model/Elt.h"

bool SelectionneElement(TFenCadre2& cadre, TElt* e) {
  if (!e || !e->pFen || e->pFen->Num < 1 || e->pFen->Num > cadre.nbFeuilles) return false;
  if (cadre.pFenDesActive != e->pFen) cadre.TabSelChange(e->pFen->Num - 1);
  TDCClient dc(*e->pFen);
  e->pFen->SetEchelle(dc);
  e->pFen->ModifieSelection(dc, 0, e);
  return true;
}
