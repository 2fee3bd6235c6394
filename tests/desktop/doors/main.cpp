#include "TestDisplay.h"
#include "support/VirtualDisplay.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

std::unique_ptr<VirtualDisplay> display;

/// Qt connects to the display when its application is made, so that the display has to be there
/// before. Starting it takes an application of another kind, which ends here.
void startDisplay(int &argc, char **argv) {
  const QCoreApplication application(argc, argv);
  display = std::make_unique<VirtualDisplay>();
  qputenv("DISPLAY", display->name().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "xcb");
}

}  // namespace

const VirtualDisplay &testDisplay() {
  return *display;
}

}  // namespace lanternix

// The doors are opened in this process, on a real display of its own.
int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) {
    return RUN_ALL_TESTS();
  }
  lanternix::startDisplay(argc, argv);
  const int result = [&] {
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
  }();
  lanternix::display.reset();
  return result;
}
