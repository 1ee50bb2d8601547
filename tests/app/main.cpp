#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Settings and recovery copies go to a folder of the run's own, never to the user's.
  QTemporaryDir xdg;
  if (!xdg.isValid()) return 1;
  qputenv("XDG_CONFIG_HOME", (xdg.path() + "/config").toLocal8Bit());
  qputenv("XDG_STATE_HOME", (xdg.path() + "/state").toLocal8Bit());
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
