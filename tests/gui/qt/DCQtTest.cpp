// The Qt surface drawn on an image and read back pixel by pixel. Each case is a pair of files
// in tests/data/dc/: NAME.dc, the calls made on the surface, and NAME.attendu, what the
// picture must then show.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Pixels.h"
#include "gui/qt/DCQt.h"

namespace {

const std::filesystem::path Dossier = std::filesystem::path(TRAJ_TEST_DATA) / "dc";

std::vector<std::string> Cas() {
  std::vector<std::string> noms;
  for (const auto& f : std::filesystem::directory_iterator(Dossier))
    if (f.path().extension() == ".dc") noms.push_back(f.path().stem().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

// The lines of a case file without comments and blank lines, each with its line number.
std::vector<std::pair<int, std::string>> Lignes(const std::filesystem::path& chemin) {
  std::ifstream f(chemin);
  std::vector<std::pair<int, std::string>> lignes;
  std::string l;
  for (int n = 1; std::getline(f, l); ++n)
    if (!l.empty() && l[0] != '#' && l.find_first_not_of(" \t") != std::string::npos) lignes.emplace_back(n, l);
  return lignes;
}

TColor CouleurT(const std::string& hexa) {
  const QRgb c = Couleur(hexa);
  return TColor(qRed(c), qGreen(c), qBlue(c));
}

// One call on the surface; false when the line is not understood.
bool Execute(TDCQt& dc, std::istringstream& l, const std::string& ordre) {
  int a = 0, b = 0, c = 0, d = 0;
  std::string s, t;
  if (ordre == "mode") {
    l >> s;
    dc.SetMapMode(s == "logique" ? TMapMode::Anisotrope : TMapMode::Texte);
  } else if (ordre == "fenetre") {
    l >> a >> b >> c >> d;
    dc.SetWindowOrg(TPoint(a, b));
    dc.SetWindowExt(TSize{c, d});
  } else if (ordre == "vue") {
    l >> a >> b;
    dc.SetViewportExt(TSize{a, b});
  } else if (ordre == "pen") {
    l >> s >> a >> t;
    dc.SelectObject(TPen{CouleurT(s), a, t == "pointille" ? TPen::Style::Pointille : TPen::Style::Plein});
  } else if (ordre == "brush") {
    l >> s;
    dc.SelectObject(TBrush{CouleurT(s)});
  } else if (ordre == "stock") {
    l >> s;
    dc.SelectStockObject(s == "blackpen" ? TStockObject::BlackPen : TStockObject::WhiteBrush);
  } else if (ordre == "fond") {
    l >> s >> t;
    dc.SetBkMode(s == "opaque" ? TBkMode::Opaque : TBkMode::Transparent);
    dc.SetBkColor(CouleurT(t));
  } else if (ordre == "moveto" || ordre == "lineto") {
    l >> a >> b;
    ordre == "moveto" ? dc.MoveToEx(TPoint(a, b)) : dc.LineTo(TPoint(a, b));
  } else if (ordre == "rectangle" || ordre == "ellipse") {
    l >> a >> b >> c >> d;
    ordre == "rectangle" ? dc.Rectangle(TRect(a, b, c, d)) : dc.Ellipse(TRect(a, b, c, d));
  } else if (ordre == "polygon") {
    std::vector<TPoint> points;
    while (l >> a >> b) points.emplace_back(a, b);
    dc.Polygon(points);
  } else if (ordre == "arc" || ordre == "arc-refuse") {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    l >> a >> b >> c >> d >> x1 >> y1 >> x2 >> y2;
    const bool trace = dc.Arc(TRect(a, b, c, d), TPoint(x1, y1), TPoint(x2, y2));
    EXPECT_EQ(trace, ordre == "arc") << "arc " << a << " " << b << " " << c << " " << d;
  } else if (ordre == "pixel") {
    l >> a >> b >> s;
    dc.SetPixel(TPoint(a, b), CouleurT(s));
  } else {
    return false;
  }
  return !l.fail() || ordre == "polygon";
}

// One expectation on the picture: a pixel, a zone all of one colour, a colour present in or
// absent from a zone, a count of pixels of a colour.
void Verifie(const QImage& image, std::istringstream& l, const std::string& ordre, int ligne) {
  int x = 0, y = 0, x2 = 0, y2 = 0, n = 0;
  std::string c;
  const std::string ou = "ligne " + std::to_string(ligne) + " de l'attendu";
  if (ordre == "pixel") {
    l >> x >> y >> c;
    ASSERT_FALSE(l.fail()) << ou;
    ASSERT_TRUE(image.valid(x, y)) << ou << " : hors de l'image";
    EXPECT_EQ(QColor(image.pixel(x, y)).name().toStdString().substr(1), c) << ou << " : pixel " << x << "," << y;
    return;
  }
  l >> x >> y >> x2 >> y2 >> c;
  if (ordre == "nombre") l >> n;
  ASSERT_FALSE(l.fail()) << ou;
  const QRect zone(QPoint(x, y), QPoint(x2, y2));  // both corners included
  ASSERT_TRUE(image.rect().contains(zone)) << ou << " : hors de l'image";
  const int trouves = Compte(image, zone, Couleur(c));
  if (ordre == "partout")
    EXPECT_EQ(trouves, zone.width() * zone.height()) << ou;
  else if (ordre == "present")
    EXPECT_GT(trouves, 0) << ou;
  else if (ordre == "absent")
    EXPECT_EQ(trouves, 0) << ou;
  else if (ordre == "nombre")
    EXPECT_EQ(trouves, n) << ou;
  else
    ADD_FAILURE() << ou << " : « " << ordre << " » inconnu";
}

// The surface writes one-pixel lines straight into a plain image, and has Qt fill them on
// any other device or under a clip: every case is drawn all three ways.
enum class Support { Image, Pixmap, ImageDecoupee };

QImage Dessine(const std::vector<std::pair<int, std::string>>& dessin, int largeur, int hauteur, Support support) {
  QImage image = ImageBlanche(largeur, hauteur);
  QPixmap pixmap(largeur, hauteur);
  pixmap.fill(Qt::white);
  {
    QPainter painter;
    if (support == Support::Pixmap)
      painter.begin(&pixmap);
    else
      painter.begin(&image);
    if (support == Support::ImageDecoupee) painter.setClipRect(image.rect());
    TDCQt dc(&painter);
    for (std::size_t i = 1; i < dessin.size(); ++i) {
      std::istringstream l(dessin[i].second);
      std::string ordre;
      l >> ordre;
      EXPECT_TRUE(Execute(dc, l, ordre)) << "ligne " << dessin[i].first << " du dessin : " << dessin[i].second;
    }
  }
  return support == Support::Pixmap ? pixmap.toImage().convertToFormat(QImage::Format_RGB32) : image;
}

class DessinTest : public ::testing::TestWithParam<std::string> {};

TEST_P(DessinTest, PictureMatchesItsExpectation) {
  const auto dessin = Lignes(Dossier / (GetParam() + ".dc"));
  const auto attendu = Lignes(Dossier / (GetParam() + ".attendu"));
  ASSERT_FALSE(dessin.empty());
  ASSERT_FALSE(attendu.empty());

  int largeur = 0, hauteur = 0;
  std::istringstream(dessin.front().second) >> largeur >> hauteur;
  ASSERT_GT(largeur, 0) << "la première ligne donne la taille de l'image";
  for (const auto& [support, nom] : {std::pair{Support::Image, "image"}, std::pair{Support::Pixmap, "pixmap"},
                                     std::pair{Support::ImageDecoupee, "image-decoupee"}}) {
    SCOPED_TRACE(nom);
    const QImage image = Dessine(dessin, largeur, hauteur, support);
    for (const auto& [n, texte] : attendu) {
      std::istringstream l(texte);
      std::string ordre;
      l >> ordre;
      Verifie(image, l, ordre, n);
    }
    if (HasFailure()) image.save(QString::fromStdString(testing::TempDir() + GetParam() + "-" + nom + ".png"));
  }
}

INSTANTIATE_TEST_SUITE_P(Cas, DessinTest, ::testing::ValuesIn(Cas()),
                         [](const auto& info) { return info.param; });

// A widget's surface passes invalidated rectangles on to the widget, which repaints them.
class Feuille : public QWidget {
public:
  void paintEvent(QPaintEvent* e) override { Repeint |= e->region(); }
  QRegion Repeint;
};

TEST(DCFenetreTest, InvalidatedRectangleIsRepaintedAndNothingElse) {
  Feuille f;
  f.resize(400, 200);
  f.show();
  QCoreApplication::processEvents();
  f.Repeint = QRegion();

  TDCFenetre dc(f, nullptr);
  dc.InvalidateRect(TRect(10, 20, 40, 30), true);
  dc.Ellipse(TRect(0, 0, 100, 100));  // without a painter: nothing, and no crash
  EXPECT_TRUE(dc.Arc(TRect(0, 0, 100, 100), TPoint(0, 0), TPoint(1, 1)));
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  EXPECT_EQ(f.Repeint, QRegion(10, 20, 30, 10));

  f.Repeint = QRegion();
  dc.InvalidateRect(TRect(), true);  // the whole client area
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  EXPECT_EQ(f.Repeint, QRegion(f.rect()));
}

}  // namespace
