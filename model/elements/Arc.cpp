#include "model/elements/Arc.h"

#include "editor/bars/BDArc.h"
#include <cmath>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/ArcGeometrie.h"
#include "model/Nombres.h"
#include "model/Outils.h"
#include "platform/DC.h"
#include "platform/Dialogues.h"

int ArrondiDegres(float Angle) {
  const float deg = Angle / DEMI_TOUR * 180;
  // Rounded while still a float, then brought into int: an angle beyond int stays at its
  // bound instead of stepping past it.
  float i = std::trunc(deg);
  if (i < 1) {
    if (i - deg > 0.5f) i -= 1;
  } else if (deg - i > 0.5f) {
    i += 1;
  }
  return Tronque(i);
}

TArc::TArc(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_VCONSTANTE;
}

TArc::TArc(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TArc(p, fen, fenListe, liste) {}

void TArc::Set(int, int contrainte, float t, float v, float rayon, float angle) {
  SetValeurs(contrainte, t, v);
  Rayon = rayon;
  Angle = angle;
  if (pBD) pBD->SetContrainte();
  Getp2();
}

bool TArc::Depart(TPointf& p1, TVect& v) const {
  TElt* prec = GetEltPrecedent();
  if (!prec) return false;
  p1 = prec->Getp2Param();
  v = prec->GetVDir();
  return true;
}

void TArc::MajRectCercle(const TPointf& p) {
  if (pFen) RectCercle = GetRectCercleInscrit(pFen->LPtoDP(Centre), pFen->LPtoDP(p));
}

int TArc::CalculParamPoignee() {
  switch (TypeArc) {
    case TYPE_ARC_RAYON: EtatArc = CalculRayon(); break;
    case TYPE_ARC_ANGLE: EtatArc = CalculAngle2(); break;
    default: EtatArc = CalculAngleRayon(); break;
  }
  return EtatArc;
}

void TArc::SetTBDParam(TPointf p, float rayon, float angle) {
  TElt::Setpp2(p);
  Angle = angle;
  Rayon = rayon;
  if (!pBD) return;
  pBD->SetDlgItemText(IDC_RAYON, Gcvt(rayon, 5));
  pBD->SetDlgItemText(IDC_ANGLE, Gcvt(ArrondiDegres(angle), 4));
}

int TArc::CalculAngleRayon() {
  TPointf p1;
  TVect v;
  if (!Depart(p1, v)) return -1;
  const TPointf p2 = Getp2Param();
  const int r = CalculArc1(v, p1, p2, &Centre, &Sens);
  if (r == -2) Angle = 0;  // straight ahead: no turn at all
  if (r != 1) {
    Dialogues().MessageBeep(0xFFFF);
    return r;
  }
  const double d1x = static_cast<double>(p1.x) - Centre.x;
  const double d1y = static_cast<double>(p1.y) - Centre.y;
  const double d2x = static_cast<double>(p2.x) - Centre.x;
  const double d2y = static_cast<double>(p2.y) - Centre.y;
  const double n1 = std::hypot(d1x, d1y);
  const double n2 = std::hypot(d2x, d2y);
  if (n1 < EPS || n2 < EPS) return -1;
  const double c = (d1x * d2x + d1y * d2y) / (n1 * n2);
  const double s = (d1x * d2y - d1y * d2x) / (n1 * n2);
  if (s < -1 || s > 1) return -1;
  // The counter-clockwise angle from p1 to p2, then made to go round the way Sens says,
  // so that a sweep of more than a half turn keeps its size.
  float a = static_cast<float>(std::asin(s));
  if (c < 0) a = s <= 0 ? -DEMI_TOUR - a : DEMI_TOUR - a;
  if (Sens && a < 0) a += TOUR_COMPLET;
  if (!Sens && a > 0) a -= TOUR_COMPLET;
  Angle = -a;
  MajRectCercle(p1);
  Rayon = static_cast<float>(n2);
  return 1;
}

int TArc::Calculp2() {
  if (Rayon < EPS) return -1;
  TPointf p1;
  TVect v;
  if (!Depart(p1, v)) return -1;
  TPointf p2;
  // -3, no sweep, leaves the end on the start: an arc of no length, but a valid one.
  if (CalculArc2(v, p1, Rayon, Angle, &Centre, &p2, &Sens) == -1) return -1;
  MajRectCercle(p2);
  Setpp2(p2);
  return 1;
}

int TArc::CalculAngle2() {
  if (Rayon < EPS) return -1;
  TPointf p1;
  TVect v;
  if (!Depart(p1, v)) return -1;
  TPointf p2 = Getp2Param();
  const int r = CalculArc3(v, p1, p2, Rayon, &Angle, &Centre, &p2, &Sens);
  if (r != 1) return r;
  MajRectCercle(p2);
  Setpp2(p2);
  return 1;
}

int TArc::CalculRayon() {
  TPointf p1;
  TVect v;
  if (!Depart(p1, v)) return -1;
  TPointf p2 = Getp2Param();
  const int r = CalculArc4(v, p1, p2, &Angle, &Rayon, &Centre, &p2, &Sens);
  if (r != 1) return r;
  MajRectCercle(p2);
  Setpp2(p2);
  Rayon = static_cast<float>(std::hypot(static_cast<double>(p2.x) - Centre.x, static_cast<double>(p2.y) - Centre.y));
  return 1;
}

void TArc::Setp2Poignee(const TPointf& p) {
  TElt::Setpp2(p);
  EtatArc = CalculParamPoignee();
  SetTBDParam(Getp2Param(), Rayon, Angle);
}

TPointf TArc::Getp2() {
  EtatArc = Calculp2();
  // A print maps the sheet onto paper; the bar keeps the screen's values.
  if (!TFenDessin::Imp.blImpression) SetTBDParam(Getp2Param(), Rayon, Angle);
  return Getp2Param();
}

void TArc::Translate(int dx, int dy, bool AvecDebut) {
  if (AvecDebut) {
    if (TElt* prec = GetEltPrecedent()) {
      const TPointf d = prec->Getp2Param();
      prec->Setpp2(TPointf(d.x + dx, d.y + dy));
    }
  }
  // The end is never moved by itself: it follows the start.
  EtatArc = Calculp2();
  SetTBDParam(Getp2Param(), Rayon, Angle);
}

TVect TArc::GetVDir() {
  // An arc whose end lies on its start flies on as before it.
  if (SansLongueur()) return DirectionPrecedente();
  const TPointf a = Getp2Param();
  // The tangent at the end, as long as the radius.
  const double rx = static_cast<double>(a.x) - Centre.x;
  const double ry = static_cast<double>(a.y) - Centre.y;
  return Sens ? TVect(Tronque(-ry), Tronque(rx)) : TVect(Tronque(ry), Tronque(-rx));
}

bool TArc::Clic(TDC& dc, int Feuille, const TPoint& p) {
  if (!pFen || pFen->Num != Feuille) return false;
  const TSize fenetre = dc.GetWindowExt();
  if (fenetre.cx == 0) return false;
  const TPoint c = pFen->LPtoDP(Centre);
  const double r = static_cast<double>(Rayon) * dc.GetViewportExt().cx / fenetre.cx;
  const double d = std::hypot(static_cast<double>(p.x) - c.x, static_cast<double>(p.y) - c.y);
  return Tronque(std::fabs(d - r)) < 6;
}

float TArc::CalculLongueur() { return std::fabs(Rayon * Angle); }

void TArc::CopieChampsArc(TArc* c) const {
  c->TypeArc = TypeArc;
  c->RectCercle = RectCercle;
  c->Sens = Sens;
  c->Centre = Centre;
  c->Rayon = Rayon;
  c->Angle = Angle;
}

TElt* TArc::Copie(TListeCV* l, bool Lien) {
  TElt* c = CopieDe<TArc>(l, Lien);
  CopieChampsArc(static_cast<TArc*>(c));
  return c;
}

void TArc::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  TElt::Transforme(Origine, Destination, Mode);
  // A mirror reverses the turn; a half turn of the plane keeps it.
  if (Mode == TRANSFORMATION_SYMETRIE_X || Mode == TRANSFORMATION_SYMETRIE_Y) Angle = -Angle;
  EtatArc = Calculp2();
}

