#pragma once
// A stored figure placed in a track: the whole content of a figure file as an inner list,
// mirrored by its transformation and placed at the end of the previous element. For the
// track it is one element with a fixed duration and a fixed displacement.
#include <memory>
#include <string>

#include "model/Elt.h"

inline constexpr int TAILLE_NOM_FIGURE = 7;

class TFigure : public TElt {
public:
  // Reads the figure from Fichier, a path as the routine names it.
  TFigure(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, const char* Fichier, bool);
  ~TFigure() override;
  void OpenBD() override;

  void Set(int, int contrainte, float t, float duree, int transformation);
  // The next step of the cycle 552, 553, 554, 555, 552, by composing mirrors about the
  // origin, so that the inner points are never read again from the file.
  void ChangeTransformation();

  void Paint(TDC& dc, int Feuille, bool Selection) override;
  TRect GetRectEcran(TDC& dc) override;
  TPointf Getp2() override;
  void SetV(float) override {}
  TVect GetVDir() override;
  float GetDureeConstante() const override { return DureeConstante; }
  float CalculLongueur() override { return 0; }
  bool IsCalculV() const override { return true; }
  bool Clic(TDC&, int Feuille, const TPoint& p) override { return ClicDroit(Feuille, p); }
  void Translate(int dx, int dy, bool AvecDebut) override { TranslateDroit(dx, dy, AvecDebut); }
  void Transforme(TPointf Origine, TPointf Destination, int Mode) override;
  TElt* Copie(TListeCV* l, bool Lien) override;
  // The inner elements follow the figure to its sheet and kite.
  void SetpFen(TFenDessin* fen) override {
    pFen = fen;
    RattacheInterieur();
  }
  // Places the inner elements at the end of the previous element and at its time, then
  // hands all but the first, which only anchors them, to the flight generator.
  void DirectX() override;
  // The inner elements are not written: the file is read again at each load.
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  std::unique_ptr<TListeCV> pListeFig;  // the inner elements, never in a table nor solved
  char Nom[TAILLE_NOM_FIGURE + 1] = "";  // base name up to its first point, cut at 7
  std::string NomFichierComplet;         // the path as given
  std::string NomFichier;                // without its directories: what the record stores
  float dx = 0;
  float dy = 0;
  int Transformation = TRANSFORMATION_PARALLELE;

protected:
  TPropagation PropagationInvalid() const override { return TPropagation::Restreinte; }

private:
  // For copies: no file is read, Copie fills the rest.
  TFigure(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool);
  // Displacement and duration from the first and last inner elements, 0 with none.
  void MesureInterieur(bool avecDuree);
  // The inner elements draw and report on the figure's kite and sheet, under its number.
  void RattacheInterieur();
};
