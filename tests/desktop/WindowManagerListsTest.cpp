#include "desktop/WindowManagerTest.h"
#include "support/DesktopShell.h"

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
  // Not by keys, which the server throws away while the window manager gives the keyboard to
  // nobody.
  DesktopShell shell(session().bus()->address());
  for (int toggle = 0; toggle < 2; ++toggle) {
    EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  }
  program().settle();  // or it may be the panel before its hiding that is looked at
  manager().settle();
  program().waitForPanel();
  EXPECT_TRUE(waitUntil([this] { return session().windows().desktop(program().panel()) == ~0U; }));
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
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
  program().settle();  // or the window manager may give the keyboard back to the panel
  const auto one = session().openOtherWindow({20, 500, 200, 200});
  const auto two = session().openOtherWindow({20, 100, 200, 200});
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return two->keys().contains(XK_x); }));
  if (!countsSteps()) {
    QSet<xcb_window_t> reached;
    for (int round = 0; round < 9; ++round) {
      switchBy(1 + round % 3);
      manager().settle();
      program().settle();
      ASSERT_TRUE(waitUntil([&] { return one->hasFocus() || two->hasFocus(); })) << round;
      EXPECT_FALSE(panelHasFocus()) << round;
      reached.insert(one->hasFocus() ? one->window() : two->window());
    }
    EXPECT_EQ(reached.size(), 2) << "the switcher has not switched";
    return;
  }
  switchBy(1);
  EXPECT_TRUE(waitUntil([&] { return one->hasFocus(); }));
  // Between two windows as far as by one step; among three it would lead back to the same one.
  switchBy(3);
  EXPECT_TRUE(waitUntil([&] { return two->hasFocus(); }));
  EXPECT_FALSE(panelHasFocus());
  EXPECT_TRUE(isShown());
}

}  // namespace
}  // namespace lanternix
