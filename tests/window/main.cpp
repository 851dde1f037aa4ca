#include <gtest/gtest.h>

#include <QApplication>

#include "window/appstyle.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  terramark::window::InstallStyle(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
