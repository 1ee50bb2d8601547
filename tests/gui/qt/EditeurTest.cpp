// The editor's tool-bar pictures and its two square cursors.
#include "gui/qt/Pixels.h"
#include "gui/editeur/Curseurs.h"

#include <gtest/gtest.h>

#include <QBitmap>
#include <QIcon>
#include <QPixmap>

#include <vector>

// Outside any namespace, as Q_INIT_RESOURCE needs.
static void ChargeIconesEditeur() { Q_INIT_RESOURCE(editeur); }

TEST(EditeurQt, EveryToolHasItsOwnPictureAt24Pixels) {
  ChargeIconesEditeur();
  std::vector<QImage> vues;
  for (int id : {399, 400, 401, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412, 420, 421, 423, 425}) {
    const QImage image = QIcon(QStringLiteral(":/icones-editeur/%1.svg").arg(id)).pixmap(24, 24).toImage();
    ASSERT_EQ(image.size(), QSize(24, 24)) << id;
    int encre = 0;
    for (int y = 0; y < 24; ++y)
      for (int x = 0; x < 24; ++x) encre += qAlpha(image.pixel(x, y)) > 128;
    // More than a stray speck: a picture worth a button.
    EXPECT_GT(encre, 40) << id;
    // Two ids pointing at one file is the easy mistake in a resource list.
    for (const QImage& autre : vues) EXPECT_NE(image, autre) << id;
    vues.push_back(image);
  }
}

TEST(EditeurQt, SquareCursorsAreDrawnAroundTheirHotSpot) {
  EXPECT_EQ(CurseurQt(TCurseur::Fleche).shape(), Qt::ArrowCursor);
  EXPECT_EQ(CurseurQt(TCurseur::Attente).shape(), Qt::WaitCursor);
  for (bool croix : {false, true}) {
    const QCursor curseur = CurseurQt(croix ? TCurseur::CarreCroix : TCurseur::Carre);
    EXPECT_EQ(curseur.hotSpot(), QPoint(6, 6));
    const QImage traits = curseur.bitmap().toImage(), masque = curseur.mask().toImage();
    ASSERT_EQ(traits.size(), QSize(12, 12));
    ASSERT_EQ(masque.size(), QSize(12, 12));
    for (int y = 0; y < 12; ++y)
      for (int x = 0; x < 12; ++x) {
        const bool bord = x == 0 || y == 0 || x == 11 || y == 11;
        const bool diagonale = x == y || x + y == 11;
        const bool attendu = bord || (croix && diagonale);
        // Black lines (picture and mask set), transparent elsewhere (both clear).
        EXPECT_EQ(Encre(traits.pixel(x, y)), attendu) << croix << " " << x << "," << y;
        EXPECT_EQ(Encre(masque.pixel(x, y)), attendu) << croix << " " << x << "," << y;
      }
  }
}
