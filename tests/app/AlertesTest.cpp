// The "Alertes" panel of the real editor: findings computed off the interface after each
// change, listed, counted, shown on the sheet and reached by a click.
#include <QAction>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QToolButton>

#include "FenetreEditeur.h"
#include "editor/FenCadre2.h"
#include "editor/MenuEditeur.h"
#include "gui/editeur/QBande.h"
#include "gui/editeur/QFenCadre2.h"
#include "gui/securite/QAlertes.h"
#include "model/Elt.h"
#include "securite/Reglages.h"
#include "session/Modification.h"

namespace {

class AlertesTest : public FenetreEditeurTest {
protected:
  // Kite 1 crosses kite 0's path at (0, 50) at 5 s, on sheet 1: one proximity conflict, and
  // lines crossed for good.
  void OuvreCroisement() {
    ASSERT_TRUE(dossier.isValid());
    const QString chemin = dossier.filePath(QStringLiteral("croisement.rou"));
    QFile f(chemin);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("TEAM   1 \n"
            "POINT   \t0\t0\t2\t1\t0\t\t-50  50\t\t0.4\t\t\n"
            "SEGMENT \t0\t1\t2\t1\t1000\t\t50  50\t\t0.4\t\t\n"
            "POINT   \t1\t2\t2\t1\t0\t\t0  10\t\t0.4\t\t\n"
            "SEGMENT \t1\t3\t2\t1\t1000\t\t0  90\t\t0.4\t\t\n");
    f.close();
    app->Ouvre(chemin.toStdString());
  }
  QAlertes* Alertes() { return app->Editeur()->Alertes(); }
  bool Calcule() { return AttendQue([&] { return !Alertes()->EnCours(); }); }
  QTemporaryDir dossier;
};

TEST_F(AlertesTest, AnOpenedRoutinesFindingsAreListedCountedAndReachedByAClick) {
  OuvreCroisement();
  ASSERT_TRUE(Calcule());
  QListWidget* liste = Alertes()->Liste();
  ASSERT_EQ(liste->count(), 2);
  EXPECT_EQ(liste->item(0)->text(), QStringLiteral("CV 1 et CV 2 à 0,00 m à 5,00 s – feuille 1"));
  EXPECT_EQ(liste->item(1)->text(),
            QStringLiteral("Lignes de CV 1 et CV 2 enroulées de 0,50 tour, 0,50 à la fin – feuille 1"));
  EXPECT_EQ(Alertes()->Compte()->text(), QStringLiteral("Alertes : 2"));

  // A click selects what the first kite flies then, a second one what the other flies.
  TFenCadre2& cadre = app->Editeur()->Cadre();
  const QRect ligne = liste->visualItemRect(liste->item(0));
  QTest::mouseClick(liste->viewport(), Qt::LeftButton, Qt::NoModifier, ligne.center());
  ASSERT_NE(TFenDessin::pEltCourant, nullptr);
  EXPECT_EQ(TFenDessin::pEltCourant, TabLElt[0].GetPt(1));
  QTest::mouseClick(liste->viewport(), Qt::LeftButton, Qt::NoModifier, ligne.center());
  EXPECT_EQ(TFenDessin::pEltCourant, TabLElt[1].GetPt(1));
  EXPECT_EQ(cadre.pFenDesActive->Num, 1);

  // A change of the settings is a change of the routine: no distance is closer than 0 m,
  // and only the crossed lines stay.
  ReglagesSecurite.Distance = 0;
  VerifieModification();
  ASSERT_TRUE(Calcule());
  ASSERT_EQ(liste->count(), 1);
  EXPECT_EQ(Alertes()->Compte()->text(), QStringLiteral("Alertes : 1"));
}

TEST_F(AlertesTest, ThePanelShownFromTheMenuTakesItsRoomUnderTheSheetNotFromIt) {
  OuvreCroisement();
  ASSERT_TRUE(Calcule());
  QFenCadre2* editeur = app->Editeur();
  QAction* action = editeur->Action(CM_ALERTES);
  ASSERT_NE(action, nullptr);
  EXPECT_FALSE(action->isChecked());
  ASSERT_TRUE(AttendQue([&] { return editeur->Bande()->isVisible(); }));
  const int hauteurFeuille = editeur->Feuille()->height();
  const int hauteurBande = editeur->Bande()->height();
  action->trigger();
  ASSERT_TRUE(AttendQue([&] { return Alertes()->isVisible() && Alertes()->height() > 0; }));
  // The window's height is whole pixels of a layout: the strip may gain one or two.
  ASSERT_TRUE(AttendQue([&] { return editeur->Bande()->height() >= hauteurBande; }));
  EXPECT_EQ(editeur->Feuille()->height(), hauteurFeuille);
  if (const char* image = std::getenv("TRAJ_CAPTURE_ALERTES")) editeur->grab().save(QString::fromLocal8Bit(image));
  action->trigger();
  ASSERT_TRUE(AttendQue([&] { return !Alertes()->isVisible(); }));
  ASSERT_TRUE(AttendQue([&] { return editeur->Bande()->height() >= hauteurBande; }));
  EXPECT_EQ(editeur->Feuille()->height(), hauteurFeuille);
}

}  // namespace
