#include "model/elements/Figure.h"

#include "editor/bars/BDFigure.h"
#include <cstring>

#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Nombres.h"

TFigure::TFigure(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool)
    : TElt(p, fen, fenListe, liste) {
  Contrainte = CONTRAINTE_DUREE;
}

TFigure::TFigure(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, const char* Fichier, bool)
    : TFigure(p, fen, fenListe, liste, true) {
  pListeFig.reset(fen ? fen->OuvrirFigure(Fichier) : new TListeCV);
  // The inner elements are numbered by their figure, not by the document.
  NbElt -= pListeFig->nbNoeud();
  NomFichierComplet = Fichier;
  const std::size_t separateur = NomFichierComplet.find_last_of("\\/");
  NomFichier = separateur == std::string::npos ? NomFichierComplet : NomFichierComplet.substr(separateur + 1);
  const std::string base = NomFichier.substr(0, NomFichier.find('.'));
  std::strncpy(Nom, base.c_str(), TAILLE_NOM_FIGURE);
  Nom[TAILLE_NOM_FIGURE] = '\0';
  MesureInterieur(true);
  RattacheInterieur();
}

TFigure::~TFigure() = default;

void TFigure::MesureInterieur(bool avecDuree) {
  auto* premier = static_cast<TElt*>(pListeFig ? pListeFig->Premier() : nullptr);
  auto* dernier = static_cast<TElt*>(pListeFig ? pListeFig->Dernier() : nullptr);
  if (!premier) {
    dx = dy = 0;
    if (avecDuree) DureeConstante = 0;
    return;
  }
  const TPointf a = premier->Getp2Param();
  const TPointf b = dernier->Getp2Param();
  dx = b.x - a.x;
  dy = b.y - a.y;
  if (avecDuree) DureeConstante = dernier->Gett2Param() - premier->Gett2Param();
}

void TFigure::RattacheInterieur() {
  if (!pListeFig) return;
  for (TNoeud* n = pListeFig->Premier(); n; n = n->GetSuivant()) {
    auto* e = static_cast<TElt*>(n);
    e->Num = -Num;
    e->pListeCV = pListeCV;
    e->pFen = pFen;
  }
}

void TFigure::Set(int, int contrainte, float t, float duree, int transformation) {
  Contrainte = contrainte;
  Transformation = transformation;
  Sett2(t);
  DureeConstante = duree;
  if (pBD) pBD->SetContrainte();
  if (pListeFig)
    for (TNoeud* n = pListeFig->Premier(); n; n = n->GetSuivant())
      static_cast<TElt*>(n)->Transforme(TPointf(0, 0), TPointf(0, 0), transformation);
  MesureInterieur(false);
}

TPointf TFigure::Getp2() {
  const TElt* prec = GetEltPrecedent();
  const TPointf debut = prec ? prec->Getp2Param() : Getp2Param();
  const TPointf p(debut.x + dx, debut.y + dy);
  Setpp2(p);
  return p;
}

TVect TFigure::GetVDir() {
  // A figure that could not be read has no direction of its own: straight up, as a start.
  auto* dernier = static_cast<TElt*>(pListeFig ? pListeFig->Dernier() : nullptr);
  return dernier ? dernier->GetVDir() : TVect(0, 1);
}

void TFigure::Transforme(TPointf Origine, TPointf Destination, int Mode) {
  TElt::Transforme(Origine, Destination, Mode);
  if (pListeFig)
    for (TNoeud* n = pListeFig->Premier(); n; n = n->GetSuivant())
      static_cast<TElt*>(n)->Transforme(Origine, Destination, Mode);
  // The mirror of a mirror: the transformation that now takes the file's points to the
  // inner ones. Each mode swaps the transformations in pairs.
  auto echange = [this](int a, int b) {
    if (Transformation == a)
      Transformation = b;
    else if (Transformation == b)
      Transformation = a;
  };
  switch (Mode) {
    case TRANSFORMATION_SYMETRIE_X:
      echange(TRANSFORMATION_PARALLELE, TRANSFORMATION_SYMETRIE_X);
      echange(TRANSFORMATION_SYMETRIE_Y, TRANSFORMATION_SYMETRIE_POINT);
      dy = -dy;
      break;
    case TRANSFORMATION_SYMETRIE_Y:
      echange(TRANSFORMATION_PARALLELE, TRANSFORMATION_SYMETRIE_Y);
      echange(TRANSFORMATION_SYMETRIE_X, TRANSFORMATION_SYMETRIE_POINT);
      dx = -dx;
      break;
    case TRANSFORMATION_SYMETRIE_POINT:
      echange(TRANSFORMATION_PARALLELE, TRANSFORMATION_SYMETRIE_POINT);
      echange(TRANSFORMATION_SYMETRIE_X, TRANSFORMATION_SYMETRIE_Y);
      dx = -dx;
      dy = -dy;
      break;
    default: break;
  }
}

void TFigure::ChangeTransformation() {
  const TPointf o(0, 0);
  switch (Transformation) {
    case TRANSFORMATION_PARALLELE: Transforme(o, o, TRANSFORMATION_SYMETRIE_X); break;
    case TRANSFORMATION_SYMETRIE_X:
      Transforme(o, o, TRANSFORMATION_SYMETRIE_X);
      Transforme(o, o, TRANSFORMATION_SYMETRIE_Y);
      break;
    case TRANSFORMATION_SYMETRIE_Y:
      Transforme(o, o, TRANSFORMATION_SYMETRIE_Y);
      Transforme(o, o, TRANSFORMATION_SYMETRIE_POINT);
      break;
    case TRANSFORMATION_SYMETRIE_POINT: Transforme(o, o, TRANSFORMATION_SYMETRIE_POINT); break;
    default: break;
  }
}

TElt* TFigure::Copie(TListeCV* l, bool Lien) {
  auto* c = new TFigure(PointCopie(), pFen, pFenListe, l, true);
  Copie2(c, Lien);
  c->DureeConstante = DureeConstante;
  c->dx = dx;
  c->dy = dy;
  c->Transformation = Transformation;
  c->NomFichierComplet = NomFichierComplet;
  c->NomFichier = NomFichier;
  std::memcpy(c->Nom, Nom, sizeof Nom);
  if (pListeFig && !pListeFig->IsVide()) {
    c->pListeFig = std::make_unique<TListeCV>();
    // Linked copies keep the inner number, minus the source figure's, and cost none.
    for (TNoeud* n = pListeFig->Premier(); n; n = n->GetSuivant())
      c->pListeFig->Append(static_cast<TElt*>(n)->Copie(pListeCV, true));
  }
  return c;
}

void TFigure::Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) {
  EnregistrerDebut(Fichier, "FIGURE  ", decalageFeuille, decalageTemps);
  Fichier += '\t';
  AjouteGcvt(Fichier, DureeConstante, 6);
  Fichier += '\t';
  Fichier += NomFichier;
  Fichier += '\t';
  AjouteEntier(Fichier, Transformation);
  Enregistrer2(Fichier);
}

void TFigure::OpenBD() { OuvreBD<TBD_Figure>(); }
