// The mouse machine of the sheets: construction click by click, selection, drags and the
// synchronisation clicks. Its state, Fonction and Etape, is shared by every sheet, so that a
// drawing goes on from one sheet to the next when the user changes the tab.
#include <cstdio>
#include <string>
#include <vector>

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/FenListe.h"
#include "equipe/Notation.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Outils.h"
#include "model/elements/Arc.h"
#include "model/elements/Derapage.h"
#include "model/elements/Pt.h"
#include "model/elements/Segment.h"
#include "platform/Dialogues.h"

namespace {
TElt* Premier(int k) { return static_cast<TElt*>(TabLElt[k].Premier()); }
int Kite(const TElt* e) { return e->pListeCV ? e->pListeCV->Num : 0; }
TPoint Entier(const TPointf& p) { return TPoint(Tronque(p.x), Tronque(p.y)); }
}  // namespace

// The search starts from the current element, so that repeated clicks reach what lies under
// it: the left button from the current element itself, the right from the one after it.
// From the start it runs to the end of that track, then through the next kites from their
// first element, wrapping, and stops at a hit or back at the start; the left button's walk
// runs on past the start to the end of that track.
template <class Test>
TElt* TFenDessin::Recherche(TBouton bouton, Test test) {
  int k = 0;
  TElt* depart = nullptr;
  if (!pEltCourant || !pEltCourant->EstDansListe()) {
    depart = Premier(0);
  } else if (bouton == TBouton::Gauche) {
    depart = pEltCourant;
    k = nCV;
  } else {
    k = Kite(pEltCourant);
    depart = pEltCourant->GetEltSuivant();
    for (int essais = 0; !depart && essais < nbCV; ++essais) {
      k = (k + 1) % nbCV;
      depart = Premier(k);
    }
  }
  if (!depart) {
    // Kite 0 has no element yet: start from the first kite that has.
    for (k = 0; k < nbCV && !depart; ++k) depart = Premier(k);
    if (!depart) return nullptr;
    --k;
  }
  k = Kite(depart);
  for (TElt* e = depart; e; e = e->GetEltSuivant())
    if (test(e)) return e;
  for (int i = 1; i < nbCV; ++i)
    for (TElt* e = Premier((k + i) % nbCV); e; e = e->GetEltSuivant())
      if (test(e)) return e;
  for (TElt* e = Premier(k); e; e = e->GetEltSuivant()) {
    if (e == depart && bouton == TBouton::Droit) break;
    if (test(e)) return e;
  }
  return nullptr;
}

void TFenDessin::InvalidPlage(TDC& dc) {
  if (!pEltCourant2 || !pEltCourant) return;
  for (TElt* e = pEltCourant2; e; e = e->GetEltSuivant()) {
    e->Invalid(dc, true, 2);
    if (e == pEltCourant) break;
  }
}

void TFenDessin::EvLButtonDown(unsigned flags, const TPoint& p) {
  if (pFenCadre) pFenCadre->Focus();
  TDCClient dc(*this);
  SetEchelle(dc);
  if (EstFonctionDessin(Fonction))
    ClicConstruction(dc, p);
  else if (Fonction == FONCTION_MODIFICATION)
    ClicModification(dc, flags, p);
  else if (Fonction == FONCTION_AJOUT_SYNCHRO)
    ClicSynchro(dc, p);
  else if (Fonction == FONCTION_SUPPR_SYNCHRO)
    ClicSupprSynchro(dc, p);
}

void TFenDessin::ClicConstruction(TDC& dc, const TPoint& p) {
  if (pEltCourant2) {
    InvalidPlage(dc);
    pEltCourant2 = nullptr;
  }
  if (Etape == 3) {
    Etape = 2;  // the element stays where it is; the next one chains on
    return;
  }
  if (Etape != 1) return;
  TListeCV* liste = &TabLElt[nCV];
  if (liste->IsVide()) {
    // A new kite's first click places its start point anywhere.
    Etape = 2;
    auto* pt = new TPt(Entier(DPtoLP(p)), this, pFenListe, liste);
    liste->Append(pt);
    pEltSel = pt;
    pt->Invalid(dc, true, 2);
    MAJUnDo();
    return;
  }
  pEltSel = nullptr;
  // Drawing always starts from the end of an existing element.
  if (TElt* e = Recherche(TBouton::Gauche, [&](TElt* x) { return x->Clicp2(dc, Num, p); })) {
    MAJUnDo();
    Dialogues().MessageBeep(-1);
    pEltSel = e;
    nCV = Kite(e);
    Etape = 2;
  }
}

