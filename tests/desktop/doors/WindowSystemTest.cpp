#include "Platform/ActivationToken.h"
#include "Platform/KeyCodes.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11HotkeyRegistrar.h"
#include "Platform/Linux/X11KeyboardHold.h"
#include "Platform/Linux/X11WindowSystem.h"
#include "TestDisplay.h"
#include "support/InputDriver.h"
#include "support/OtherClient.h"
#include "support/StartupListener.h"
#include "support/WaitUntil.h"
#include "support/WindowManager.h"
#include "support/WindowProbe.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QRasterWindow>

#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// A window made like the panel, which keeps what is typed into it.
class Panel : public QRasterWindow {
 public:
  Panel() {
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setGeometry(400, 300, 300, 200);
    create();
  }
  QString typed;

 protected:
  void keyPressEvent(QKeyEvent *event) override { typed += event->text(); }
};

class X11WindowSystemTest : public testing::Test {
 protected:
  void showPanel() {
    windowSystem.preparePanel(panel);
    panel.show();
    windowSystem.activate(panel);
  }
  void hidePanel() {
    windowSystem.prepareHiding(panel);
    panel.hide();
  }
  xcb_window_t native() const { return static_cast<xcb_window_t>(panel.winId()); }

  X11Server server;
  X11EventTime eventTime;
  X11KeyboardHold keyboardHold{server};
  X11WindowSystem windowSystem{server, eventTime, keyboardHold};
  InputDriver input{testDisplay().name()};
  WindowProbe windows{testDisplay().name()};
  Panel panel;
};

class ManagedX11WindowSystemTest : public X11WindowSystemTest {
 protected:
  /// What this window manager leaves of a panel's marks: it knows stickiness as a desktop alone.
  bool isMarkedAsPanel() const {
    const QStringList states = windows.states(native());
    return states.contains(u"_NET_WM_STATE_ABOVE"_s) &&
           states.contains(u"_NET_WM_STATE_SKIP_TASKBAR"_s) &&
           states.contains(u"_NET_WM_STATE_SKIP_PAGER"_s) &&
           windows.desktop(native()) == 0xFFFFFFFF && windows.isViewable(native());
  }

  quint32 userTime() const { return windows.connection().number(native(), "_NET_WM_USER_TIME"); }

  WindowManager windowManager{testDisplay()};
};

TEST_F(ManagedX11WindowSystemTest, ShownPanel_IsMarkedAsPanel) {
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return isMarkedAsPanel(); }))
      << windows.states(native()).join(u' ').toStdString();
  EXPECT_THAT(windows.types(native()), testing::Contains(u"_NET_WM_WINDOW_TYPE_UTILITY"_s));
}

TEST_F(ManagedX11WindowSystemTest, PanelShownWithoutAnAction_IsShownAsOfNow) {
  const XConnection connection(testDisplay().name());
  const quint32 before = connection.time();
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() >= before; }));
  EXPECT_LE(userTime(), connection.time());
}

TEST_F(ManagedX11WindowSystemTest, PanelShownForAnAction_IsShownAsOfThat) {
  const quint32 time = XConnection(testDisplay().name()).time() - 1;
  eventTime.note(time);
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() == time; }));
}

TEST_F(ManagedX11WindowSystemTest, PanelShownForARequestWithoutATime_IsShownAsOfNow) {
  const XConnection connection(testDisplay().name());
  const quint32 before = connection.time();
  eventTime.note(before - 1);  // of another action, which was answered then
  windowSystem.noteRequest({});
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() >= before; }));
}

TEST_F(ManagedX11WindowSystemTest, PanelWhoseTimeIsKeptOnAnotherWindow_HasItThere) {
  const XConnection connection(testDisplay().name());
  const OtherClient keeper(testDisplay().name());
  const xcb_window_t window = keeper.window();
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, native(),
                      connection.atom("_NET_WM_USER_TIME_WINDOW"), XCB_ATOM_WINDOW, 32, 1, &window);
  const quint32 time = connection.time() - 1;
  eventTime.note(time);
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return connection.number(window, "_NET_WM_USER_TIME") == time; }));
}

