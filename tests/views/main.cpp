#include "Views/Style/LanternixStyle.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(new lanternix::LanternixStyle);  // owned by the application
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
