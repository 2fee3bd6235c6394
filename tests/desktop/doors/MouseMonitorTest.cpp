#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/XInputMouseMonitor.h"
#include "TestDisplay.h"
#include "support/InputDriver.h"
#include "support/OtherClient.h"
#include "support/WaitUntil.h"
#include "support/WindowManager.h"

#include <QtGui/QRasterWindow>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

constexpr quint8 leftButton = 1;
constexpr quint8 middleButton = 2;
constexpr quint8 rightButton = 3;
constexpr QPoint onOwnWindow{200, 200};
constexpr QPoint onDesktop{1000, 700};

class XInputMouseMonitorTest : public testing::Test {
 protected:
  XInputMouseMonitorTest() {
    QObject::connect(&monitor, &XInputMouseMonitor::pressedOutside, &monitor,
                     [this] { ++presses; });
    ownWindow.setGeometry(100, 100, 300, 200);
  }

  void showOwnWindow() {
    ownWindow.show();
    ASSERT_TRUE(waitUntil([&] { return ownWindow.isExposed(); }));
  }

  bool waitForPresses(int count) {
    return waitUntil([&] { return presses >= count; });
  }

  /// Returns once the server knows whether the monitor is active.
  void setActive(bool active) {
    monitor.setActive(active);
    awaitReply(xcb_get_input_focus_reply, server, xcb_get_input_focus(server.connection()));
  }

  /// Clicks and returns once the monitor has heard of it: a hand does not leave faster.
  void clickHeard(QPoint position, quint8 button = leftButton) {
    eventTime.note(0);
    input.click(position, button);
    ASSERT_TRUE(waitUntil([&] { return eventTime.recent() != 0; }));
  }

  /// Presses where it counts, which is told after everything that was pressed before.
  void expectNoneBefore(int expected) {
    input.click(onDesktop);
    EXPECT_TRUE(waitForPresses(expected + 1));
    EXPECT_EQ(presses, expected + 1);
  }

  X11Server server;
  X11EventTime eventTime;
  XInputMouseMonitor monitor{server, eventTime};
  InputDriver input{testDisplay().name()};
  QRasterWindow ownWindow;
  int presses = 0;
};

TEST_F(XInputMouseMonitorTest, PressOnDesktop_LeftOrRight_IsOutside) {
  setActive(true);
  input.click(onDesktop, leftButton);
  EXPECT_TRUE(waitForPresses(1));
  input.click(onDesktop, rightButton);
  EXPECT_TRUE(waitForPresses(2));
}

TEST_F(XInputMouseMonitorTest, MiddleButtonAndWheel_AreNotWatched) {
  setActive(true);
  constexpr quint8 wheelDown = 5;
  input.click(onDesktop, middleButton);
  input.click(onDesktop, wheelDown);
  expectNoneBefore(0);
}

TEST_F(XInputMouseMonitorTest, PressOnOwnWindow_IsNotOutside) {
  showOwnWindow();
  setActive(true);
  clickHeard(onOwnWindow, leftButton);
  clickHeard(onOwnWindow, rightButton);
  expectNoneBefore(0);
}

TEST_F(XInputMouseMonitorTest, PressOnFrameOfOwnWindow_IsNotOutside) {
  const WindowManager windowManager(testDisplay());
  showOwnWindow();
  ASSERT_TRUE(waitUntil([&] { return ownWindow.frameMargins().top() > 4; }));
  setActive(true);
  const QRect frame = ownWindow.frameGeometry();
  clickHeard({frame.center().x(), frame.top() + 3});
  expectNoneBefore(0);
}

TEST_F(XInputMouseMonitorTest, PressOnOwnMenu_IsNotOutside) {
  QRasterWindow menu;
  menu.setFlags(Qt::Popup);
  menu.setGeometry(600, 300, 200, 200);
  showOwnWindow();
  menu.show();
  ASSERT_TRUE(waitUntil([&] { return menu.isExposed(); }));
  setActive(true);
  clickHeard({650, 350});
  menu.hide();
  expectNoneBefore(0);
}

TEST_F(XInputMouseMonitorTest, PressBesideOwnOpenMenu_IsOutside) {
  QRasterWindow menu;
  menu.setFlags(Qt::Popup);
  menu.setGeometry(600, 300, 200, 200);
  menu.show();
  ASSERT_TRUE(waitUntil([&] { return menu.isExposed(); }));
  setActive(true);
  input.click(onDesktop);
  EXPECT_TRUE(waitForPresses(1));
}

TEST_F(XInputMouseMonitorTest, PressOnOtherProgram_IsOutsideAndStillReachesIt) {
  OtherClient other(testDisplay().name(), {600, 300, 300, 300});
  other.show();
  setActive(true);
  input.click({700, 400});
  EXPECT_TRUE(waitForPresses(1));
  EXPECT_EQ(other.buttons(), QList<quint8>{leftButton});
}

TEST_F(XInputMouseMonitorTest, PressWhereAnotherProgramCoversOwnWindow_IsOutside) {
  showOwnWindow();
  OtherClient other(testDisplay().name(), {150, 150, 300, 300});
  other.show();
  setActive(true);
  input.click(onOwnWindow);
  EXPECT_TRUE(waitForPresses(1));
}

TEST_F(XInputMouseMonitorTest, PressWhereHiddenOwnWindowWas_IsOutside) {
  showOwnWindow();
  ownWindow.hide();
  setActive(true);
  input.click(onOwnWindow);
  EXPECT_TRUE(waitForPresses(1));
}

TEST_F(XInputMouseMonitorTest, Presses_WhileInactive_AreNotTold) {
  input.click(onDesktop);
  setActive(true);
  setActive(false);
  input.click(onDesktop);
  setActive(true);
  expectNoneBefore(0);
}

TEST_F(XInputMouseMonitorTest, Press_NotesTheServersTime) {
  setActive(true);
  input.click(onDesktop);
  ASSERT_TRUE(waitForPresses(1));
  EXPECT_NE(eventTime.recent(), 0U);
}

}  // namespace
}  // namespace lanternix
