// Qt's print and page setup dialogs behind the dialogs interface: the settings go in, what
// the user changes comes back, and a cancelled dialog changes nothing.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QSpinBox>
#include <QTimer>

#include <functional>

#include "app/Attente.h"
#include "platform/Printer.h"
#include "gui/qt/QtDialogues.h"

namespace {

TDonneesImprimante EditeurVersPdf() {
  TDonneesImprimante d;
  d.Fichier = testing::TempDir() + "trajectoires-dialogue.pdf";
  d.Copies = 2;
  d.Marges = TMarges{500, 2000, 500, 1000};
  return d;
}

TEST(DialoguesImpression, PrintDialogKeepsTheFileAndGivesTheCopiesChosen) {
  TQtDialogues dialogues;
  TDonneesImprimante d = EditeurVersPdf();
  const TDonneesImprimante avant = d;
  QString titre, fichierMontre;
  int copiesMontrees = 0;
  QuandOuvert<QPrintDialog>([&](QPrintDialog* dialogue) {
    titre = dialogue->windowTitle();
    fichierMontre = dialogue->printer()->outputFileName();
    copiesMontrees = dialogue->printer()->copyCount();
    // The copies as the user types them, where the dialog has its box; on the printer itself
    // where it has none.
    if (auto* copies = dialogue->findChild<QSpinBox*>("copies"))
      copies->setValue(3);
    else
      dialogue->printer()->setCopyCount(3);
    dialogue->accept();
  });
  ASSERT_TRUE(dialogues.Impression(d));
  EXPECT_EQ(titre, "Imprimer");
  EXPECT_EQ(copiesMontrees, 2);
  EXPECT_EQ(fichierMontre.toStdString(), avant.Fichier);
  EXPECT_EQ(d.Fichier, avant.Fichier);
  EXPECT_EQ(d.Copies, 3);
  EXPECT_EQ(d.Papier, avant.Papier);
  EXPECT_EQ(d.Marges, avant.Marges);
}

TEST(DialoguesImpression, PageSetupComesBackAsItWentInAndCancelChangesNothing) {
  TQtDialogues dialogues;
  TDonneesImprimante d = EditeurVersPdf();
  const TDonneesImprimante avant = d;
  QMarginsF marges;
  QString titre;
  QuandOuvert<QPageSetupDialog>([&](QPageSetupDialog* dialogue) {
    titre = dialogue->windowTitle();
    marges = dialogue->printer()->pageLayout().margins(QPageLayout::Millimeter);
    dialogue->accept();
  });
  ASSERT_TRUE(dialogues.MiseEnPage(d));
  EXPECT_EQ(titre, "Mise en page");
  EXPECT_EQ(marges, QMarginsF(5, 20, 5, 10));
  EXPECT_EQ(d, avant);

  QuandOuvert<QPageSetupDialog>([](QPageSetupDialog* dialogue) {
    dialogue->printer()->setPageOrientation(QPageLayout::Landscape);
    dialogue->reject();
  });
  EXPECT_FALSE(dialogues.MiseEnPage(d));
  EXPECT_EQ(d, avant);
}

TEST(DialoguesImpression, JobsGoToQtWhileTheQtDialogsAreInUse) {
  TPeripheriqueImpression* sans = &PeripheriqueImpression();
  {
    TQtDialogues dialogues;
    EXPECT_NE(&PeripheriqueImpression(), sans);
  }
  EXPECT_EQ(&PeripheriqueImpression(), sans);
}

}  // namespace
