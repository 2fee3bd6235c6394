#include "TestDesktop.h"
#include "Views/Style/LanternixStyle.h"
#include "support/VirtualDisplay.h"
#include "support/WindowManager.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

std::unique_ptr<VirtualDisplay> display;
std::unique_ptr<WindowManager> windowManager;

/// Qt connects to the display when its application is made, so that the display has to be there
/// before. Starting it takes an application of another kind, which ends here.
void startDesktop(int &argc, char **argv) {
  const QCoreApplication application(argc, argv);
  display = std::make_unique<VirtualDisplay>();
  windowManager = std::make_unique<WindowManager>(*display);
  qputenv("DISPLAY", display->name().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "xcb");
}

}  // namespace

QString testDisplayName() {
  return display->name();
}

const WindowManager &testWindowManager() {
  return *windowManager;
}

}  // namespace lanternix

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) {
    return RUN_ALL_TESTS();
  }
  lanternix::startDesktop(argc, argv);
  const int result = [&] {
    QApplication::setStyle(new lanternix::LanternixStyle);  // owned by the application
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
  }();
  lanternix::windowManager.reset();
  lanternix::display.reset();
  return result;
}
