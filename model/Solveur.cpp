// Solving end times and speeds along a track: the time operations of TElt.
//
// Gett2 is, in essence, a recursion back along the track to the previous time anchor,
// solving each end time on the way forward. It is written as a loop over an explicit list
// of levels so that a stretch of any length cannot exhaust the stack; the order of every
// read, write and report is that of the recursion.
#include <algorithm>
#include <string>
#include <vector>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "model/Solveur.h"
#include "platform/Dialogues.h"

namespace {
// The working speed: one value shared by every level of a solve, including the solves that
// a time change starts on the children of other kites. A level on "v.constante" reads the
// value left by the levels below it.
float VitesseTravail = V_DEFAUT;

float TempsPrecedent(TElt* e) {
  TElt* prec = e->GetEltPrecedent();
  return prec ? prec->Gett2Param() : 0.0f;
}
}  // namespace

void TElt::Sett2(float t) {
  t2.SetParam(t);
  if (pBD) pBD->SetDlgItemText(IDC_T, std::to_string(Tronque(t)));
  if (NumSynchro == 0) return;
  // The only place where a time crosses from one kite to another.
  for (TElt* fils : pFils) {
    if (!fils) continue;
    fils->CalculV();
    if (TElt* n = fils->GetEltSuivant())
      if (TElt* a = n->GetEltT()) a->CalculV();
  }
}

void TElt::Sett2() {
  if (pPere) {
    t2.SetParam(pPere->Gett2Param());
    if (pBD)
      pBD->SetDlgItemText(IDC_T, std::to_string(Tronque(t2.GetParam())) + "- " + std::to_string(pPere->NumSynchro));
    return;
  }
  if (pBD) pBD->SetDlgItemText(IDC_T, std::to_string(Tronque(t2.GetParam())));
  Contrainte = CONTRAINTE_TEMPS;
  if (pBD) pBD->MiseAJourContrainte();
}

bool TElt::Sett2(TElt* pere, int n) {
  if (!pere) return false;
  if (!pere->pListeCV || !pListeCV || pere->pListeCV->Num >= pListeCV->Num) {
    TFenDessin::MessageErreur("Element N°" + std::to_string(Num) + " : Synchro impossible :  N°CV trop faible");
    return false;
  }
  if (pere->pFen != pFen) {
    TFenDessin::MessageErreur("Element N°" + std::to_string(Num) +
                              " : Synchro impossible : pas sur la même feuille");
    return false;
  }
  // The first free slot takes the child. A child of this kite met before it refuses; one
  // met after a hole is never looked at.
  bool place = false;
  for (TElt*& fils : pere->pFils) {
    if (!fils) {
      fils = this;
      place = true;
      break;
    }
    if (fils->pListeCV == pListeCV) {
      TFenDessin::MessageErreur("Impossible :CV déjà synchro / cet élément");
      return false;
    }
  }
  if (!place) {
    TFenDessin::MessageErreur("Synchro impossible : trop de CV fils");
    return false;
  }
  pPere = pere;
  pere->NumSynchro = n;
  t2.SetParam(pere->Gett2Param());
  if (pBD) pBD->SetDlgItemText(IDC_T, std::to_string(Tronque(Gett2Param())) + "- " + std::to_string(n));
  Contrainte = CONTRAINTE_TEMPS;
  if (pBD) pBD->MiseAJourContrainte();
  return true;
}

TElt* TElt::GetEltT() {
  if (!EstDansListe()) return nullptr;
  TElt* e = this;
  for (;;) {
    if (e->Contrainte == CONTRAINTE_TEMPS) return e;
    TElt* suivant = e->GetEltSuivant();
    if (!suivant) return e;
    e = suivant;
  }
}

void TElt::GetDistanceDuree(int* Distance, int* Duree) {
  float L = 0;
  float C = 0;
  int tSuivant = -1;
  int tPrecedent = -1;
  if (EstDansListe()) {
    for (TElt* e = this; e; e = e->GetEltSuivant()) {
      L += e->CalculLongueur();
      C += e->GetDureeConstante();
      if (e->Contrainte == CONTRAINTE_TEMPS) {
        tSuivant = Tronque(e->Gett2Param());
        break;
      }
    }
    for (TElt* e = GetEltPrecedent(); e; e = e->GetEltPrecedent()) {
      if (e->Contrainte == CONTRAINTE_TEMPS) {
        tPrecedent = Tronque(e->Gett2Param());
        break;
      }
      L += e->CalculLongueur();
      C += e->GetDureeConstante();
    }
  }
  // In 64 bits: times read from a damaged file truncate to the ends of int, whose
  // difference does not fit in one.
  *Duree = (tPrecedent == -1 || tSuivant == -1)
               ? -1
               : Tronque(static_cast<float>(static_cast<long long>(tSuivant) - tPrecedent) - C);
  *Distance = Tronque(L);
}

