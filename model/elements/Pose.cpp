#include "model/elements/Pose.h"

#include "editor/bars/BD.h"
#include "editor/bars/BDManoeuvre.h"
#include "model/Nombres.h"
#include "model/Outils.h"

TPose::TPose(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste)
    : TManoeuvre(TPoint(p.x, 2), fen, fenListe, liste, CONTRAINTE_VCONSTANTE, 100) {}

TPose::TPose(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TPose(p, fen, fenListe, liste) {}

void TPose::Set(int, int contrainte, float t, float duree, int typePose) {
  SetTempsDuree(contrainte, t, duree);
  TypePose = typePose;
  if (pBD) pBD->SetContrainteDureeType();
}

TPointf TPose::PointDuPrecedent() const { return TPointf(TManoeuvre::PointDuPrecedent().x, HAUTEUR_SOL); }

bool TPose::RelaiePoint(TPointf& p) {
  // On the ground, below the previous end: that end takes the x and keeps its height.
  p.y = HAUTEUR_SOL;
  TElt::Setpp2(p);
  if (const TElt* prec = GetEltPrecedent()) p.y = prec->Getp2Param().y;
  return true;
}

void TPose::Translate(int dx, int, bool AvecDebut) {
  if (!AvecDebut) return;
  const TPointf p = Getp2();
  Setpp2(TPointf(p.x + static_cast<float>(dx), p.y));
}

float TPose::CalculLongueur() {
  const float l = LongueurDroite();
  return l <= EPS ? 0.0f : l;
}

void TPose::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  TElt::Transforme(Origine, Destination, Mode);
  // Only the left-right mirror swaps the tip it lands on.
  if (Mode == TRANSFORMATION_SYMETRIE_Y) {
    if (TypePose == POSE_POINTE_GAUCHE)
      TypePose = POSE_POINTE_DROITE;
    else if (TypePose == POSE_POINTE_DROITE)
      TypePose = POSE_POINTE_GAUCHE;
  }
}

TElt* TPose::Copie(TListeCV* l, bool Lien) {
  auto* c = static_cast<TPose*>(CopieDe<TPose>(l, Lien));
  c->DureeConstante = DureeConstante;
  c->TypePose = TypePose;
  return c;
}

void TPose::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "POSE   ", decalageFeuille, decalageTemps);
  Fichier += "\t\t";
  AjouteGcvt(Fichier, DureeConstante, 6);
  Fichier += "\t\t";
  AjouteEntier(Fichier, TypePose);
  Enregistrer2(Fichier);
}

void TPose::OpenBD() { OuvreBD<TBD_Pose>(); }