TArcRevo::TArcRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angleRevo)
    : TArc(p, fen, fenListe, liste), AngleRevo(angleRevo) {}

TArcRevo::TArcRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angleRevo, bool)
    : TArcRevo(p, fen, fenListe, liste, angleRevo) {}

void TArcRevo::Set(int n, int contrainte, float t, float v, float rayon, float angle) {
  Set(n, contrainte, t, v, rayon, angle, AngleRevo);
}

void TArcRevo::Set(int, int contrainte, float t, float v, float rayon, float angle, float angleRevo) {
  SetValeurs(contrainte, t, v);
  Rayon = rayon;
  Angle = angle;
  AngleRevo = angleRevo;
  if (pBD) pBD->SetContrainteAngle();
  Getp2();
}

int TArcRevo::GetAngle() { return AngleModulo2Pi(AngleRevo); }

TElt* TArcRevo::Copie(TListeCV* l, bool Lien) {
  TElt* c = CopieDe<TArcRevo>(l, Lien, AngleRevo);
  CopieChampsArc(static_cast<TArc*>(c));
  return c;
}

void TArc::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "ARC     ", decalageFeuille, decalageTemps);
  AjouteGcvt(Fichier, Rayon, 6);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, Angle, 6);
  Enregistrer2(Fichier);
}

void TArcRevo::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "ARCREVO ", decalageFeuille, decalageTemps);
  AjouteGcvt(Fichier, Rayon, 6);
  Fichier += '\t';
  AjouteGcvt(Fichier, Angle, 6);
  Fichier += '\t';
  AjouteGcvt(Fichier, AngleRevo, 6);
  Enregistrer2(Fichier);
}

void TArc::OpenBD() { OuvreBD<TBD_Arc>(); }

void TArcRevo::OpenBD() { OuvreBD<TBD_ArcRevo>(); }
