#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
#ifndef Q_OS_WIN  // where Qt has no such platform
  qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  const QGuiApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
