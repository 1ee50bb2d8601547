// The safety net on the real window: the caption follows the unsaved changes made with the
// mouse, closing with changes asks in French with three buttons and Annuler keeps everything,
// and Qt's own dialogs speak French.
#include <gtest/gtest.h>

#include "Attente.h"
#include "Boites.h"
#include "FenetreEditeur.h"
#include "app/App.h"
#include "editor/FenDessin.h"
#include "gui/editeur/QFeuille.h"
#include "model/Document.h"
#include "gui/session/Reglages.h"
#include "session/FichiersRecents.h"
#include "session/Modification.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileDialog>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

class SessionAppTest : public FenetreEditeurTest {
protected:
  void Clique(float x, float y) { Presse(Ecran(x, y)); }
  void Bouge(float x, float y) { Deplace(Ecran(x, y)); }
  // A kite's start point, then a segment, as a user draws them.
  void Dessine() {
    app->Editeur()->Action(301)->trigger();
    Clique(-60, 20);
    Bouge(-50, 30);
    Bouge(-30, 50);
    Clique(-30, 50);
    QTest::keyClick(feuille, Qt::Key_Escape);
  }
  static QString SansEsperluette(QString texte) { return texte.remove(u'&'); }
};

TEST_F(SessionAppTest, ClosingWithChangesAsksInFrenchAndAnnulerKeepsTheWindowAndTheChanges) {
  QFenCadre2* editeur = app->Editeur();
  EXPECT_FALSE(editeur->isWindowModified());
  Dessine();
  ASSERT_TRUE(AttendQue([&] { return editeur->isWindowModified(); })) << "the caption never showed the change";

  QString texte;
  std::vector<QString> boutons;
  Pilote<QMessageBox>([&](QMessageBox* m) {
    texte = m->text();
    for (QAbstractButton* b : m->buttons()) boutons.push_back(SansEsperluette(b->text()));
    QTest::mouseClick(m->button(QMessageBox::Cancel), Qt::LeftButton);
  });
  editeur->close();
  EXPECT_EQ(texte, QStringLiteral("Enregistrer les modifications de « Sans titre » avant de fermer ?"));
  std::sort(boutons.begin(), boutons.end());
  EXPECT_EQ(boutons, (std::vector<QString>{QStringLiteral("Annuler"), QStringLiteral("Enregistrer"),
                                           QStringLiteral("Ne pas enregistrer")}));
  EXPECT_TRUE(editeur->isVisible());
  EXPECT_TRUE(DocumentModifie());
  EXPECT_EQ(TabLElt[0].nbNoeud(), 2);
}

TEST_F(SessionAppTest, QtsOwnButtonsAndTheFileDialogSpeakFrench) {
  QDialogButtonBox boite(QDialogButtonBox::Open | QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  EXPECT_EQ(SansEsperluette(boite.button(QDialogButtonBox::Cancel)->text()), QStringLiteral("Annuler"));
  EXPECT_EQ(SansEsperluette(boite.button(QDialogButtonBox::Open)->text()), QStringLiteral("Ouvrir"));
  EXPECT_EQ(SansEsperluette(boite.button(QDialogButtonBox::Save)->text()), QStringLiteral("Enregistrer"));

  // The dialog of "&Ouvrir", as the user sees it.
  std::vector<QString> textes;
  Pilote<QFileDialog>([&](QFileDialog* d) {
    for (QPushButton* b : d->findChildren<QPushButton*>()) textes.push_back(SansEsperluette(b->text()));
    if (const char* image = std::getenv("TRAJ_CAPTURE_DIALOGUE")) d->grab().save(QString::fromLocal8Bit(image));
  });
  app->Editeur()->Action(251)->trigger();
  EXPECT_NE(std::find(textes.begin(), textes.end(), QStringLiteral("Ouvrir")), textes.end());
  EXPECT_NE(std::find(textes.begin(), textes.end(), QStringLiteral("Annuler")), textes.end());
}

TEST_F(SessionAppTest, TheMenusShowTheirKeysAndRecentRoutinesStillOnDiskReopen) {
  QFenCadre2* editeur = app->Editeur();
  const std::vector<std::pair<unsigned, const char*>> touches = {
      {251, "Ctrl+O"}, {250, "Ctrl+S"}, {249, "Ctrl+Shift+S"}, {256, "Ctrl+P"}, {333, "Ctrl+Z"},
      {336, "Ctrl+C"}, {337, "Ctrl+V"}, {265, "Del"},          {262, "Ctrl+N"}, {263, "Ctrl+Q"}};
  for (const auto& [id, touche] : touches) {
    ASSERT_NE(editeur->Action(id), nullptr) << id;
    EXPECT_EQ(editeur->Action(id)->shortcut(), QKeySequence(QString::fromLatin1(touche))) << id;
  }
  const QList<QAction*> barre = editeur->menuBar()->actions();
  const auto demo = std::find_if(barre.begin(), barre.end(), [](QAction* a) { return a->text() == QStringLiteral("&Démo"); });
  ASSERT_NE(demo, barre.end());
  EXPECT_EQ((*demo)->shortcut(), QKeySequence(Qt::Key_F5));

  QTemporaryDir dossier;
  ASSERT_TRUE(dossier.isValid());
  const QString gardee = dossier.filePath(QStringLiteral("gardée.rou"));
  const QString perdue = dossier.filePath(QStringLiteral("perdue.rou"));
  for (const QString& f : {gardee, perdue}) {
    QFile fichier(f);
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write("TEAM   1 \n");
  }
  FichiersRecents().Efface();
  app->Ouvre(gardee.toStdString());
  app->Ouvre(perdue.toStdString());
  QFile::remove(perdue);
  auto* menu = editeur->findChild<QMenu*>(QStringLiteral("fichiersRecents"));
  ASSERT_NE(menu, nullptr);
  emit menu->aboutToShow();
  // The file gone is not offered; the other is, by its name, with its whole path shown on hover.
  QStringList textes;
  for (QAction* a : menu->actions())
    if (!a->isSeparator()) textes << a->text();
  EXPECT_EQ(textes, (QStringList{QStringLiteral("&1 gardée.rou"), QStringLiteral("Effacer la liste")}));
  menu->actions().first()->trigger();
  EXPECT_EQ(editeur->windowTitle(), QStringLiteral("Dessin Trajectoires : ") + gardee + QStringLiteral("[*]"));
  FichiersRecents().Efface();
}

// Settings written by another program, or by hand: whatever the keys hold, the program
// starts with what it can use and nothing else.
TEST_F(SessionAppTest, SettingsThatHoldNonsenseGiveDefaults) {
  const QString fichier = QSettings().fileName();
  {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fichier).path()));
    QFile f(fichier);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[General]\nfichiersRecents=@Rect(\\0\\0\\0\\x1)\ndossiers\\rou=\\xff\\xfe\n\xff\x00garbage==\n[[[\n");
  }
  SuitFichiersRecents();
  EXPECT_TRUE(FichiersRecents().Presents().empty());
  // The list works again from there, and is written back whole.
  FichiersRecents().Ajoute("/une/routine.rou");
  EXPECT_EQ(QSettings().value(QStringLiteral("fichiersRecents")).toStringList(),
            QStringList{QStringLiteral("/une/routine.rou")});
  FichiersRecents().Efface();
}

}  // namespace
