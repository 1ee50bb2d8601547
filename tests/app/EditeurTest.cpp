// The editor's real window under an X server: a kite drawn with the mouse, a manoeuvre
// inserted, the routine saved through the real save dialog with a name typed into it. The
// file must be the one that the companion's replay of the same gestures writes.
#include <gtest/gtest.h>

#include "Attente.h"
#include "Boites.h"
#include "FenetreEditeur.h"
#include "app/App.h"
#include "editor/FenListe.h"
#include "editor/FenDessin.h"
#include "editor/bars/BD.h"
#include "model/Elt.h"
#include "model/Document.h"
#include "gui/editeur/QBande.h"
#include "gui/editeur/QBarre.h"
#include "gui/editeur/QBoiteColler.h"
#include "gui/editeur/QBoiteFeuille.h"
#include "gui/editeur/QBoiteInsererFic.h"
#include "gui/editeur/QFeuille.h"
#include "gui/equipe/QBoiteSuivre.h"
#include "editor/MenuEditeur.h"
#include "support/Attendu.h"

#include <QAction>
#include <QCheckBox>
#include <QSpinBox>
#include <QApplication>
#include <QPushButton>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

class EditeurTest : public FenetreEditeurTest {
protected:
  void SetUp() override {
    fs::remove_all(dossier);
    fs::create_directories(dossier);
    FenetreEditeurTest::SetUp();
  }
  void TearDown() override {
    FenetreEditeurTest::TearDown();
    fs::remove_all(dossier);
  }

  // Each gesture is done on the window and written to the script of the replay.
  void Menu(unsigned id) {
    app->Editeur()->Action(id)->trigger();
    script << "menu " << id << "\n";
  }
  void Bouge(float x, float y) {
    const QPoint p = Ecran(x, y);
    Deplace(p);
    script << "move " << p.x() << " " << p.y() << "\n";
  }
  void Clique(float x, float y) {
    const QPoint p = Ecran(x, y);
    Presse(p);
    script << "down " << p.x() << " " << p.y() << "\nup " << p.x() << " " << p.y() << "\n";
  }
  void CliqueMaj(float x, float y) { Presse(Ecran(x, y), Qt::ShiftModifier); }
  // The companion run on files of the test's folder; true when it wrote OUT.
  bool Compagnon(const std::string& arguments) {
    const std::string commande = "cd " + Cite(dossier.string()) + " && " + Cite(TRAJ_CLI) + " " + arguments + " 2>/dev/null";
    return std::system(commande.c_str()) == 0;
  }
  // In the next file dialog, the user goes to the folder, types `nom` and clicks the button.
  void RepondFichier(const char* nom) {
    Pilote<QFileDialog>([this, nom](QFileDialog* d) {
      auto* edit = d->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(edit, nullptr);
      // The completer's list would take the keys meant for the dialog.
      edit->setCompleter(nullptr);
      d->setDirectory(QString::fromStdString(dossier.string()));
      edit->clear();
      QTest::keyClicks(edit, QString::fromUtf8(nom));
      // The dialog names its button, and enables it, after what the name typed so far
      // designates, which its file model may learn a moment later.
      QPushButton* bouton = nullptr;
      ASSERT_TRUE(AttendQue([&] {
        for (QPushButton* b : d->findChildren<QPushButton*>())
          if (b->isDefault()) bouton = b;
        return bouton && bouton->isEnabled();
      })) << "the dialog's button stayed disabled";
      QTest::mouseClick(bouton, Qt::LeftButton);
    });
  }
  // The same routine twice: one for the window, one for the companion.
  fs::path Routine(const char* nom, const char* texte) {
    std::ofstream(dossier / (std::string(nom) + ".rou")) << texte;
    std::ofstream(dossier / (std::string(nom) + "-source.rou")) << texte;
    return dossier / (std::string(nom) + ".rou");
  }
  void Echap() {
    QTest::keyClick(feuille, Qt::Key_Escape);
    script << "key esc\n";
  }

  const fs::path dossier = fs::temp_directory_path() / ("trajectoires-editeur-" + std::to_string(getpid()));
  std::ostringstream script;
};

