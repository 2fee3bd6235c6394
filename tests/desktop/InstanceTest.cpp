#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class InstanceTest : public DesktopTest {
 protected:
  using DesktopTest::DesktopTest;
  InstanceTest() = default;

  /// What the panel is for: letters and Return open the thing.
  void expectUsable() {
    input().type(u"dep"_s);
    input().tap(XK_Return);
    EXPECT_TRUE(becomesMarked(u"Deploy"_s));
    EXPECT_TRUE(becomesHidden());
  }
};

TEST_F(InstanceTest, SecondStart_ShowsTheFirstOnesPanelAndEndsWith0) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  Program second(session());
  EXPECT_TRUE(waitUntil([&] { return second.exitCode() == 0; }));
  program().waitForPanel();
  expectUsable();
}

TEST_F(InstanceTest, SecondStartInFrontOfAnotherProgram_TakesTheKeyboard) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  Program second(session());
  program().waitForPanel();
  expectUsable();
}

TEST_F(InstanceTest, SecondStartOverTheShownPanel_LeavesItShown) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  Program second(session());
  ASSERT_TRUE(waitUntil([&] { return second.exitCode() == 0; }));
  expectUsable();
}

TEST_F(InstanceTest, StartAfterTheFirstOneEnded_IsTheProgramAgain) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  program().terminate();
  start();
  expectUsable();
}

// The program has none of its own, and one of its toolkit's would show the panel nowhere.
TEST_F(InstanceTest, StartWithOptions_TakesNone) {
  ProgramEnvironment::write(session().home().dataFile(),
                            commands({u"Build"_s, u"Deploy"_s}).json());
  Program program(session(), Program::Disk::writable,
                  {u"--help"_s, u"-platform"_s, u"offscreen"_s, u"-style"_s, u"windows"_s});
  program.waitForPanel();
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_TRUE(program.output().isEmpty()) << program.output().toStdString();
}

class InstanceWithoutBusTest : public InstanceTest {
 protected:
  InstanceWithoutBusTest()
      : InstanceTest(DesktopSession::WithManager::yes, DesktopSession::WithBus::no) {}
};

TEST_F(InstanceWithoutBusTest, Start_ShowsAUsablePanel) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  expectUsable();
  showByShortcut();
  EXPECT_TRUE(isShown());
}

TEST_F(InstanceWithoutBusTest, SecondStart_EndsWith0AndLeavesTheFirstRunning) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  Program second(session());
  EXPECT_TRUE(waitUntil([&] { return second.exitCode() == 0; }));
  EXPECT_TRUE(program().isRunning());
}

TEST_F(InstanceWithoutBusTest, StartAfterTheFirstOneWasKilled_IsTheProgramAgain) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  program().kill();
  start();
  expectUsable();
}

class InstanceWithoutManagerTest : public InstanceTest {
 protected:
  InstanceWithoutManagerTest()
      : InstanceTest(DesktopSession::WithManager::no, DesktopSession::WithBus::yes) {}
};

TEST_F(InstanceWithoutManagerTest, Start_ShowsAUsablePanel) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  expectUsable();
}

TEST_F(InstanceWithoutManagerTest, Shortcut_ShowsAUsablePanelOverAnotherProgram) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  showByShortcut();
  EXPECT_TRUE(session().windows().isAbove(program().panel(), other->window()));
  expectUsable();
}

TEST_F(InstanceWithoutManagerTest, Panel_IsPlacedOnTheWholeScreen) {
  start(commands({u"Build"_s}));
  QRect expected(0, 0, 700, 500);
  expected.moveCenter(QRect(QPoint(), session().screenSize()).center() - QPoint(0, 60));
  EXPECT_EQ(panelGeometry(), expected);
}

}  // namespace
}  // namespace lanternix
