#include "demo/VolHorsScene.h"

#include "demo/D3DDemo.h"
#include "model/Elt.h"

CV* GenerateursHorsScene = nullptr;

TPistesVol VolHorsScene() {
  TPistesVol pistes;
  CV generateurs[NB_CV_MAX];
  for (int i = 0; i < NB_CV_MAX; ++i) generateurs[i].Trajectoire(&pistes[i]);
  GenerateursHorsScene = generateurs;
  CV::Muet = true;
  // Walked without the lists' cursor, which the elements use themselves.
  for (int i = 0; i < nbCV && i < NB_CV_MAX; ++i)
    for (TNoeud* n = TabLElt[i].Init2(); n; n = n->GetSuivant()) static_cast<TElt*>(n)->DirectX();
  CV::Muet = false;
  GenerateursHorsScene = nullptr;
  return pistes;
}