TEST_F(EditeurTest, AKiteDrawnWithTheMouseIsSavedAsTheReplayOfTheSameGesturesSavesIt) {
  script << "width " << feuille->width() << "\n";
  Menu(301);
  Clique(-60, 20);  // the kite's start point
  Bouge(-55, 25);
  Bouge(-30, 50);
  Clique(-30, 50);
  Bouge(-20, 55);
  Bouge(0, 60);
  Clique(0, 60);
  Menu(305);
  Clique(0, 60);  // the arc starts from the end of the last segment
  Bouge(10, 64);
  Bouge(30, 62);
  Clique(30, 62);
  Echap();
  Clique(-15, 55);  // selects the second segment, then an axel goes before it
  Menu(304);
  EXPECT_EQ(app->Editeur()->Onglets_()->tabText(0).left(4), QStringLiteral("1 - "));

  // The caption marks the unsaved changes once the last gesture has run.
  EXPECT_TRUE(AttendQue([&] { return app->Editeur()->isWindowModified(); }));

  // A name typed without its extension: the routine extension is added.
  const fs::path fichier = dossier / "dessin.rou";
  RepondFichier("dessin");
  app->Editeur()->Action(249)->trigger();
  ASSERT_TRUE(fs::exists(fichier));
  EXPECT_EQ(app->Editeur()->windowTitle(), QString::fromStdString("Dessin Trajectoires : " + fichier.string() + "[*]"));
  EXPECT_FALSE(app->Editeur()->isWindowModified());
  EXPECT_EQ(app->Editeur()->statusBar()->currentMessage(), QStringLiteral("Routine enregistrée : dessin.rou"));

  std::ofstream(dossier / "gestes.rep") << script.str();
  const std::string commande = Cite(TRAJ_CLI) + " replay " + Cite((dossier / "gestes.rep").string()) + " " +
                               Cite((dossier / "rejeu.rou").string()) + " 2>/dev/null";
  ASSERT_EQ(std::system(commande.c_str()), 0);
  const std::string sauve = LitTout(fichier);
  EXPECT_EQ(sauve, LitTout(dossier / "rejeu.rou"));
  // Two segments, the axel, the arc, after the start point.
  for (const char* ligne : {"POINT", "SEGMENT", "AXEL", "ARC"}) EXPECT_NE(sauve.find(ligne), std::string::npos) << ligne;
}

// Typing into a bar on the screen changes the element, its picture on the sheet and what is
// saved, as dragging its end point would.
TEST_F(EditeurTest, AnXTypedIntoABarMovesTheElementOnTheSheetAndIntoTheFile) {
  const fs::path routine = dossier / "barres.rou";
  std::ofstream(routine) << "TEAM   1 \n"
                            "POINT\t0\t0\t2\t1\t0\t-80\t20\t0.4\n"
                            "SEGMENT\t0\t1\t2\t1\t300\t-30\t20\t0.4\n"
                            "SEGMENT\t0\t2\t2\t1\t600\t0\t60\t0.4\n";
  app->Ouvre(routine.string());
  ASSERT_NE(TabLElt[0].Premier(), nullptr);
  auto* segment = static_cast<TElt*>(TabLElt[0].Premier()->GetSuivant());
  ASSERT_NE(segment, nullptr);
  ASSERT_NE(segment->pBD, nullptr);
  ASSERT_FLOAT_EQ(segment->Getp2Param().x, -30);
  QBarre* barre = nullptr;
  ASSERT_TRUE(AttendQue([&] {
    barre = app->Editeur()->Bande()->Barre(segment->pBD);
    return barre && barre->isVisible();
  }));
  auto* x = qobject_cast<QLineEdit*>(barre->Controle(IDC_X));
  ASSERT_NE(x, nullptr);
  EXPECT_EQ(x->text(), QStringLiteral("-30"));

  // No window manager activates the window: it is asked for, then the edit is given the focus.
  QWidget* fenetre = app->Editeur();
  fenetre->activateWindow();
  ASSERT_TRUE(AttendQue([&] { return fenetre->isActiveWindow(); }));
  ASSERT_TRUE(AttendQue([&] { return feuille->grab().toImage() == feuille->grab().toImage(); }));
  const QImage avant = feuille->grab().toImage();
  x->setFocus(Qt::OtherFocusReason);
  ASSERT_TRUE(AttendQue([&] { return x->hasFocus(); }));
  x->selectAll();
  QTest::keyClicks(x, QStringLiteral("-55"));
  QTest::keyClick(x, Qt::Key_Tab);
  EXPECT_FALSE(x->hasFocus());
  EXPECT_FLOAT_EQ(segment->Getp2Param().x, -55);
  EXPECT_TRUE(AttendQue([&] { return feuille->grab().toImage() != avant; }));

  // "E&nregistrer" writes over the routine opened.
  app->Editeur()->Action(250)->trigger();
  const std::string texte = LitTout(routine);
  EXPECT_NE(texte.find("-55"), std::string::npos) << texte;
  EXPECT_EQ(texte.find("-30"), std::string::npos) << texte;
}