bool TFenDessin::ClicSelection(TDC& dc, const TPoint& p) {
  if (!pEltCourant2 || !pEltCourant) return false;
  for (TElt* e = pEltCourant2; e; e = e->GetEltSuivant()) {
    if (e->Clic(dc, Num, p)) return true;
    if (e == pEltCourant) break;
  }
  return false;
}

void TFenDessin::ClicModification(TDC& dc, unsigned flags, const TPoint& p) {
  if (Etape != 1) return;
  const TPoint position = Entier(DPtoLP(p));
  // A drag always starts from this click, even when a Shift click's hits are all refused.
  PointClic = position;
  if (ClicSelection(dc, p)) {
    MAJUnDo();
    Etape = 3;
    if (!(flags & MK_SHIFT)) {
      if (pFenCadre) pFenCadre->Focus();
      return;
    }
  }
  // A refused hit leaves the step as it was, and the search goes on. The kite stays the hit
  // one, unless an element is current: nCV is always the current element's kite.
  const int etape = Etape;
  const int kite = nCV;
  auto essaie = [&](TElt* e, int nouvelleEtape) {
    MAJUnDo();
    nCV = Kite(e);
    Etape = nouvelleEtape;
    if (ModifieSelection(dc, flags, e)) return true;
    if (pEltCourant) nCV = kite;
    Etape = etape;
    return false;
  };
  // End points win over bodies, on every element.
  if (Recherche(TBouton::Gauche, [&](TElt* e) { return e->Clicp2(dc, Num, p) && essaie(e, 2); }) ||
      Recherche(TBouton::Gauche, [&](TElt* e) { return e->Clic(dc, Num, p) && essaie(e, 3); })) {
    if (pFenCadre) pFenCadre->Focus();
  }
}

void TFenDessin::ClicSynchro(TDC& dc, const TPoint& p) {
  if (TabLElt[nCV].IsVide()) return;
  TElt* e = Recherche(TBouton::Gauche, [&](TElt* x) { return x->Clicp2(dc, Num, p); });
  if (!e) return;
  if (e->NumSynchro || e->pPere) {
    MessageErreur("impossible : élément déjà synchronisé");
    return;
  }
  if (!pEltSynchro) return;  // its sheet was removed since it was taken
  nCV = Kite(e);
  if (pEltCourant) pEltCourant->Invalid(dc, true, 2);
  pEltCourant = e;
  if (pFenListe) pFenListe->ScrollBD(e);
  MAJUnDo();
  if (!pEltSynchro->NumSynchro) {
    if (e->Sett2(pEltSynchro, NbSynchro + 1)) pEltSynchro->NumSynchro = ++NbSynchro;
  } else {
    e->Sett2(pEltSynchro, pEltSynchro->NumSynchro);
  }
  pEltSynchro->Invalid(dc, true, 2);
  pEltSynchro->InvalidSynchro(dc);
  e->Invalid(dc, true, 2);
  MiseAJourV(pEltCourant, true, false);
}

void TFenDessin::ClicSupprSynchro(TDC& dc, const TPoint& p) {
  if (TabLElt[nCV].IsVide()) return;
  TElt* e = Recherche(TBouton::Gauche, [&](TElt* x) { return x->Clicp2(dc, Num, p); });
  if (!e) return;
  if (e->NumSynchro) {
    MessageErreur("impossible à supprimer  : élément synchronisant");
    return;
  }
  if (!e->pPere) {
    Dialogues().MessageBeep(-1);
    return;
  }
  nCV = Kite(e);
  pEltCourant = e;
  MAJUnDo();
  e->pPere->InvalidSynchro(dc);
  SupprSynchro(e);
  e->Invalid(dc, true, 2);
  if (pFenListe) pFenListe->ScrollBD(e);
}

