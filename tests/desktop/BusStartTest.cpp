#include "desktop/DesktopTest.h"
#include "support/DesktopShell.h"

#include <X11/keysym.h>
#include <csignal>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The program, started by the bus because somebody calls it.
class BusStartTest : public DesktopTest {
 protected:
  BusStartTest() {
    ProgramEnvironment::write(
        session().bus()->serviceDirectory() + u"/org.lanternix.Lanternix.service"_s,
        "[D-BUS Service]\nName=org.lanternix.Lanternix\nExec=" + Program::file().toUtf8() + '\n');
    shell.setStartEnvironment(session().variables());
    ProgramEnvironment::write(session().home().dataFile(), commands({u"Build"_s}).json());
  }
  ~BusStartTest() override {
    if (const auto process = shell.process()) {
      ::kill(static_cast<pid_t>(*process), SIGTERM);
      waitUntil([&] { return !shell.process(); });
    }
  }

  bool isUp(const QString &title) {
    const auto window = session().windows().find(u"lanternix"_s, title);
    return window && session().windows().isViewable(*window) &&
           session().windows().hasFocus(*window);
  }
  bool comesUp(const QString &title) {
    return waitUntil([&] { return isUp(title); });
  }

  const QString panelTitle = u"Lanternix"_s;
  const QString settingsTitle = u"Lanternix Settings"_s;
  DesktopShell shell{session().bus()->address()};
};

TEST_F(BusStartTest, Activate_StartsTheProgramAndShowsAUsablePanel) {
  EXPECT_EQ(shell.activate(), QString());
  ASSERT_TRUE(comesUp(panelTitle));
  input().type(u"bui"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(BusStartTest, ToggleAfterThePanelHasComeUpByItself_LeavesItToTheNextOneToHide) {
  EXPECT_FALSE(shell.introspection().isEmpty());  // which starts the program too
  ASSERT_TRUE(comesUp(panelTitle));
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(isUp(panelTitle));
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(waitUntil([&] { return !isUp(panelTitle); }));
}

TEST_F(BusStartTest, Settings_StartsTheProgramAndOpensThem) {
  EXPECT_EQ(shell.activateAction(u"settings"_s), QString());
  ASSERT_TRUE(comesUp(settingsTitle));
}

}  // namespace
}  // namespace lanternix
