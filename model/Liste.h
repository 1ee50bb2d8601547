#pragma once
// The intrusive doubly linked list that holds the elements of a track.
//
// Two families of walking operations: the first moves the list's one cursor pCourant, the
// second leaves it alone. Element operations use the cursor themselves, so a walk during
// which they are called must use the second family.

class TListe;

class TNoeud {
public:
  TNoeud() = default;
  TNoeud(const TNoeud&) = delete;
  TNoeud& operator=(const TNoeud&) = delete;
  // Unlinking is the list's work: a node leaves its links as they are.
  virtual ~TNoeud() = default;

  TNoeud* GetSuivant() const { return IsDernier() ? nullptr : pSuivant; }
  TNoeud* GetPrecedent() const { return IsPremier() ? nullptr : pPrecedent; }
  TListe* GetpListe() const { return pListe; }
  // The next node is the tail sentinel, whose own next is null; an unlisted node is neither.
  bool IsDernier() const { return pSuivant == nullptr || pSuivant->pSuivant == nullptr; }
  bool IsPremier() const { return pPrecedent == nullptr || pPrecedent->pPrecedent == nullptr; }

  TNoeud* pSuivant = nullptr;
  TNoeud* pPrecedent = nullptr;
  TListe* pListe = nullptr;
  int Index = 0;  // position from 0, meaningful while the list's IndexValide is set
};

class TListe {
public:
  TListe();
  TListe(const TListe&) = delete;
  TListe& operator=(const TListe&) = delete;
  ~TListe();

  // Family with cursor.
  TNoeud* Init();
  TNoeud* VaFin();
  bool IsFin() const { return pCourant == pFin; }
  bool IsDebut() const { return pCourant == pDebut; }
  TNoeud* Suivant();
  TNoeud* Precedent();
  TNoeud* Suivant(TNoeud* n);
  TNoeud* Precedent(TNoeud* n);
  bool Existe(const TNoeud* n);
  TNoeud* GetNoeudCourant() const { return pCourant; }
  void Insere(TNoeud* n);
  bool Insere(TNoeud* n, TNoeud* pos);
  void Append(TNoeud* n);
  // Puts n before pos, a node of this list, without walking it; at the end when pos is null.
  void InsereAvant(TNoeud* n, TNoeud* pos);
  void Supprime();
  void Supprime(TNoeud* n);
  void Vide();

  // Family without cursor.
  TNoeud* Init2() const { return Premier(); }
  TNoeud* VaFin2() const { return Dernier(); }
  TNoeud* Premier() const { return IsVide() ? nullptr : pDebut->pSuivant; }
  TNoeud* Dernier() const { return IsVide() ? nullptr : pFin->pPrecedent; }
  bool IsVide() const { return nbElements == 0; }
  bool IsPremier(const TNoeud* n) const { return !IsVide() && n == pDebut->pSuivant; }
  bool IsDernier(const TNoeud* n) const { return !IsVide() && n == pFin->pPrecedent; }
  bool IsFin(const TNoeud* n) const { return n == pFin; }
  bool IsDebut(const TNoeud* n) const { return n == pDebut; }
  int nbNoeud() const { return nbElements; }
  TNoeud* GetPt(int i) const;
  // Position of n from 0, or -1. While IndexValide is set the cached Index of n is the
  // answer, without checking that n belongs to this list.
  int GetIndex(const TNoeud* n);
  void Ajoute(TNoeud* n);
  // Moves every node of l before pos (null: at the end), leaving l empty; false if l is empty.
  bool InsereListe(TListe& l, TNoeud* pos);

  TNoeud Debut;
  TNoeud Fin;
  TNoeud* const pDebut;
  TNoeud* const pFin;
  TNoeud* pCourant;
  int nbElements = 0;
  bool IndexValide = false;

private:
  void Lie(TNoeud* n, TNoeud* avant);
};