bool TFenDessin::ModifieSelection(TDC& dc, unsigned flags, TElt* e) {
  Dialogues().MessageBeep(-1);
  if (flags & MK_SHIFT) return EtendSelection(dc, e);
  InvalidPlage(dc);
  pEltCourant2 = nullptr;
  if (e != pEltCourant) {
    if (pEltCourant) {
      pEltCourant->Invalid(dc, true, 2);
      pEltCourant->InvalidSynchro(dc);
    }
    pEltCourant = e;
    e->Invalid(dc, true, 2);
    e->InvalidSynchro(dc);
    if (pFenListe) pFenListe->ScrollBD(e);
  }
  return true;
}

bool TFenDessin::EtendSelection(TDC& dc, TElt* e) {
  if (!pEltCourant || !e || e == pEltCourant) return false;
  if (!e->pFen || !pEltCourant->pFen || e->pFen->Num != pEltCourant->pFen->Num) {
    MessageErreur("Sélection sur plusieurs fenêtres impossible");
    return false;
  }
  if (e->pListeCV != pEltCourant->pListeCV) return false;
  InvalidPlage(dc);
  pEltCourant2 = e;
  TListeCV* liste = e->pListeCV;
  if (liste->GetIndex(pEltCourant) < liste->GetIndex(pEltCourant2)) std::swap(pEltCourant, pEltCourant2);
  // A kite's start point can't be part of a range.
  if (liste->IsPremier(pEltCourant2)) pEltCourant2 = pEltCourant2->GetEltSuivant();
  if (!pEltCourant2 || pEltCourant2 == pEltCourant) return false;
  InvalidPlage(dc);
  if (pFenListe) pFenListe->ScrollBD(pEltCourant);
  return true;
}

void TFenDessin::EvRButtonDown(unsigned flags, const TPoint& p) {
  if (pFenCadre) pFenCadre->Focus();
  TDCClient dc(*this);
  SetEchelle(dc);
  // A right click selects without starting a drag; repeated, it goes through crossing elements.
  Recherche(TBouton::Droit, [&](TElt* e) {
    if (!(e->Clicp2(dc, Num, p) || e->Clic(dc, Num, p)) || !ModifieSelection(dc, flags, e)) return false;
    nCV = Kite(e);
    return true;
  });
}

void TFenDessin::CreerElt(const TPoint& p) {
  if (!EstFonctionDessin(Fonction)) return;
  TDCClient dc(*this);
  SetEchelle(dc);
  if (pEltCourant) pEltCourant->Invalid(dc, true, 1);
  TListeCV* liste = pEltSel && pEltSel->pListeCV ? pEltSel->pListeCV : &TabLElt[nCV];
  const int angle = pEltSel ? pEltSel->GetAngle() : 0;
  TElt* e = nullptr;
  switch (Fonction) {
    case 301: e = new TSegment(p, this, pFenListe, liste); break;
    case 305: e = new TArc(p, this, pFenListe, liste); break;
    case 309: e = new TDerapage(p, this, pFenListe, liste); break;
    case 311: e = new TArcRevo(p, this, pFenListe, liste, static_cast<float>(angle)); break;
    default: e = new TSegRevo(p, this, pFenListe, liste, static_cast<float>(angle)); break;
  }
  pEltCourant = e;
  e->OpenBD();
  // There is always an empty sheet after the last one drawn on.
  if (pFenCadre && Num == pFenCadre->nbFeuilles) pFenCadre->AddFeuille();
  liste->InsereAvant(e, pEltSel && pEltSel->EstDansListe() ? pEltSel->GetEltSuivant() : nullptr);
  e->Invalid(dc, true, 1);
  pEltSel = e;
  if (pFenListe) pFenListe->ScrollBD(e);
}

void TFenDessin::ModifElt(TDC& dc, TElt* e, const TPointf& p) {
  e->Invalid(dc, true, 2);
  e->Setp2Poignee(p);
  e->Invalid(dc, true, 2);
  if (MAJPermanente) MiseAJourV(e, true, false);
}

