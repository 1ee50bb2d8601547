#pragma once
// The two manoeuvres turned to one side: the axel and the flat 540.
#include "model/elements/Manoeuvre.h"

class TManoeuvreCote : public TManoeuvre {
public:
  TManoeuvreCote(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste);

  void Set(int, int contrainte, float t, bool gauche, float duree);
  TRect GetRectEcran(TDC& dc) override;
  // The flight goes on level, to the side the manoeuvre turned to.
  TVect GetVDir() override { return Gauche ? TVect(-1, 0) : TVect(1, 0); }
  bool IsCalculV() const override { return true; }
  void Transforme(TPointf Origine, TPointf Destination, int Mode) override;
  void Enregistrer(std::string& Fichier, int decalageFeuille, float decalageTemps) override;

  bool Gauche = true;  // left when set, right otherwise

protected:
  // The name of the record, with its blanks: the two manoeuvres differ in nothing else.
  virtual const char* NomEnregistrement() const = 0;
  template <class T>
  TElt* CopieCote(TListeCV* l, bool Lien) {
    auto* c = static_cast<TManoeuvreCote*>(CopieDe<T>(l, Lien));
    c->DureeConstante = DureeConstante;
    c->Gauche = Gauche;
    return c;
  }
};

class TAxel : public TManoeuvreCote {
public:
  TAxel(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste) : TManoeuvreCote(p, fen, fenListe, liste) {}
  TAxel(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool) : TAxel(p, fen, fenListe, liste) {}
  void OpenBD() override;
  TElt* Copie(TListeCV* l, bool Lien) override { return CopieCote<TAxel>(l, Lien); }
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  void DirectX() override;

protected:
  const char* NomEnregistrement() const override { return "AXEL   "; }
};

class T540 : public TManoeuvreCote {
public:
  T540(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste) : TManoeuvreCote(p, fen, fenListe, liste) {}
  T540(const TPoint& p, TFenDessin* fen, TFenListe* fenListe, TListeCV* liste, bool) : T540(p, fen, fenListe, liste) {}
  void OpenBD() override;
  TElt* Copie(TListeCV* l, bool Lien) override { return CopieCote<T540>(l, Lien); }
  void Paint(TDC& dc, int Feuille, bool Selection) override;
  void DirectX() override;

protected:
  const char* NomEnregistrement() const override { return "540     "; }
};
