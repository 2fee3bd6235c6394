#include "desktop/WindowManagerTest.h"
#include "support/Monitors.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// Side by side, of different height; the right one shows everything at twice its size.
constexpr int leftOutput = 0;
constexpr int rightOutput = 1;
constexpr QRect leftMonitor{0, 0, 1280, 900};
constexpr QRect rightMonitor{1280, 0, 1600, 1200};
constexpr QSize panelSize{700, 500};

class WindowManagerMonitorsTest : public WindowManagerTest {
 protected:
  WindowManagerMonitorsTest() : WindowManagerTest({2880, 1200}, VirtualDisplay::Outputs::several) {
    monitors.plugIn(leftOutput, leftMonitor);
    monitors.plugIn(rightOutput, rightMonitor);
    manager().settle();
    session().home().set(
        u"QT_SCREEN_SCALE_FACTORS"_s,
        u"%1=1;%2=2"_s.arg(Monitors::name(leftOutput), Monitors::name(rightOutput)));
  }

  /// Opens a window on a monitor, which then is the one the user works on.
  std::unique_ptr<OtherClient> workOn(const QRect &monitor) {
    if (manager().tiles()) {
      manager().switchToDesktop(monitor == leftMonitor ? 0 : 1);  // one on each
    }
    // Some window managers put a new window where the pointer is, whatever the program asks for.
    input().moveTo(monitor.topLeft() + QPoint(120, 300));
    manager().settle();
    auto other =
        session().openOtherWindow(QRect(monitor.topLeft() + QPoint(20, 200), QSize(200, 200)));
    input().moveTo(session().windows().geometry(other->window()).center());
    input().type(u"x"_s);
    require(u"the other program's key"_s, [&] { return other->keys().contains(XK_x); });
    require(u"the active window"_s,
            [&] { return session().windows().activeWindow() == other->window(); });
    return other;
  }

  /// Whether the panel comes to stand on \p monitor, in the middle of its width and at its scale.
  bool becomesShownOn(const QRect &monitor, int scale) {
    return waitUntil([&] {
      return isShown() && monitor.contains(frame()) && frame().size() == panelSize * scale &&
             qAbs(frame().center().x() - monitor.center().x()) <= scale;
    });
  }
  std::string place() {
    const QRect now = frame();
    return u"%1,%2 %3x%4"_s.arg(now.x())
        .arg(now.y())
        .arg(now.width())
        .arg(now.height())
        .toStdString();
  }

  Monitors monitors{session().display()};
};

TEST_F(WindowManagerMonitorsTest, Panel_ComesUpOnTheMonitorOfTheActiveWindow) {
  startHidden(commands({u"Build"_s}));
  const auto right = workOn(rightMonitor);
  showByShortcut();
  EXPECT_TRUE(becomesShownOn(rightMonitor, 2)) << place();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  const auto left = workOn(leftMonitor);
  showByShortcut();
  EXPECT_TRUE(becomesShownOn(leftMonitor, 1)) << place();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  const auto rightAgain = workOn(rightMonitor);
  showByShortcut();
  EXPECT_TRUE(becomesShownOn(rightMonitor, 2)) << place();
}

TEST_F(WindowManagerMonitorsTest, MonitorUnpluggedWhileThePanelIsHidden_IsSurvived) {
  startHidden(commands({u"Build"_s}));
  const auto right = workOn(rightMonitor);
  showByShortcut();
  ASSERT_TRUE(becomesShownOn(rightMonitor, 2)) << place();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  monitors.unplug(rightOutput);
  program().settle();
  showByShortcut();
  EXPECT_TRUE(becomesShownOn(leftMonitor, 1)) << place();
}

TEST_F(WindowManagerMonitorsTest, MonitorUnpluggedUnderThePanel_IsSurvived) {
  startHidden(commands({u"Build"_s}));
  const auto right = workOn(rightMonitor);
  showByShortcut();
  ASSERT_TRUE(becomesShownOn(rightMonitor, 2)) << place();
  monitors.unplug(rightOutput);
  EXPECT_TRUE(becomesShownOn(leftMonitor, 1)) << place();
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
  EXPECT_EQ(session().home().preference(u"panelWidth"_s), std::nullopt) << "nobody has resized it";
}

TEST_F(WindowManagerMonitorsTest, ResolutionLoweredUnderThePanel_ChangesItOnlyForTheTime) {
  constexpr QSize large{1100, 850};
  session().home().writePreferences("panelWidth=1100\npanelHeight=850");
  monitors.unplug(rightOutput);  // where the panel would go while the other one changes
  startHidden(commands({u"Build"_s}));
  const auto left = workOn(leftMonitor);
  showByShortcut();
  ASSERT_TRUE(waitUntil([&] { return frame().size() == large; })) << place();
  monitors.plugIn(leftOutput, {0, 0, 800, 600});
  // Taskbars take a part of it; where is another matter: icewm makes room for the shadow too.
  EXPECT_TRUE(waitUntil([&] { return frame().width() == 800 && frame().height() <= 600; }))
      << place();
  program().settle();
  EXPECT_FALSE(
      waitUntil([&] { return session().home().preference(u"panelWidth"_s) != u"1100"_s; },
                std::chrono::milliseconds(500)));  // longer than a hand's resizing is waited out
  monitors.plugIn(leftOutput, leftMonitor);
  EXPECT_TRUE(waitUntil([&] { return frame().size() == large; })) << place();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  program().settle();  // hidden, it would have stored what is still to be stored
  EXPECT_EQ(session().home().preference(u"panelHeight"_s), u"850"_s);
}

TEST_F(WindowManagerMonitorsTest, ChangeOfThePanelsMonitor_LeavesItOnThat) {
  startHidden(commands({u"Build"_s}));
  const auto left = workOn(leftMonitor);
  showByShortcut();
  ASSERT_TRUE(becomesShownOn(leftMonitor, 1)) << place();
  input().moveTo(rightMonitor.center());
  constexpr QRect lowerResolution{0, 0, 1024, 768};
  monitors.plugIn(leftOutput, lowerResolution);
  EXPECT_TRUE(becomesShownOn(lowerResolution, 1)) << place();
}

TEST_F(WindowManagerMonitorsTest, ChangeOfAnotherMonitor_LeavesADraggedPanelWhereItIs) {
  startHidden(commands({u"Build"_s}));
  const auto left = workOn(leftMonitor);
  showByShortcut();
  ASSERT_TRUE(becomesShownOn(leftMonitor, 1)) << place();
  const QPoint distance(-90, 60);
  program().settle();  // or the press meets the window manager amidst the show
  const QPoint header = frame().topLeft() + QPoint(350, 28);
  const QRect dragged = frame().translated(distance);
  dragPanel(header, header + distance, panelGeometry().translated(distance));
  monitors.plugIn(rightOutput, {rightMonitor.topLeft(), QSize(1280, 1024)});
  manager().settle();
  program().settle();
  EXPECT_EQ(frame(), dragged) << place();
}

TEST_F(WindowManagerMonitorsTest, MonitorPluggedInAgain_IsUsedAgain) {
  startHidden(commands({u"Build"_s}));
  monitors.unplug(rightOutput);
  program().settle();
  monitors.plugIn(rightOutput, rightMonitor);
  manager().settle();
  program().settle();
  const auto right = workOn(rightMonitor);
  showByShortcut();
  EXPECT_TRUE(becomesShownOn(rightMonitor, 2)) << place();
}

}  // namespace
}  // namespace lanternix