void TFenDessin::Deplace(TDC& dc, const TPoint& position) {
  if (!pEltCourant) return;
  const int dx = position.x - PointClic.x;
  const int dy = position.y - PointClic.y;
  auto bouge = [&](TElt* e, bool avecDebut) {
    e->Invalid(dc, true, 2);
    e->Translate(dx, dy, avecDebut);
    e->Invalid(dc, true, 2);
  };
  if (pEltCourant2) {
    // The first of the block takes the end of the element before it along.
    for (TElt* e = pEltCourant2->GetEltSuivant(); e; e = e->GetEltSuivant()) {
      bouge(e, false);
      if (e == pEltCourant) break;
    }
    bouge(pEltCourant2, true);
  } else {
    bouge(pEltCourant, true);
  }
  PointClic = position;
  if (MAJPermanente) MiseAJourV(pEltCourant, true, true);
}

void TFenDessin::EvMouseMove(unsigned, const TPoint& p) {
  TDCClient dc(*this);
  SetEchelle(dc);
  const TPointf lp = DPtoLP(p);
  const TPoint position = Entier(lp);
  // Within the same whole unit nothing at all happens.
  if (position == DernierePosition) return;
  DernierePosition = position;
  if (pFenCadre)
    pFenCadre->SetTextePosition(std::to_string(position.x) + " , " + std::to_string(position.y) + "   " +
                                NotationPilote(TPointf(position)));

  if (EstFonctionDessin(Fonction)) {
    if (Etape == 2) {
      if (pEltSel) CreerElt(position);
      Etape = 3;
    } else if (Etape == 3 && pEltCourant) {
      // The element lands on the sheet that receives the moves: a tab changed mid-drawing
      // carries the track onto the new sheet, whose bars must then be opened again.
      pEltCourant->SetpFen(this);
      const bool ouverte = pEltCourant->pBD != nullptr;
      pEltCourant->OpenBD();
      if (!ouverte && pFenListe) pFenListe->RetraceBD();
      pEltCourant->Invalid(dc, true, 2);
      pEltCourant->Setp2Poignee(lp);
      pEltCourant->Invalid(dc, true, 2);
      if (pEltCourant->pListeCV && pEltCourant->pListeCV->IsDernier(pEltCourant))
        pEltCourant->CalculT();
      else if (MAJPermanente)
        MiseAJourV(pEltCourant, true, true);
    }
  } else if (Fonction == FONCTION_MODIFICATION) {
    if (Etape == 2 && pEltCourant)
      ModifElt(dc, pEltCourant, lp);
    else if (Etape == 3)
      Deplace(dc, position);
  }
}

void TFenDessin::EvLButtonUp(unsigned, const TPoint&) {
  if (Fonction == 301 && MAJUp && pEltCourant) {
    MiseAJourV(pEltCourant, true, true);
    pEltCourant->SetpFen(this);
  }
  if (Fonction == FONCTION_MODIFICATION) {
    if (MAJUp && pEltCourant) MiseAJourV(pEltCourant, true, true);
    if (Etape == 2 || Etape == 3) Etape = 1;
  }
  MetAJourOnglets();
}

void TFenDessin::EvChar(unsigned key, unsigned, unsigned) {
  if (key == CAR_ECHAP) Echap();
}

void TFenDessin::EvKeyDown(unsigned key, unsigned, unsigned) {
  if (key == VK_DELETE) Suppr();
}

void TFenDessin::MetAJourOnglets() {
  if (!pFenCadre) return;
  // The labels from this sheet on, bare unless the first kite gives them a time; only those
  // that differ are passed to the frame.
  std::vector<std::string> labels;
  for (int i = Num; i <= pFenCadre->nbFeuilles; ++i) labels.push_back(std::to_string(i) + " - ");
  int s = Num;
  int t = 0;
  auto etiquette = [&] {
    if (s >= Num && s - Num < static_cast<int>(labels.size()))
      labels[static_cast<std::size_t>(s - Num)] = std::to_string(s) + " - " + std::to_string(t);
  };
  for (TNoeud* n = TabLElt[0].Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    if (!e->pFen) continue;
    if (s < e->pFen->Num) {
      etiquette();
      s = e->pFen->Num;
    }
    t = Tronque(e->Gett2Param());
    e->pFen->TempsFeuille = t;
  }
  etiquette();
  for (std::size_t i = 0; i < labels.size(); ++i) pFenCadre->SetLabelOnglet(labels[i], Num - 1 + static_cast<int>(i));
}
