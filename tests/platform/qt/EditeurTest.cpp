// The editor's tool-bar pictures.
#include <gtest/gtest.h>

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
