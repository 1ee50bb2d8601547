#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>

#include "app/App.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Settings and recovery copies of a run of their own, never the user's.
  QTemporaryDir reglages;
  if (!reglages.isValid()) return 1;
  setenv("XDG_CONFIG_HOME", reglages.filePath(QStringLiteral("config")).toLocal8Bit().constData(), 1);
  setenv("XDG_STATE_HOME", reglages.filePath(QStringLiteral("state")).toLocal8Bit().constData(), 1);
  QApplication application(argc, argv);
  PrepareApplication(application);
  return RUN_ALL_TESTS();
}
