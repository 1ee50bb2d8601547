#include "model/elements/Segment.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDSegment.h"
#include "model/Nombres.h"
#include "model/Outils.h"

TSegment::TSegment(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_VCONSTANTE;
}

TSegment::TSegment(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TSegment(p, fen, fenListe, liste) {}

void TSegment::Set(int, int contrainte, float t, float v) {
  SetValeurs(contrainte, t, v);
  if (pBD) pBD->SetContrainte();
}

TElt* TSegment::Copie(TListeCV* l, bool Lien) { return CopieDe<TSegment>(l, Lien); }

TSegRevo::TSegRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle)
    : TSegment(p, fen, fenListe, liste), Angle(angle) {}

TSegRevo::TSegRevo(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, float angle, bool)
    : TSegRevo(p, fen, fenListe, liste, angle) {}

void TSegRevo::Set(int n, int contrainte, float t, float v) { Set(n, contrainte, t, v, Angle); }

void TSegRevo::Set(int, int contrainte, float t, float v, float angle) {
  SetValeurs(contrainte, t, v);
  Angle = angle;
  if (pBD) pBD->SetContrainteAngle();
}

int TSegRevo::GetAngle() { return AngleModulo2Pi(Angle); }

TElt* TSegRevo::Copie(TListeCV* l, bool Lien) { return CopieDe<TSegRevo>(l, Lien, Angle); }

void TSegment::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "SEGMENT ", decalageFeuille, decalageTemps);
  Enregistrer2(Fichier);
}

void TSegRevo::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "SEGREVO ", decalageFeuille, decalageTemps);
  Fichier += '\t';
  AjouteGcvt(Fichier, Angle, 6);
  Enregistrer2(Fichier);
}

void TSegment::OpenBD() { OuvreBD<TBD_Segment>(); }

void TSegRevo::OpenBD() { OuvreBD<TBD_SegRevo>(); }
