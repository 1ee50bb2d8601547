// The Qt surfaces need a GUI application for fonts and widgets, but never a display: the
// tests run on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>

#include <cstdlib>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
