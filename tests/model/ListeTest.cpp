// The list's walking rules are what every loop over a track relies on; these are the
// cases that break loops when they are wrong.
#include <gtest/gtest.h>

#include <vector>

#include "model/Liste.h"

namespace {

int detruits = 0;

struct Noeud : TNoeud {
  explicit Noeud(int i) : id(i) {}
  ~Noeud() override { ++detruits; }
  int id;
};

class ListeTest : public ::testing::Test {
protected:
  void SetUp() override { detruits = 0; }

  // Fills l with nodes 0 .. n-1 and returns them.
  static std::vector<Noeud*> Remplit(TListe& l, int n) {
    std::vector<Noeud*> v;
    for (int i = 0; i < n; ++i) {
      v.push_back(new Noeud(i));
      l.Append(v.back());
    }
    return v;
  }

  static std::vector<int> Ids(const TListe& l) {
    std::vector<int> ids;
    for (TNoeud* n = l.Premier(); n; n = n->GetSuivant()) ids.push_back(static_cast<Noeud*>(n)->id);
    return ids;
  }
};

TEST_F(ListeTest, CursorStepsOntoASentinelThenAnswersNull) {
  TListe vide;
  EXPECT_EQ(vide.Init(), nullptr);
  EXPECT_TRUE(vide.IsFin());
  EXPECT_EQ(vide.VaFin(), vide.pDebut);
  EXPECT_EQ(vide.Precedent(), nullptr);
  EXPECT_EQ(vide.Premier(), nullptr);
  EXPECT_EQ(vide.Dernier(), nullptr);

  TListe l;
  auto n = Remplit(l, 2);
  ASSERT_TRUE(l.Existe(n[1]));
  EXPECT_EQ(l.Suivant(), l.pFin);  // not null: loops must test IsFin()
  EXPECT_EQ(l.Suivant(), nullptr);
  EXPECT_TRUE(l.IsFin());
  l.Init();
  EXPECT_EQ(l.Precedent(), l.pDebut);
  EXPECT_EQ(l.Precedent(), nullptr);
  EXPECT_EQ(l.Suivant(), n[0]);

  // The node forms answer null at the ends, and on a node of another list.
  EXPECT_EQ(l.Suivant(n[1]), nullptr);
  EXPECT_EQ(l.Suivant(n[0]), n[1]);
  EXPECT_EQ(l.Precedent(n[0]), nullptr);
  EXPECT_EQ(l.Precedent(n[1]), n[0]);
  Noeud etranger(9);
  EXPECT_EQ(l.Suivant(&etranger), nullptr);
  EXPECT_TRUE(l.IsFin());  // Existe leaves the cursor on Fin when it finds nothing
}

TEST_F(ListeTest, SupprimeStepsTheCursorBackSoLoopsVisitEveryNode) {
  TListe l;
  auto n = Remplit(l, 5);
  // Remove every even node in a cursor loop: the Suivant() after each removal lands on the
  // node after the removed one.
  std::vector<int> vus;
  for (TNoeud* p = l.Init(); !l.IsFin(); p = l.Suivant()) {
    const int id = static_cast<Noeud*>(p)->id;
    vus.push_back(id);
    if (id % 2 == 0) l.Supprime();
    if (id == 0) {
      EXPECT_TRUE(l.IsDebut());  // the first removed: the cursor on the head sentinel
    }
  }
  EXPECT_EQ(vus, (std::vector<int>{0, 1, 2, 3, 4}));
  EXPECT_EQ(Ids(l), (std::vector<int>{1, 3}));
  EXPECT_EQ(l.nbNoeud(), 2);
  EXPECT_EQ(detruits, 3);
  EXPECT_TRUE(n[1]->IsPremier());
  EXPECT_EQ(n[1]->GetPrecedent(), nullptr);

  // On a sentinel, or given a node of another list, it removes nothing.
  l.VaFin();
  l.Suivant();
  l.Supprime();
  l.Init();
  l.Precedent();
  l.Supprime();
  Noeud etranger(7);
  l.Supprime(&etranger);
  EXPECT_EQ(l.nbNoeud(), 2);
  EXPECT_EQ(detruits, 3);
}

TEST_F(ListeTest, InsertionsPlaceNodesAndOwnThem) {
  Noeud etranger(9);
  {
    TListe l;
    auto n = Remplit(l, 2);  // 0 1
    l.Existe(n[1]);
    l.Insere(new Noeud(5));  // before the cursor
    EXPECT_EQ(l.GetNoeudCourant(), n[1]);
    l.Ajoute(new Noeud(6));
    EXPECT_TRUE(l.Insere(new Noeud(7), l.pFin));
    EXPECT_TRUE(l.Insere(new Noeud(8), n[0]));
    auto* perdu = new Noeud(10);
    EXPECT_FALSE(l.Insere(perdu, &etranger));
    EXPECT_EQ(perdu->GetpListe(), nullptr);
    delete perdu;
    l.Init();
    l.Precedent();
    l.Insere(new Noeud(3));  // a cursor on the head sentinel inserts at the head
    EXPECT_EQ(Ids(l), (std::vector<int>{3, 6, 8, 0, 5, 1, 7}));
    EXPECT_EQ(l.nbNoeud(), 7);
    for (TNoeud* p = l.Premier(); p; p = p->GetSuivant()) EXPECT_EQ(p->GetpListe(), &l);
    detruits = 0;
  }
  EXPECT_EQ(detruits, 7);  // the list destroys what it holds, through the virtual destructor
}

TEST_F(ListeTest, IndexesAndTheCacheThatAnswersAStaleIndexOfAForeignNode) {
  TListe a;
  TListe b;
  auto na = Remplit(a, 3);
  auto nb = Remplit(b, 8);
  a.Existe(na[2]);
  EXPECT_EQ(a.GetPt(0), na[0]);
  EXPECT_EQ(a.GetPt(2), na[2]);
  EXPECT_EQ(a.GetPt(3), nullptr);
  EXPECT_EQ(a.GetPt(-1), nullptr);
  EXPECT_EQ(a.Init2(), na[0]);
  EXPECT_EQ(a.VaFin2(), na[2]);
  EXPECT_EQ(a.GetNoeudCourant(), na[2]);  // none of these moves the cursor
  EXPECT_FALSE(b.IsDernier(nb[6]));
  EXPECT_TRUE(b.IsDernier(nb[7]));

  EXPECT_EQ(b.GetIndex(nb[7]), 7);
  EXPECT_EQ(a.GetIndex(na[1]), 1);
  ASSERT_TRUE(a.IndexValide);
  EXPECT_EQ(a.GetIndex(nb[7]), 7);  // with the cache valid, a foreign node's own stale Index
  a.Supprime(na[0]);
  EXPECT_FALSE(a.IndexValide);
  EXPECT_EQ(a.GetIndex(nb[7]), -1);  // a real walk now
  EXPECT_EQ(a.GetIndex(na[2]), 1);
  TListe vide;
  vide.IndexValide = false;
  EXPECT_EQ(vide.GetIndex(na[2]), -1);
  EXPECT_FALSE(vide.IsPremier(nullptr));
  EXPECT_FALSE(vide.IsDernier(nullptr));
}

TEST_F(ListeTest, InsereListeSplicesAndEmptiesTheSource) {
  TListe cible;
  TListe source;
  auto c = Remplit(cible, 3);
  cible.GetIndex(c[0]);
  EXPECT_FALSE(cible.InsereListe(source, nullptr));  // nothing to move: the cache stays
  EXPECT_TRUE(cible.IndexValide);
  Remplit(source, 2);
  for (TNoeud* p = source.Premier(); p; p = p->GetSuivant()) static_cast<Noeud*>(p)->id += 10;

  EXPECT_TRUE(cible.InsereListe(source, c[1]));
  EXPECT_EQ(Ids(cible), (std::vector<int>{0, 10, 11, 1, 2}));
  EXPECT_EQ(cible.nbNoeud(), 5);
  EXPECT_FALSE(cible.IndexValide);
  for (TNoeud* p = cible.Premier(); p; p = p->GetSuivant()) EXPECT_EQ(p->GetpListe(), &cible);
  EXPECT_TRUE(source.IsVide());
  EXPECT_TRUE(source.IsFin());
  EXPECT_EQ(source.Init2(), nullptr);

  Remplit(source, 1);
  EXPECT_TRUE(cible.InsereListe(source, nullptr));  // null stands for the end
  EXPECT_EQ(Ids(cible), (std::vector<int>{0, 10, 11, 1, 2, 0}));
  EXPECT_EQ(cible.GetIndex(cible.Dernier()), 5);
  EXPECT_EQ(detruits, 0);  // nothing destroyed by the move

  cible.Vide();
  EXPECT_EQ(detruits, 6);
  EXPECT_TRUE(cible.IsVide());
  EXPECT_EQ(cible.Init(), nullptr);
  Remplit(cible, 1);
  EXPECT_EQ(cible.nbNoeud(), 1);
}

}  // namespace
