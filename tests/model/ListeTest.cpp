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

TEST_F(ListeTest, EmptyListCursorRestsOnSentinels) {
  TListe l;
  EXPECT_EQ(l.Init(), nullptr);
  EXPECT_TRUE(l.IsFin());
  EXPECT_EQ(l.VaFin(), l.pDebut);
  EXPECT_TRUE(l.IsDebut());
  EXPECT_EQ(l.Precedent(), nullptr);
  EXPECT_EQ(l.Premier(), nullptr);
  EXPECT_EQ(l.Dernier(), nullptr);
  EXPECT_EQ(l.pDebut->pPrecedent, nullptr);
  EXPECT_EQ(l.pFin->pSuivant, nullptr);
  EXPECT_EQ(l.pDebut->pSuivant, l.pFin);
}

TEST_F(ListeTest, SuivantOnLastReturnsTailSentinelThenNull) {
  TListe l;
  auto n = Remplit(l, 2);
  ASSERT_TRUE(l.Existe(n[1]));
  TNoeud* apres = l.Suivant();
  EXPECT_EQ(apres, l.pFin);  // not null: loops must test IsFin()
  EXPECT_TRUE(l.IsFin());
  EXPECT_EQ(l.Suivant(), nullptr);
  EXPECT_TRUE(l.IsFin());

  EXPECT_EQ(l.Suivant(n[1]), nullptr);  // the node form answers null on the last
  EXPECT_EQ(l.Suivant(n[0]), n[1]);
  EXPECT_EQ(l.Precedent(n[0]), nullptr);
  EXPECT_TRUE(l.IsDebut());
  EXPECT_EQ(l.Precedent(n[1]), n[0]);

  Noeud etranger(9);
  EXPECT_EQ(l.Suivant(&etranger), nullptr);
  EXPECT_TRUE(l.IsFin());  // Existe leaves the cursor on Fin when it finds nothing
}

TEST_F(ListeTest, PrecedentOnFirstReturnsHeadSentinel) {
  TListe l;
  auto n = Remplit(l, 2);
  l.Init();
  EXPECT_EQ(l.Precedent(), l.pDebut);
  EXPECT_EQ(l.Precedent(), nullptr);
  EXPECT_EQ(l.Suivant(), n[0]);
}

TEST_F(ListeTest, SupprimeStepsCursorBackSoLoopsVisitEveryNode) {
  TListe l;
  auto n = Remplit(l, 5);
  // Remove every even node in a cursor loop: the cursor steps back on each removal, so the
  // Suivant() that follows lands on the node after the removed one.
  std::vector<int> vus;
  for (TNoeud* p = l.Init(); !l.IsFin(); p = l.Suivant()) {
    vus.push_back(static_cast<Noeud*>(p)->id);
    if (static_cast<Noeud*>(p)->id % 2 == 0) l.Supprime();
  }
  EXPECT_EQ(vus, (std::vector<int>{0, 1, 2, 3, 4}));
  EXPECT_EQ(Ids(l), (std::vector<int>{1, 3}));
  EXPECT_EQ(l.nbNoeud(), 2);
  EXPECT_EQ(detruits, 3);
}

TEST_F(ListeTest, SupprimeFirstLeavesCursorOnHead) {
  TListe l;
  auto n = Remplit(l, 3);
  l.Init();
  l.Supprime();
  EXPECT_TRUE(l.IsDebut());
  EXPECT_EQ(l.Suivant(), n[1]);
  EXPECT_EQ(l.Premier(), n[1]);
  EXPECT_TRUE(n[1]->IsPremier());
  EXPECT_EQ(n[1]->GetPrecedent(), nullptr);
}

TEST_F(ListeTest, SupprimeOnSentinelsOrForeignNodeDoesNothing) {
  TListe l;
  Remplit(l, 2);
  l.VaFin();
  l.Suivant();  // on Fin
  l.Supprime();
  l.Init();
  l.Precedent();  // on Debut
  l.Supprime();
  Noeud etranger(7);
  l.Supprime(&etranger);
  EXPECT_EQ(l.nbNoeud(), 2);
  EXPECT_EQ(detruits, 0);
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

TEST_F(ListeTest, NonCursorFamilyLeavesCursorAlone) {
  TListe l;
  auto n = Remplit(l, 4);
  l.Existe(n[2]);
  EXPECT_EQ(l.GetPt(0), n[0]);
  EXPECT_EQ(l.GetPt(3), n[3]);
  EXPECT_EQ(l.GetPt(4), nullptr);
  EXPECT_EQ(l.GetPt(-1), nullptr);
  EXPECT_EQ(l.GetIndex(n[3]), 3);
  EXPECT_EQ(l.Init2(), n[0]);
  EXPECT_EQ(l.VaFin2(), n[3]);
  EXPECT_TRUE(l.IsPremier(n[0]));
  EXPECT_TRUE(l.IsDernier(n[3]));
  EXPECT_FALSE(l.IsDernier(n[2]));
  EXPECT_TRUE(l.IsFin(l.pFin));
  EXPECT_TRUE(l.IsDebut(l.pDebut));
  EXPECT_EQ(l.GetNoeudCourant(), n[2]);

  TListe vide;
  EXPECT_FALSE(vide.IsPremier(nullptr));
  EXPECT_FALSE(vide.IsDernier(nullptr));
  EXPECT_FALSE(vide.IsPremier(vide.pFin));
  EXPECT_EQ(vide.GetPt(0), nullptr);
}

TEST_F(ListeTest, GetIndexCacheAnswersStaleIndexOfForeignNode) {
  TListe a;
  TListe b;
  auto na = Remplit(a, 3);
  auto nb = Remplit(b, 8);
  EXPECT_EQ(b.GetIndex(nb[7]), 7);
  EXPECT_EQ(a.GetIndex(na[1]), 1);
  ASSERT_TRUE(a.IndexValide);
  // With the cache valid, a node of another list answers its own stale Index.
  EXPECT_EQ(a.GetIndex(nb[7]), 7);

  a.Supprime(na[0]);
  EXPECT_FALSE(a.IndexValide);
  EXPECT_EQ(a.GetIndex(nb[7]), -1);  // a real walk now
  EXPECT_EQ(a.GetIndex(na[2]), 1);

  TListe vide;
  vide.IndexValide = false;
  EXPECT_EQ(vide.GetIndex(na[2]), -1);
  EXPECT_FALSE(vide.IndexValide);
}

TEST_F(ListeTest, InsereListeSplicesAndEmptiesSource) {
  TListe cible;
  TListe source;
  auto c = Remplit(cible, 3);
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
}

TEST_F(ListeTest, InsereListeOfEmptyListChangesNothing) {
  TListe cible;
  TListe vide;
  auto c = Remplit(cible, 2);
  cible.GetIndex(c[0]);
  ASSERT_TRUE(cible.IndexValide);
  EXPECT_FALSE(cible.InsereListe(vide, nullptr));
  EXPECT_TRUE(cible.IndexValide);
  EXPECT_EQ(cible.nbNoeud(), 2);
}

TEST_F(ListeTest, VideDestroysAllAndLeavesAUsableList) {
  TListe l;
  Remplit(l, 4);
  l.Vide();
  EXPECT_EQ(detruits, 4);
  EXPECT_TRUE(l.IsVide());
  EXPECT_EQ(l.Init(), nullptr);
  Remplit(l, 1);
  EXPECT_EQ(l.nbNoeud(), 1);
}

}  // namespace
