#include "desktop/WindowManagerTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class WindowManagerSettingsTest : public WindowManagerTest {
 protected:
  /// Opens the settings by the keyboard and waits until they have it.
  void openSettings() {
    start(commands({u"Build"_s}));
    input().tap(XK_comma, {XK_Control_L});
    require(u"the settings to open with the keyboard"_s, [this] {
      const auto window = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
      return window && session().windows().isViewable(*window) &&
             session().windows().hasFocus(*window);
    });
    // A window manager that gave them the keyboard of its own accord has yet to meet the request.
    program().settle();
  }
  xcb_window_t settings() {
    return session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s).value();
  }
};

TEST_F(WindowManagerSettingsTest, Settings_HaveTheWindowManagersTitleBar) {
  openSettings();
  EXPECT_TRUE(waitUntil([this] {
    const QRect inside = session().windows().geometry(settings());
    return session().windows().frameGeometry(settings()).top() < inside.top();
  }));
}

TEST_F(WindowManagerSettingsTest, Settings_AreInTheListOfWindows) {
  openSettings();
  program().settle();
  EXPECT_TRUE(session().windows().clients().contains(settings()));
  const QStringList states = session().windows().states(settings());
  EXPECT_FALSE(states.contains(u"_NET_WM_STATE_SKIP_TASKBAR"_s));
  EXPECT_FALSE(states.contains(u"_NET_WM_STATE_SKIP_PAGER"_s));
  EXPECT_FALSE(states.contains(u"_NET_WM_STATE_ABOVE"_s));
}

TEST_F(WindowManagerSettingsTest, CoveredSettings_AreRaisedWhenOpenedAgain) {
  if (manager().tiles()) {
    GTEST_SKIP() << because(manager().name() + u" lets no window cover another"_s);
  }
  openSettings();
  const auto other = session().openOtherWindow({0, 0, 1100, 800});
  session().windows().raise(other->window());
  ASSERT_TRUE(waitUntil([&] { return session().windows().isAbove(other->window(), settings()); }));
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return other->keys().contains(XK_x); }));
  showByShortcut();
  input().tap(XK_comma, {XK_Control_L});
  EXPECT_TRUE(waitUntil([&] {
    return session().windows().isAbove(settings(), other->window()) &&
           session().windows().hasFocus(settings());
  }));
}

TEST_F(WindowManagerSettingsTest, AltTab_FindsTheSettings) {
  if (!manager().hasSwitcher()) {
    GTEST_SKIP() << because(manager().name() + u" has no switcher of its own"_s);
  }
  openSettings();
  const auto other = session().openOtherWindow({20, 100, 200, 200});
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return other->keys().contains(XK_x); }));
  switchBy(1);
  EXPECT_TRUE(waitUntil([&] { return session().windows().hasFocus(settings()); }));
}

}  // namespace
}  // namespace lanternix
