#include "WindowSystemTest.h"

#include "support/OtherClient.h"

#include <QtGui/QGuiApplication>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

TEST_F(ManagedX11WindowSystemTest, ShownPanel_IsMarkedAsPanel) {
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }))
      << windows.states(native()).join(u' ').toStdString();
  EXPECT_THAT(windows.types(native()), testing::Contains(u"_NET_WM_WINDOW_TYPE_UTILITY"_s));
}

TEST_F(ManagedX11WindowSystemTest, PanelShownAgain_IsStillMarkedAsPanel) {
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }));
  hidePanel();
  ASSERT_TRUE(waitUntil([&] { return windows.states(native()).isEmpty(); }));
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }))
      << windows.states(native()).join(u' ').toStdString();
}

TEST_F(ManagedX11WindowSystemTest, PanelHiddenAndShownAtOnce_IsStillMarkedAsPanel) {
  for (int i = 0; i < 50; ++i) {
    showPanel();
    ASSERT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }))
        << i << ": " << windows.states(native()).join(u' ').toStdString();
    hidePanel();
  }
}

TEST_F(ManagedX11WindowSystemTest, PanelToggledWithoutPause_EndsAsLastAsked) {
  OtherClient other(testDisplay().name());
  other.show();
  for (int i = 0; i < 50; ++i) {
    other.takeFocus();
    showPanel();
    hidePanel();
    showPanel();
    ASSERT_TRUE(waitUntil([&] { return isMarkedAsPanel() && windows.hasFocus(native()); })) << i;
    hidePanel();
    showPanel();
    hidePanel();
    ASSERT_TRUE(waitUntil([&] { return other.hasFocus(); })) << i;
    ASSERT_FALSE(windows.isViewable(native())) << i;
  }
}

TEST_F(ManagedX11WindowSystemTest, ShownPanel_TakesTheKeyboardFromTheProgramInUse) {
  OtherClient other(testDisplay().name());
  other.show();
  other.takeFocus();
  input.type(u"abc"_s);
  ASSERT_TRUE(waitUntil([&] { return other.keys().size() == 3; }));
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  ASSERT_TRUE(waitUntil([&] { return panel.isActive(); }));
  input.type(u"xyz"_s);
  EXPECT_TRUE(waitUntil([&] { return panel.typed == u"xyz"_s; })) << panel.typed.toStdString();
  EXPECT_EQ(other.keys().size(), 3);
}

TEST_F(ManagedX11WindowSystemTest, PanelToggledManyTimes_TakesTheKeyboardEachTime) {
  OtherClient other(testDisplay().name());
  other.show();
  for (int i = 0; i < 20; ++i) {
    other.takeFocus();
    showPanel();
    ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); })) << i;
    hidePanel();
  }
}

TEST_F(ManagedX11WindowSystemTest, ShownPanel_LiesAboveFullScreenProgram) {
  OtherClient other(testDisplay().name(), {0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  other.show();
  other.takeFocus();
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return windows.isAbove(native(), other.window()); }));
}

TEST_F(ManagedX11WindowSystemTest, ShownPanel_StaysWhenTheDesktopChanges) {
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }));
  OtherClient other(testDisplay().name());
  other.show();
  windowManager.switchToDesktop(1);
  EXPECT_TRUE(waitUntil([&] { return !windows.isViewable(other.window()); }));
  EXPECT_TRUE(windows.isViewable(native()));
  windowManager.switchToDesktop(0);
}

TEST_F(X11WindowSystemTest, PreparedPanel_AsksForEveryMark) {
  windowSystem.preparePanel(panel);
  panel.show();
  EXPECT_TRUE(waitUntil([&] { return windows.isViewable(native()); }));
  EXPECT_THAT(
      windows.states(native()),
      testing::IsSupersetOf({u"_NET_WM_STATE_ABOVE"_s, u"_NET_WM_STATE_STICKY"_s,
                             u"_NET_WM_STATE_SKIP_TASKBAR"_s, u"_NET_WM_STATE_SKIP_PAGER"_s}));
  EXPECT_THAT(windows.types(native()), testing::Contains(u"_NET_WM_WINDOW_TYPE_UTILITY"_s));
  EXPECT_EQ(windows.desktop(native()), 0xFFFFFFFF);
}

TEST_F(X11WindowSystemTest, WithoutWindowManager_ShownPanelTakesTheKeyboard) {
  OtherClient other(testDisplay().name());
  other.show();
  other.takeFocus();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  ASSERT_TRUE(waitUntil([&] { return panel.isActive(); }));
  input.type(u"xyz"_s);
  EXPECT_TRUE(waitUntil([&] { return panel.typed == u"xyz"_s; })) << panel.typed.toStdString();
}

TEST_F(X11WindowSystemTest, WithoutWindowManager_PanelShownAgainTakesTheKeyboardAgain) {
  OtherClient other(testDisplay().name());
  other.show();
  for (int i = 0; i < 20; ++i) {
    other.takeFocus();
    showPanel();
    ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); })) << i;
    hidePanel();
  }
}

TEST_F(X11WindowSystemTest, WithoutWindowManager_ShownPanelIsOnTheScreen) {
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return windowSystem.isOnScreen(panel); }));
}

TEST_F(X11WindowSystemTest, WithoutWindowManager_ShownPanelLiesOnTop) {
  showPanel();
  OtherClient other(testDisplay().name(), {400, 300, 300, 200});
  other.show();
  ASSERT_TRUE(windows.isAbove(other.window(), native()));
  windowSystem.activate(panel);
  EXPECT_TRUE(waitUntil([&] { return windows.isAbove(native(), other.window()); }));
}

TEST_F(X11WindowSystemTest, ActiveScreen_WithOneScreen_IsThatScreen) {
  EXPECT_EQ(windowSystem.activeScreen(), QGuiApplication::primaryScreen());
}

}  // namespace
}  // namespace lanternix
