#include "desktop/DesktopTest.h"
#include "support/DesktopShell.h"
#include "support/StartupListener.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

/// What the program does when it is called on the bus.
class ApplicationTest : public DesktopTest {
 protected:
  bool areSettingsShown() {
    const auto window = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return window && session().windows().isViewable(*window) &&
           session().windows().hasFocus(*window);
  }
  bool becomesUsable() {
    return waitUntil([this] { return isShown() && panelHasFocus(); });
  }
  /// An id as launchers make them, of an action of the user's at this time of the server.
  static QString startupId(quint32 time) { return u"menu-7-host_TIME%1"_s.arg(time); }
  /// What a program says when the wait that goes by \p id is over.
  static QString ending(const QString &id) { return u"remove: ID=\"%1\""_s.arg(id); }
  quint32 serverTime() { return XConnection(session().displayName()).time(); }
  quint32 userTime() {
    return session().windows().connection().number(program().panel(), "_NET_WM_USER_TIME");
  }

  DesktopShell shell{session().bus()->address()};
  StartupListener startups{session().displayName()};
};

TEST_F(ApplicationTest, Activate_ShowsAUsablePanelOverAnotherProgram) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  EXPECT_EQ(shell.activate(), QString());
  ASSERT_TRUE(becomesUsable());
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(ApplicationTest, Show_OverTheShownPanelLeavesItShown) {
  startHidden(commands({u"Build"_s}));
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(shell.activateAction(u"show"_s), QString());
    EXPECT_TRUE(becomesUsable());
  }
}

TEST_F(ApplicationTest, Toggle_ShowsAndHides) {
  startHidden(commands({u"Build"_s}));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
    ASSERT_TRUE(becomesUsable());
    EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
    ASSERT_TRUE(becomesHidden());
  }
}

TEST_F(ApplicationTest, Settings_OpenInFrontAndHideThePanel) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(shell.activateAction(u"settings"_s), QString());
  EXPECT_TRUE(waitUntil([this] { return areSettingsShown(); }));
  EXPECT_TRUE(becomesHidden());
}

TEST_F(ApplicationTest, UnknownAction_IsRefusedAndChangesNothing) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  EXPECT_EQ(shell.activateAction(u"explode"_s), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
  EXPECT_TRUE(waitUntil([this] { return program().errors().contains("\"explode\""); }));
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(ApplicationTest, CallWithAStartupId_EndsTheWaitAndActivatesAtItsTime) {
  startHidden(commands({u"Build"_s}));
  const quint32 time = serverTime();
  const QString id = startupId(time);
  EXPECT_EQ(shell.activate({{u"desktop-startup-id"_s, id}}), QString());
  ASSERT_TRUE(becomesUsable());
  EXPECT_EQ(userTime(), time);
  EXPECT_TRUE(waitUntil([&] { return startups.texts() == QStringList{ending(id)}; }))
      << startups.texts().join(u'\n').toStdString();
}

TEST_F(ApplicationTest, ToggleThatHides_EndsTheWaitToo) {
  start(commands({u"Build"_s}));
  const QString id = startupId(serverTime());
  EXPECT_EQ(shell.activateAction(u"toggle"_s, {{u"desktop-startup-id"_s, id}}), QString());
  ASSERT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return startups.texts() == QStringList{ending(id)}; }));
}

TEST_F(ApplicationTest, StartWithAStartupId_EndsTheWaitAndActivatesAtItsTime) {
  const quint32 time = serverTime();
  session().home().set(u"DESKTOP_STARTUP_ID"_s, startupId(time));
  start(commands({u"Build"_s}));
  EXPECT_EQ(userTime(), time);
  EXPECT_TRUE(waitUntil([&] { return startups.texts() == QStringList{ending(startupId(time))}; }));
}

TEST_F(ApplicationTest, SecondStartWithAStartupId_HandsItToTheFirst) {
  startHidden(commands({u"Build"_s}));
  const quint32 time = serverTime();
  session().home().set(u"DESKTOP_STARTUP_ID"_s, startupId(time));
  Program second(session());
  ASSERT_TRUE(becomesUsable());
  EXPECT_EQ(userTime(), time);
  EXPECT_TRUE(waitUntil([&] { return startups.texts() == QStringList{ending(startupId(time))}; }));
  EXPECT_TRUE(waitUntil([&] { return second.exitCode() == 0; }));
}

TEST_F(ApplicationTest, TokensOfTheStart_AreNotInherited) {
  session().home().set(u"DESKTOP_STARTUP_ID"_s, startupId(serverTime()));
  session().home().set(u"XDG_ACTIVATION_TOKEN"_s, u"wl-7"_s);
  const QString result = session().home().path(u"result"_s);
  start(SampleGroups()
            .group(u"Commands"_s)
            .command(u"It"_s, u"env > '%1'; %2"_s.arg(result, marking(u"done"_s))));
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"done"_s));
  const std::string variables = ProgramEnvironment::read(result).value_or("").toStdString();
  EXPECT_THAT(variables, HasSubstr("HOME="));
  EXPECT_THAT(variables, Not(HasSubstr("DESKTOP_STARTUP_ID")));
  EXPECT_THAT(variables, Not(HasSubstr("XDG_ACTIVATION_TOKEN")));
}

}  // namespace
}  // namespace lanternix