// The wheel turned over a field of a bar scrolls the whole strip, three units a notch; with
// Shift, sideways while the strip is narrower than a bar.
TEST_F(EditeurTest, TheWheelOverABarsFieldScrollsTheStrip) {
  const fs::path routine = dossier / "longue.rou";
  {
    std::ofstream f(routine);
    f << "TEAM   1 \nPOINT\t0\t0\t2\t1\t0\t-80\t20\t0.4\n";
    for (int i = 1; i < 30; ++i)
      f << "SEGMENT\t0\t" << i << "\t2\t1\t" << 100 * i << "\t" << (-80 + 5 * i) << "\t20\t0.4\n";
  }
  app->Ouvre(routine.string());
  QBande* bande = app->Editeur()->Bande();
  auto* premier = static_cast<TElt*>(TabLElt[0].Premier());
  ASSERT_NE(premier, nullptr);
  QBarre* barre = nullptr;
  ASSERT_TRUE(AttendQue([&] {
    barre = bande->Barre(premier->pBD);
    return barre && barre->isVisible() && bande->Verticale()->maximum() > 10;
  }));
  QWidget* x = barre->Controle(IDC_X);
  ASSERT_NE(x, nullptr);
  const int haut = barre->y();
  const auto Molette = [&](QPoint cran, Qt::KeyboardModifiers touches) {
    const QPointF ici(x->width() / 2.0, x->height() / 2.0);
    QWheelEvent e(ici, x->mapToGlobal(ici), QPoint(), cran, Qt::NoButton, touches, Qt::NoScrollPhase, false);
    // As from the window system: Qt passes only those on to the parents, and sendEvent
    // would make it one of the program's own.
    QSpontaneKeyEvent::setSpontaneous(&e);
    qApp->notify(x, &e);
  };
  Molette(QPoint(0, -120), Qt::NoModifier);
  EXPECT_EQ(bande->Verticale()->value(), TFenListe::UNITES_PAR_CRAN);
  EXPECT_EQ(barre->y(), haut - TFenListe::UNITES_PAR_CRAN * TFenListe::YUnit);
  Molette(QPoint(0, 120), Qt::NoModifier);
  EXPECT_EQ(bande->Verticale()->value(), 0);
  EXPECT_EQ(barre->y(), haut);
  // The editor's strip is narrower than a bar: the horizontal bar shows.
  ASSERT_TRUE(bande->Horizontale()->isVisible());
  const int gauche = barre->x();
  Molette(QPoint(0, -120), Qt::ShiftModifier);
  EXPECT_EQ(bande->Horizontale()->value(), TFenListe::UNITES_PAR_CRAN);
  EXPECT_EQ(barre->x(), gauche - TFenListe::UNITES_PAR_CRAN * TFenListe::XUnit);
  EXPECT_EQ(bande->Verticale()->value(), 0);
}

