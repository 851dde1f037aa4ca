#include <gtest/gtest.h>

#include <QApplication>

#include "window/look.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  terramark::window::SetUpLook(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
