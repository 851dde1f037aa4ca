#include <gtest/gtest.h>

#include <QApplication>

#include "qt/look.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  terramark::qt::SetUpLook(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
