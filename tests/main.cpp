// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cstdlib>

#include "shell/toolkit/windows/application.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // The user's own folders stay untouched, and what he has set there does not matter.
  const QTemporaryDir home;
  setenv("XDG_DATA_HOME", home.filePath("data").toUtf8().constData(), 1);
  setenv("XDG_STATE_HOME", home.filePath("state").toUtf8().constData(), 1);
  setenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8().constData(), 1);
  toolkit::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
