#include "model/Elt.h"

#include <cmath>
#include <cstdio>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Nombres.h"
#include "model/Outils.h"

int TElt::NbElt = 0;

TElt::TElt(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : Num(NbElt++),
      pFen(fen),
      pListeCV(liste),
      x('x', static_cast<float>(p.x)),
      y('y', static_cast<float>(p.y)),
      pFenListe(fenListe) {}

// The element owns its bar.
TElt::~TElt() { CloseBD(); }

void TElt::Setpp2(const TPointf& p) {
  Setp2Param(p);
  if (pBD) {
    pBD->SetDlgItemText(IDC_X, std::to_string(Tronque(p.x)));
    pBD->SetDlgItemText(IDC_Y, std::to_string(Tronque(p.y)));
  }
}

void TElt::Setp2Param(const TPointf& p) {
  x.SetParam(p.x);
  y.SetParam(p.y);
}

float TElt::Gett2Param() const {
  // A child's time is its father's; a father never has a father, so this goes one level.
  return pPere ? pPere->Gett2Param() : t2.GetParam();
}

void TElt::SetV(float v) {
  V.SetParam(v);
  if (pBD) pBD->SetDlgItemText(IDC_V, Gcvt(v, 10));
}

bool TElt::Clicp2(TDC&, int Feuille, const TPoint& p) {
  if (!pFen || pFen->Num != Feuille) return false;
  const TPoint d = pFen->LPtoDP(Getp2());
  // In double: the click itself may lie anywhere in int, and the sum of two squares of 2^32
  // exceeds 64 bits. Exact where it matters, near the end.
  const double dx = static_cast<double>(d.x) - p.x;
  const double dy = static_cast<double>(d.y) - p.y;
  return dx * dx + dy * dy < 26;
}

int TElt::MoveBD(int yBarre) {
  if (!pBD) return 0;
  pBD->Place(yBarre);
  TColor fond = TColor::LtGray;
  if (this == TFenDessin::pEltCourant) {
    fond = COULEUR_BD_COURANT;
  } else if (TFenDessin::pEltCourant2 && TFenDessin::pEltCourant && pListeCV &&
             pListeCV == TFenDessin::pEltCourant->pListeCV) {
    // The stretch runs from pEltCourant2 up to pEltCourant in one track; the cached
    // positions answer without a walk once the strip has been laid out.
    const int i = pListeCV->GetIndex(this);
    if (i >= pListeCV->GetIndex(TFenDessin::pEltCourant2) && i < pListeCV->GetIndex(TFenDessin::pEltCourant))
      fond = COULEUR_BD_SELECTION;
  }
  if (!(fond == pBD->Couleur)) {
    pBD->Couleur = fond;
    pBD->SetCouleurFond(fond);
  }
  return pBD->Hauteur() - 1;
}

void TElt::OpenBD() { OuvreBD<TBD>(); }

void TElt::CloseBD() {
  if (!pBD) return;
  pBD->CloseWindow(0);
  delete pBD;
  pBD = nullptr;
}

void TElt::Supprime() {
  CloseBD();
  pListeCV->Supprime(this);
}

TColor TElt::GetCouleur() const { return pListeCV ? pListeCV->Couleur : TColor::Black; }

TPoint TElt::PointCopie() const {
  const TPointf p = Getp2Param();
  return TPoint(Tronque(p.x), Tronque(p.y));
}

void TElt::SetValeurs(int contrainte, float t, float v) {
  Contrainte = contrainte;
  Sett2(t);
  SetV(v);
}

void TElt::Copie2(TElt* c, bool Lien) {
  if (Lien) {
    c->Num = Num;
    --NbElt;
  }
  c->Contrainte = Contrainte;
  c->t2.SetParam(t2.GetParam());
  c->V.SetParam(V.GetParam());
  if (Lien) {
    if (pPere && pPere->pListeCV) {
      c->NumCVPere = pPere->pListeCV->Num;
      c->IndexPere = pPere->pListeCV->GetIndex(pPere);
    } else {
      c->NumCVPere = -1;
      c->IndexPere = -1;
    }
    c->NumSynchro = NumSynchro;
  }
  for (TElt*& f : c->pFils) f = nullptr;
  c->pPere = nullptr;
}

void TElt::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  // The stored point, never a derived one: in a loop over a range or a figure the element
  // before has already moved, and deriving from it would apply the move a second time.
  const TPointf p = Getp2Param();
  const float dx = p.x - Origine.x;
  const float dy = p.y - Origine.y;
  switch (Mode) {
    case TRANSFORMATION_MEMES_POINTS: Setpp2(p); break;
    case TRANSFORMATION_PARALLELE: Setpp2(TPointf(Destination.x + dx, Destination.y + dy)); break;
    case TRANSFORMATION_SYMETRIE_X: Setpp2(TPointf(Destination.x + dx, Destination.y - dy)); break;
    case TRANSFORMATION_SYMETRIE_Y: Setpp2(TPointf(Destination.x - dx, Destination.y + dy)); break;
    case TRANSFORMATION_SYMETRIE_POINT: Setpp2(TPointf(Destination.x - dx, Destination.y - dy)); break;
    default: break;  // an unknown mode, from a damaged file, moves nothing
  }
}

