#pragma once
// A scene drawn by the real renderer, offscreen, at a size of the test's choosing, with
// kites held at poses the test gives; and what the test looks for in the picture.
#include <QImage>
#include <QRect>

#include <algorithm>
#include <climits>
#include <cstdlib>

#include <optional>
#include <vector>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "platform/Donnees.h"
#include "gui/gl/RenduGL.h"
#include "gui/gl/SurfaceHorsEcran.h"
#include "support/Fichiers.h"

// The kites' orientations in the terms of the flight generator.
inline constexpr TOrientation NEZ_EN_HAUT{{0, 0, 1}, {0, 1, 0}};
inline constexpr TOrientation NEZ_A_DROITE{{0, 0, 1}, {1, 0, 0}};

struct TPose {
  TVecteur3 Position;
  TOrientation Orientation;
};

// Runs in a scratch folder of its own, which is also where the scene's log goes (../data
// from a folder under it) when a test makes one.
class SceneGLTest : public FichiersTest {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    SetRendu(&rendu);
  }
  void TearDown() override {
    FermeDemo();
    SetRendu(nullptr);
    SetDossierDonnees("");
    FichiersTest::TearDown();
  }

  // A new scene of these kites, each held at its pose, drawn once.
  QImage Dessine(const std::vector<TPose>& poses) {
    FermeDemo();
    InitDemo(static_cast<int>(poses.empty() ? 1 : poses.size()), 1000.0f);
    if (!Globals.pD3DDemo) return {};
    for (std::size_t i = 0; i < poses.size(); ++i) {
      Globals.pD3DDemo->Trajectoires[i].PosePosition(0, poses[i].Position);
      Globals.pD3DDemo->Trajectoires[i].PoseOrientation(0, poses[i].Orientation);
    }
    Globals.pD3DDemo->Mode = MODE_DEBUT;
    Globals.pD3DDemo->Go();
    return surface.Image();
  }

  // The picture with no kite in view: the one kite stands behind the camera.
  QImage Vide() { return Dessine({{{0, 0, -500}, NEZ_EN_HAUT}}); }

  TSurfaceHorsEcran surface{QSize(800, 400)};
  TRenduGL rendu{surface};
};

inline int Ecart(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

// The box of the pixels where two pictures of the same size differ by more than `seuil`.
inline QRect ZoneDifferente(const QImage& a, const QImage& b, int seuil = 24) {
  QRect zone;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (Ecart(a.pixel(x, y), b.pixel(x, y)) > seuil) zone |= QRect(x, y, 1, 1);
  return zone;
}


// Of the pixels in `zone` that differ from the empty picture, how far they reach across
// the left and right quarters, and the top and bottom quarters, of the zone.
struct TSilhouette {
  int HauteurGauche = 0, HauteurDroite = 0, LargeurHaut = 0, LargeurBas = 0;
};
inline TSilhouette Silhouette(const QImage& vide, const QImage& image, const QRect& zone) {
  auto etendue = [&](int x0, int x1, int y0, int y1, bool colonnes) {
    int mini = INT_MAX, maxi = INT_MIN;
    for (int y = y0; y < y1; ++y)
      for (int x = x0; x < x1; ++x)
        if (Ecart(vide.pixel(x, y), image.pixel(x, y)) > 24) {
          const int v = colonnes ? y : x;
          mini = std::min(mini, v);
          maxi = std::max(maxi, v);
        }
    return maxi >= mini ? maxi - mini + 1 : 0;
  };
  const int q = zone.width() / 4, r = zone.height() / 4;
  TSilhouette s;
  s.HauteurGauche = etendue(zone.left(), zone.left() + q, zone.top(), zone.bottom() + 1, true);
  s.HauteurDroite = etendue(zone.right() + 1 - q, zone.right() + 1, zone.top(), zone.bottom() + 1, true);
  s.LargeurHaut = etendue(zone.left(), zone.right() + 1, zone.top(), zone.top() + r, false);
  s.LargeurBas = etendue(zone.left(), zone.right() + 1, zone.bottom() + 1 - r, zone.bottom() + 1, false);
  return s;
}