// A range copied, then pasted with a mirror chosen by the mouse in the real dialog: what the
// window saves is what the companion's paste writes for the same choices.
TEST_F(EditeurTest, APasteWithAMirrorChosenInTheDialogIsTheCompanionsPaste) {
  const fs::path routine = Routine("coller", "TEAM   1 \n"
                                             "POINT\t0\t0\t2\t1\t0\t-80\t20\t0.4\n"
                                             "SEGMENT\t0\t1\t2\t1\t300\t-30\t20\t0.4\n"
                                             "SEGMENT\t0\t2\t3\t1\t600\t-20\t50\t0.4\n"
                                             "SEGMENT\t0\t3\t2\t1\t900\t10\t40\t0.4\n");
  app->Ouvre(routine.string());
  // The sheet knows its scale once painted.
  ASSERT_TRUE(AttendQue([&] { return feuille->Feuille()->EchelleX != 0; }));
  Clique(-30, 20);
  CliqueMaj(-20, 50);
  app->Editeur()->Action(336)->trigger();
  Clique(10, 40);
  Pilote<QBoiteColler>([](QBoiteColler* b) {
    ::Clique(Controle<QRadioButton>(b, 553));
    Tape(Controle<QLineEdit>(b, 556), "250");
    Bouton(b, QDialogButtonBox::Ok);
  });
  app->Editeur()->Action(337)->trigger();
  EXPECT_EQ(TabLElt[0].nbNoeud(), 6);
  app->Editeur()->Action(250)->trigger();
  ASSERT_TRUE(Compagnon("paste coller-source.rou 0 1 2 0 3 553 250 compagnon.rou"));
  EXPECT_EQ(LitTout(routine), LitTout(dossier / "compagnon.rou"));
}

// A range of kite 0 led, kites 2 and 3 ticked in the real "Suivre le meneur" dialog: what the
// window saves is what the companion's follow writes, and one undo takes it all back.
TEST_F(EditeurTest, FollowersChosenInTheDialogAreTheCompanionsFollow) {
  const char* const texte = "TEAM   1 \n"
                            "POINT\t0\t0\t2\t1\t0\t-80\t20\t0.4\n"
                            "SEGMENT\t0\t1\t2\t1\t300\t-30\t20\t0.4\n"
                            "SEGMENT\t0\t2\t3\t1\t600\t-20\t50\t0.4\n"
                            "SEGMENT\t0\t3\t2\t1\t900\t10\t40\t0.4\n"
                            "POINT\t1\t4\t2\t1\t0\t-80\t80\t0.4\n"
                            "POINT\t2\t5\t2\t1\t0\t80\t80\t0.4\n";
  const fs::path routine = Routine("suivre", texte);
  app->Ouvre(routine.string());
  ASSERT_TRUE(AttendQue([&] { return feuille->Feuille()->EchelleX != 0; }));
  Clique(-30, 20);
  CliqueMaj(-20, 50);
  Pilote<QBoiteSuivre>([](QBoiteSuivre* b) {
    // On the box itself, as for a radio button.
    for (const char* nom : {"suiveur2", "suiveur3"}) {
      auto* c = b->findChild<QCheckBox*>(QString::fromUtf8(nom));
      ASSERT_NE(c, nullptr) << nom;
      QStyleOptionButton option;
      option.initFrom(c);
      QTest::mouseClick(c, Qt::LeftButton, {}, c->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, c).center());
    }
    Tape(b->findChild<QSpinBox*>(QStringLiteral("delai"))->findChild<QLineEdit*>(), "120");
    Bouton(b, QDialogButtonBox::Ok);
  });
  app->Editeur()->Action(CM_SUIVRE_MENEUR)->trigger();
  EXPECT_EQ(TabLElt[1].nbNoeud(), 3);
  EXPECT_EQ(TabLElt[2].nbNoeud(), 3);
  app->Editeur()->Action(250)->trigger();
  ASSERT_TRUE(Compagnon("follow suivre-source.rou 0 1 2 120 compagnon.rou --followers 1,2"));
  EXPECT_EQ(LitTout(routine), LitTout(dossier / "compagnon.rou"));
  app->Editeur()->Action(333)->trigger();
  EXPECT_EQ(TabLElt[1].nbNoeud(), 1);
  EXPECT_EQ(TabLElt[2].nbNoeud(), 1);
}

