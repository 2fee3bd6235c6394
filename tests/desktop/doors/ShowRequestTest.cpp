// What the panel is shown for: the time of the action, and who waits for the answer.
#include "WindowSystemTest.h"
#include "support/OtherClient.h"
#include "support/StartupListener.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class ShowRequestTest : public ManagedX11WindowSystemTest {
 protected:
  quint32 userTime() const { return windows.connection().number(native(), "_NET_WM_USER_TIME"); }
};

class StartupRequestTest : public X11WindowSystemTest {};

TEST_F(ShowRequestTest, PanelShownWithoutAnAction_IsShownAsOfNow) {
  const XConnection connection(testDisplay().name());
  const quint32 before = connection.time();
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() >= before; }));
  EXPECT_LE(userTime(), connection.time());
}

TEST_F(ShowRequestTest, PanelShownForAnAction_IsShownAsOfThat) {
  const quint32 time = XConnection(testDisplay().name()).time() - 1;
  eventTime.note(time);
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() == time; }));
}

TEST_F(ShowRequestTest, PanelShownForARequestWithoutATime_IsShownAsOfNow) {
  const XConnection connection(testDisplay().name());
  const quint32 before = connection.time();
  eventTime.note(before - 1);  // of another action, which was answered then
  windowSystem.noteRequest({});
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return userTime() >= before; }));
}

// As the settings are by the keyboard, soon after the shortcut, whose time is older than what Qt
// has told the window manager already.
TEST_F(ShowRequestTest, WindowShownForAKeyTypedIntoThePanel_IsShownAsOfNow) {
  const XConnection connection(testDisplay().name());
  eventTime.note(connection.time());  // of the shortcut
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return panel.isActive(); }));
  input.type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return panel.typed == u"x"_s; }));
  const quint32 afterTheKey = connection.time();
  PanelLikeWindow settings;
  settings.show();
  windowSystem.activate(settings);
  const auto native = static_cast<xcb_window_t>(settings.winId());
  EXPECT_TRUE(waitUntil([&] { return windows.hasFocus(native); }));
  EXPECT_GE(connection.number(native, "_NET_WM_USER_TIME"), afterTheKey);
}

TEST_F(ShowRequestTest, PanelWhoseTimeIsKeptOnAnotherWindow_HasItThere) {
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

TEST_F(StartupRequestTest, RequestWithAStartupId_EndsTheWaitOnceItIsAnswered) {
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

TEST_F(StartupRequestTest, RequestBeforeTheLastOneIsAnswered_EndsTheWaitForThatOne) {
  StartupListener startups(testDisplay().name());
  windowSystem.noteRequest({.token = {}, .startupId = u"one_TIME5"_s});
  windowSystem.noteRequest({});
  EXPECT_TRUE(
      waitUntil([&] { return startups.texts() == QStringList{u"remove: ID=\"one_TIME5\""_s}; }));
}

TEST_F(StartupRequestTest, TimeOfARequest_IsTheEndOfItsStartupId) {
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

}  // namespace
}  // namespace lanternix