TEST_F(ManagedX11WindowSystemTest, PanelMadeAnIcon_IsNotOnTheScreen) {
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return windowSystem.isOnScreen(panel); }));
  windows.iconify(native());
  EXPECT_TRUE(waitUntil([&] { return !windowSystem.isOnScreen(panel); }));
}

TEST_F(ManagedX11WindowSystemTest, PanelTakenAwaySoonAfterAHiding_IsLostOnce) {
  int losses = 0;
  QObject::connect(&windowSystem, &WindowSystem::panelLost, [&] { ++losses; });
  showPanel();
  hidePanel();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windowSystem.isOnScreen(panel); }));
  windows.iconify(native());
  EXPECT_TRUE(waitUntil([&] { return losses == 1; }));
  panel.hide();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  // Longer than the window manager is given to make up its mind.
  waitUntil([] { return false; }, std::chrono::milliseconds(300));
  windows.iconify(native());
  ASSERT_TRUE(waitUntil([&] { return !windowSystem.isOnScreen(panel); }));
  EXPECT_FALSE(waitUntil([&] { return losses > 1; }, std::chrono::milliseconds(300)))
      << "though a person did it";
}

TEST_F(ManagedX11WindowSystemTest, KeyboardThatTheUserTakesElsewhereRightAfterAShow_StaysThere) {
  OtherClient other(testDisplay().name());
  other.show();
  showPanel();
  hidePanel();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  eventTime.note(XConnection(testDisplay().name()).time());  // of a press
  other.takeFocus();
  // Longer than the window manager is given to make up its mind.
  EXPECT_FALSE(waitUntil([&] { return !other.hasFocus(); }, std::chrono::milliseconds(300)));
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

TEST_F(X11WindowSystemTest, RequestWithAStartupId_EndsTheWaitOnceItIsAnswered) {
  StartupListener startups(testDisplay().name());
  windowSystem.noteRequest(
      {.token = {}, .startupId = u"a \\ and \"quotes\" in a long name_TIME5"_s});
  EXPECT_TRUE(startups.texts().isEmpty());
  showPanel();
  const QStringList ended{u"remove: ID=\"a \\\\ and \\\"quotes\\\" in a long name_TIME5\""_s};
  EXPECT_TRUE(waitUntil([&] { return startups.texts() == ended; }))
      << startups.texts().join(u'\n').toStdString();
  hidePanel();
  showPanel();
  EXPECT_EQ(startups.texts(), ended);
}

TEST_F(X11WindowSystemTest, RequestBeforeTheLastOneIsAnswered_EndsTheWaitForThatOne) {
  StartupListener startups(testDisplay().name());
  windowSystem.noteRequest({.token = {}, .startupId = u"one_TIME5"_s});
  windowSystem.noteRequest({});
  EXPECT_TRUE(
      waitUntil([&] { return startups.texts() == QStringList{u"remove: ID=\"one_TIME5\""_s}; }));
}

TEST_F(X11WindowSystemTest, TimeOfARequest_IsTheEndOfItsStartupId) {
  const QList<std::pair<QString, quint32>> times{
      {u"shell/menu-4-host_TIME4294967295"_s, 4294967295},
      {u"_TIME1_TIME2"_s, 2},
      {u"menu_TIME"_s, 0},
      {u"menu_TIME-1"_s, 0},
      {u"menu_TIME4294967296"_s, 0},
      {u"menu_TIME7 or so"_s, 0},
      {u"menu"_s, 0}};
  for (const auto &[id, time] : times) {
    EXPECT_EQ(X11StartupNotification::timeOf(id), time) << id.toStdString();
    X11EventTime fresh;
    X11WindowSystem(server, fresh, keyboardHold).noteRequest({.token = {}, .startupId = id});
    EXPECT_EQ(fresh.recent(), time) << id.toStdString();
  }
}

TEST_F(X11WindowSystemTest, ActiveScreen_WithOneScreen_IsThatScreen) {
  EXPECT_EQ(windowSystem.activeScreen(), QGuiApplication::primaryScreen());
}

}  // namespace
}  // namespace lanternix