// Four sheets, two kites, a father on kite 0 and its child on kite 1, on sheets 2 and 3.
const char* const QUATRE_FEUILLES = "TEAM   1 \n"
                                    "POINT\t0\t0\t2\t1\t0\t-80\t20\t0.4\n"
                                    "SEGMENT\t0\t1\t2\t1\t300\t-40\t20\t0.4\n"
                                    "SEGMENT\t0\t2\t2\t2\t600\t-10\t50\t0.4\n"
                                    "SEGMENT\t0\t3\t3\t3\t900\t20\t60\t0.4\n"
                                    "SEGMENT\t0\t4\t2\t4\t1200\t50\t40\t0.4\n"
                                    "POINT\t1\t5\t2\t1\t0\t80\t20\t0.4\n"
                                    "SEGMENT\t1\t6\t3\t2\t300\t40\t40\t0.4\n"
                                    "SEGMENT\t1\t7\t2\t2\t600\t30\t70\t0.4\t0\t2\n"
                                    "SEGMENT\t1\t8\t3\t3\t900\t0\t80\t0.4\n";

// Sheets 2 to 3 written through the export dialog, the range typed after a click into its
// first edit, then the real save dialog: the companion's export for the same range.
TEST_F(EditeurTest, TwoSheetsExportedThroughTheDialogsAreTheCompanionsExport) {
  app->Ouvre(Routine("quatre", QUATRE_FEUILLES).string());
  Pilote<QBoiteFeuille>([](QBoiteFeuille* b) {
    b->activateWindow();
    ASSERT_TRUE(AttendQue([&] { return b->isActiveWindow(); }));
    QTest::mouseClick(Controle<QLineEdit>(b, 570), Qt::LeftButton);
    Tape(Controle<QLineEdit>(b, 570), "2");
    Tape(Controle<QLineEdit>(b, 571), "3");
    Bouton(b, QDialogButtonBox::Ok);
  });
  RepondFichier("extrait");
  app->Editeur()->Action(260)->trigger();
  ASSERT_TRUE(fs::exists(dossier / "extrait.rou"));
  ASSERT_TRUE(Compagnon("export quatre-source.rou 2 3 compagnon.rou"));
  EXPECT_EQ(LitTout(dossier / "extrait.rou"), LitTout(dossier / "compagnon.rou"));
  EXPECT_NE(LitTout(dossier / "extrait.rou").find("\t0\t1\n"), std::string::npos) << "the child keeps its father";
}

// A routine inserted after sheet 1 with the two kites crossed in the insertion dialog: the
// saved routine is the companion's insertion with the same correspondence.
TEST_F(EditeurTest, AnInsertionWithCrossedKitesIsTheCompanionsInsertion) {
  std::ofstream(dossier / "piece.rou") << "TEAM   1 \n"
                                          "POINT\t0\t0\t2\t1\t0\t-60\t60\t0.4\n"
                                          "SEGMENT\t0\t1\t2\t1\t300\t-30\t60\t0.4\n"
                                          "POINT\t1\t2\t2\t1\t0\t60\t60\t0.4\n"
                                          "SEGMENT\t1\t3\t2\t1\t300\t30\t70\t0.4\t0\t1\n";
  const fs::path routine = Routine("quatre", QUATRE_FEUILLES);
  app->Ouvre(routine.string());
  RepondFichier("piece.rou");
  Pilote<QBoiteInsererFic>([](QBoiteInsererFic* b) {
    Tape(Controle<QLineEdit>(b, 591), "2");
    Tape(Controle<QLineEdit>(b, 592), "1");
    Bouton(b, QDialogButtonBox::Ok);
  });
  app->Editeur()->Action(261)->trigger();
  EXPECT_EQ(TabLElt[0].nbNoeud(), 7);
  app->Editeur()->Action(250)->trigger();
  ASSERT_TRUE(Compagnon("insert quatre-source.rou piece.rou 1 compagnon.rou --map 2,1"));
  EXPECT_EQ(LitTout(routine), LitTout(dossier / "compagnon.rou"));
}

}  // namespace
