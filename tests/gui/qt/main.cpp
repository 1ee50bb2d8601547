// The Qt surfaces need a GUI application for fonts and widgets, but never a display: the
// tests run on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // Settings are the tests' own, never the user's.
  QTemporaryDir reglages;
  if (!reglages.isValid()) return 1;
  setenv("XDG_CONFIG_HOME", reglages.filePath(QStringLiteral("config")).toLocal8Bit().constData(), 1);
  setenv("XDG_STATE_HOME", reglages.filePath(QStringLiteral("state")).toLocal8Bit().constData(), 1);
  QApplication application(argc, argv);
  QCoreApplication::setOrganizationName(QStringLiteral("trajectoires"));
  QCoreApplication::setApplicationName(QStringLiteral("trajectoires"));
  return RUN_ALL_TESTS();
}
