#include "Platform/Linux/ActivationMouseMonitor.h"
#include "TestDisplay.h"
#include "support/OtherClient.h"
#include "support/VirtualDisplay.h"
#include "support/WaitUntil.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

class ActivationMouseMonitorTest : public testing::Test {
 protected:
  ActivationMouseMonitorTest() {
    QObject::connect(&monitor, &GlobalMouseMonitor::pressedOutside, [this] { ++presses; });
    window.show();
    second.show();
    activate(window);
    other.show();
  }

  static void activate(QWindow &wanted) {
    // Nobody manages the windows of this display, so that a window may be shown a moment later.
    require(QStringLiteral("the keyboard"), [&] {
      wanted.requestActivate();
      return QGuiApplication::focusWindow() == &wanted;
    });
  }
  static bool losesActivation() {
    return waitUntil([] { return QGuiApplication::applicationState() != Qt::ApplicationActive; });
  }

  QWindow window;
  QWindow second;
  OtherClient other{testDisplay().name()};
  ActivationMouseMonitor monitor{ActivationMouseMonitor::LossByHiding::toldLate};
  int presses = 0;
};

TEST_F(ActivationMouseMonitorTest, KeyboardThatGoesToAnotherProgram_CountsAsAPressOutside) {
  monitor.setActive(true);
  other.takeFocus();
  ASSERT_TRUE(losesActivation());
  EXPECT_EQ(presses, 1);
}

TEST_F(ActivationMouseMonitorTest, KeyboardThatGoesToAWindowOfOurOwn_DoesNot) {
  monitor.setActive(true);
  activate(second);
  EXPECT_EQ(presses, 0);
}

TEST_F(ActivationMouseMonitorTest, LossThatAHiddenWindowLeavesBehind_DoesNot) {
  monitor.setActive(true);
  monitor.setActive(false);
  window.hide();
  // Nothing has been heard of it yet.
  ASSERT_EQ(QGuiApplication::applicationState(), Qt::ApplicationActive);
  monitor.setActive(true);
  other.takeFocus();
  ASSERT_TRUE(losesActivation());
  EXPECT_EQ(presses, 0);

  window.show();
  activate(window);
  other.takeFocus();
  ASSERT_TRUE(losesActivation());
  EXPECT_EQ(presses, 1);
}

// So soon after a hiding the next loss is the user's, where the hidden window's has been told.
TEST_F(ActivationMouseMonitorTest, WhereNoLossIsToldLate_TheFirstAfterAHidingCounts) {
  ActivationMouseMonitor prompt(ActivationMouseMonitor::LossByHiding::untold);
  int losses = 0;
  QObject::connect(&prompt, &GlobalMouseMonitor::pressedOutside, [&] { ++losses; });
  window.hide();
  ASSERT_EQ(QGuiApplication::applicationState(), Qt::ApplicationActive);
  prompt.setActive(true);
  other.takeFocus();
  ASSERT_TRUE(losesActivation());
  EXPECT_EQ(losses, 1);
}

TEST_F(ActivationMouseMonitorTest, WhileStopped_NothingCounts) {
  monitor.setActive(true);
  monitor.setActive(false);
  other.takeFocus();
  ASSERT_TRUE(losesActivation());
  EXPECT_EQ(presses, 0);
}

}  // namespace
}  // namespace lanternix
