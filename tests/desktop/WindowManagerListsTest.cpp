#include "desktop/WindowManagerTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::IsSupersetOf;

class WindowManagerListsTest : public WindowManagerTest {
 protected:
  /// What pagers, taskbars and switchers read of the panel.
  QStringList panelStates() {
    program().settle();
    return session().windows().states(program().panel());
  }
};

const QStringList &expectedStates() {
  static const QStringList states{u"_NET_WM_STATE_ABOVE"_s, u"_NET_WM_STATE_SKIP_TASKBAR"_s,
                                  u"_NET_WM_STATE_SKIP_PAGER"_s};
  return states;
}

TEST_F(WindowManagerListsTest, Panel_IsInNoTaskbarAndNoPager) {
  start(commands({u"Build"_s}));
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
  EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU);
}

TEST_F(WindowManagerListsTest, PanelShownAgain_IsInNoTaskbarAndNoPager) {
  startHidden(commands({u"Build"_s}));
  for (int show = 0; show < 3; ++show) {
    showByShortcut();
    EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates())) << show;
    EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU) << show;
    pressShortcut();
    ASSERT_TRUE(becomesHidden());
  }
}

TEST_F(WindowManagerListsTest, PanelHiddenAndShownAtOnce_IsInNoTaskbarAndNoPager) {
  start(commands({u"Build"_s}));
  pressShortcut();
  pressShortcut();
  program().waitForPanel();
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
  EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU);
}

TEST_F(WindowManagerListsTest, AltTab_PassesThePanelOver) {
  if (!manager().hasSwitcher()) {
    GTEST_SKIP() << because(manager().name() + u" has no switcher of its own"_s);
  }
  if (manager().name() == "icewm"_L1) {
    GTEST_SKIP() << because(
        u"icewm lists every window; its option ignoreQuickSwitch is the user's"_s);
  }
  start(commands({u"Build"_s}));
  const auto one = session().openOtherWindow({20, 500, 200, 200});
  const auto two = session().openOtherWindow({20, 100, 200, 200});
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return two->keys().contains(XK_x); }));
  // By one, two and three steps in one go: among three, the panel would have its turn.
  QSet<xcb_window_t> reached;
  for (int steps = 1; steps <= 3; ++steps) {
    input().press(XK_Alt_L);
    for (int step = 0; step < steps; ++step) {
      input().tap(XK_Tab);
      manager().settle();
    }
    input().release(XK_Alt_L);
    manager().settle();
    program().settle();
    EXPECT_FALSE(panelHasFocus()) << steps;
    EXPECT_TRUE(waitUntil([&] { return one->hasFocus() || two->hasFocus(); })) << steps;
    reached.insert(one->hasFocus() ? one->window() : two->window());
  }
  EXPECT_EQ(reached.size(), 2) << "the switcher has not switched";
  EXPECT_TRUE(isShown());
}

}  // namespace
}  // namespace lanternix