void TElt::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  // An element outside any list or sheet, such as a start point made only to be written,
  // counts as kite 0 on the first sheet: both exist in every document.
  const int kite = pListeCV ? pListeCV->Num : 0;
  const int feuille = pFen ? pFen->Num : 1;
  // Appended piece by piece: a routine of many thousand lines is written in one buffer.
  for (int n : {kite, Num, Contrainte, feuille - decalageFeuille}) {
    Fichier += '\t';
    AjouteEntier(Fichier, n);
  }
  Fichier += '\t';
  AjouteGcvt(Fichier, Gett2Param() - decalageTemps, 6);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, x.GetParam(), 4);
  Fichier += "  ";
  AjouteGcvt(Fichier, y.GetParam(), 4);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, V.GetParam(), 4);
  Fichier += '\t';
}

void TElt::Enregistrer2(std::string& Fichier) {
  Fichier += '\t';
  // A father outside any list has no index to give: the line goes without its link.
  if (pPere && pPere->pListeCV) {
    TListeCV& l = *pPere->pListeCV;
    Fichier += '\t';
    AjouteEntier(Fichier, l.Num);
    Fichier += '\t';
    AjouteEntier(Fichier, l.GetIndex(pPere) - l.IndexPremier);
  }
  Fichier += '\n';
}

void TElt::EnregistrerDebut(std::string& Fichier, const char* Nom, int decalageFeuille, float decalageTemps) {
  Fichier += Nom;
  TElt::Enregistrer(Fichier, decalageFeuille, decalageTemps);
}

float TElt::LongueurDroite() const {
  const TElt* prec = GetEltPrecedent();
  if (!prec) return 0;
  const TPointf a = prec->Getp2Param();
  const TPointf b = Getp2Param();
  const float dx = b.x - a.x;
  const float dy = b.y - a.y;
  return std::sqrt(dx * dx + dy * dy);
}

bool TElt::SansLongueur() const {
  const TElt* prec = GetEltPrecedent();
  if (!prec) return false;
  const TPointf a = prec->Getp2Param();
  const TPointf b = Getp2Param();
  return std::fabs(a.x - b.x) <= EPS && std::fabs(a.y - b.y) <= EPS;
}

TVect TElt::DirectionPrecedente() {
  TElt* e = GetEltPrecedent();
  while (e && e->DelegueVDir()) e = e->GetEltPrecedent();
  return e ? e->GetVDir() : TVect(0, 1);
}

TPointf TElt::PasseAuPrecedent(TPointf p) {
  // The caller's point is the one relayed until an element passes on a point of its own.
  TPointf appelant = p;
  bool partage = true;
  for (TElt* e = GetEltPrecedent(); e; e = e->GetEltPrecedent()) {
    if (!e->RelaiePoint(p)) {
      e->Setpp2(p);
      break;
    }
    if (partage) {
      appelant = e->Getp2Param();
      partage = p == appelant;
    }
  }
  return appelant;
}

TVect TElt::GetVDirDroite() {
  // A line of no length flies on in the direction of what came before it.
  if (!GetEltPrecedent()) return TVect(0, 1);  // nothing before: as from a start point
  if (SansLongueur()) return DirectionPrecedente();
  const TPointf a = GetEltPrecedent()->Getp2Param();
  const TPointf b = Getp2Param();
  return TVect(Tronque(b.x - a.x), Tronque(b.y - a.y));
}

bool TElt::ClicDroit(int Feuille, const TPoint& p) const {
  if (!pFen || pFen->Num != Feuille) return false;
  TElt* prec = GetEltPrecedent();
  if (!prec) return false;
  const TPoint debut = pFen->LPtoDP(prec->Getp2());
  const TPoint fin = pFen->LPtoDP(Getp2Param());
  TPoint pied;
  const int d = DistPtSeg(p, debut, fin, pied);
  return d != -1 && d <= 5;
}

void TElt::TranslateDroit(int dx, int dy, bool AvecDebut) {
  const TPointf p = Getp2();
  Setpp2(TPointf(p.x + dx, p.y + dy));
  if (AvecDebut) {
    if (TElt* prec = GetEltPrecedent()) {
      const TPointf d = prec->Getp2Param();
      prec->Setpp2(TPointf(d.x + dx, d.y + dy));
    }
  }
}
