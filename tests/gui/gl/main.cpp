// The renderer's tests draw with OpenGL offscreen: they need an X server for GLX, and start
// a private Xvfb when the environment has none.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

#include "gui/gl/ServeurX.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  TServeurX serveur;
  std::string erreur;
  if (!serveur.PrepareHorsEcran(erreur)) {
    std::fprintf(stderr, "pas d'affichage : %s\n", erreur.c_str());
    return 1;
  }
  QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