float TElt::Gett2() {
  struct Niveau {
    TElt* e;
    float L;  // length, for a level on "v.constante"
  };
  std::vector<Niveau> niveaux;

  // Down to the level that answers without its predecessor.
  // Every level of one descent on "v.constante" lies in the same stretch, between the same
  // two anchors, and nothing changes during the descent: one measure of the stretch is the
  // answer each of them would get.
  bool mesure = false;
  int distance = 0;
  int duree = 0;
  float t = 0;
  for (TElt* e = this;;) {
    if (MiseAJourVTotaleEnCours && e->MAJFaite) {
      t = e->Gett2Param();
      break;
    }
    e->MAJFaite = true;
    if (e->Contrainte == CONTRAINTE_TEMPS) {
      e->Sett2();
      t = e->Gett2Param();
      break;
    }
    if (e->Contrainte == CONTRAINTE_VCONSTANTE) {
      const float L = e->CalculLongueur();
      if (!mesure) {
        e->GetDistanceDuree(&distance, &duree);
        mesure = true;
      }
      VitesseTravail = duree == -1 ? V_DEFAUT : static_cast<float>(distance) / static_cast<float>(std::max(duree, 1));
      niveaux.push_back({e, L});
    } else if (e->Contrainte == CONTRAINTE_DUREE) {
      niveaux.push_back({e, 0});
    } else {
      t = e->Gett2Param();
      break;
    }
    e = e->GetEltPrecedent();
    if (!e) break;  // a track always starts on a point; a damaged one starts at time 0
  }

  // Back up, each level from the end time of the one before it.
  for (auto n = niveaux.rbegin(); n != niveaux.rend(); ++n) {
    TElt* e = n->e;
    const float t1 = t;
    if (e->Contrainte == CONTRAINTE_DUREE) {
      t = t1 + e->DureeConstante;
      e->Sett2(t);
      continue;
    }
    if (VitesseTravail < V_PLANCHER) VitesseTravail = V_PLANCHER;
    t = n->L / VitesseTravail + t1 + e->DureeConstante;
    e->Sett2(t);
    if (t - t1 - e->DureeConstante < DUREE_VOL_MIN) t = t1 + DUREE_VOL_MIN + e->DureeConstante;
    VitesseTravail = n->L < V_PLANCHER ? e->V.GetParam() : n->L / (t - t1 - e->DureeConstante);
    e->SetV(VitesseTravail);
  }
  return t;
}

void TElt::CalculT() {
  switch (Contrainte) {
    case CONTRAINTE_TEMPS: Sett2(); break;
    case CONTRAINTE_VCONSTANTE: {
      float v = V.GetParam();
      if (v < V_PLANCHER) v = V_PLANCHER;
      Sett2(CalculLongueur() / v + TempsPrecedent(this) + DureeConstante);
      break;
    }
    case CONTRAINTE_DUREE: Sett2(TempsPrecedent(this) + DureeConstante); break;
    default: break;
  }
}

void TElt::CalculV() {
  if (Contrainte == CONTRAINTE_TEMPS || Contrainte == CONTRAINTE_VCONSTANTE) {
    TElt* prec = GetEltPrecedent();
    if (!prec) return;
    const float t1 = prec->Gett2();
    float t = Gett2();
    if (t - t1 < DUREE_VOL_MIN)
      TFenDessin::MessageErreur("Erreur possible élément N°" + std::to_string(Num) + " : t2<t1");
    if (t - t1 - DureeConstante < DUREE_VOL_MIN) t = t1 + DUREE_VOL_MIN + DureeConstante;
    float v = CalculLongueur() / (t - t1 - DureeConstante);
    if (v <= V_PLANCHER) v = V.GetParam();
    SetV(v);
  } else if (Contrainte == CONTRAINTE_DUREE) {
    Gett2();
  } else {
    Dialogues().MessageBox("CalculV()", "type contrainte non-prévu");
  }
}
