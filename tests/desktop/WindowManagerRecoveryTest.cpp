#include "desktop/WindowManagerTest.h"
#include "support/DesktopShell.h"
#include "support/SuspendedProcess.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// A panel that is gone from the screen though the program has not hidden it.
class WindowManagerRecoveryTest : public WindowManagerTest {
 protected:
  /// Shows, hides and shows the panel while the window manager does nothing.
  void toggleUnderABusyWindowManager() {
    manager().settle();
    const SuspendedProcess busyManager(manager().processId());
    DesktopShell shell(session().bus()->address());
    for (int toggle = 0; toggle < 3; ++toggle) {
      EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
    }
  }

  /// Shows the panel for so long that whoever takes it away then means it.
  void showTooLongToRecover() {
    showByShortcut();
    waitUntil([] { return false; }, std::chrono::milliseconds(2100));
  }

  void makeIcon() {
    showTooLongToRecover();
    session().windows().iconify(program().panel());
    program().settle();
  }

  /// Returns once the window manager has made up its mind about the panel, and the program has
  /// mended what of that was wrong: keys that are typed meanwhile may go elsewhere.
  void waitForTheBusyWindowManager() {
    program().waitForPanel();
    // Longer than the program waits with its answer.
    waitUntil([] { return false; }, std::chrono::milliseconds(300));
    require(u"the panel to have the keyboard"_s,
            [this] { return session().windows().hasFocus(program().panel()); });
    program().settle();
  }

  /// Whether letters and Return open the command "Deploy".
  bool answersToKeys() {
    input().type(u"dep"_s);
    input().tap(XK_Return);
    return becomesMarked(u"Deploy"_s);
  }
};

// As a window manager does that is so busy that it meets the last hiding only after the show.
TEST_F(WindowManagerRecoveryTest, PanelTakenForHiddenRightAfterAShow_ComesUpAgainWithTheKeyboard) {
  if (manager().name() == u"xfwm4"_s) {
    GTEST_SKIP() << because(u"does not take a window on the screen for hidden"_s);
  }
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  workIn(*other);
  showByShortcut();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  waitUntil([] { return false; }, std::chrono::milliseconds(250));  // that busy
  session().windows().withdraw(program().panel());
  EXPECT_TRUE(waitUntil([&] { return session().windows().isInNormalState(program().panel()); }));
  waitForTheBusyWindowManager();
  EXPECT_TRUE(answersToKeys());
  EXPECT_TRUE(becomesHidden());
}

TEST_F(WindowManagerRecoveryTest,
       PanelShownHiddenAndShownBeforeTheWindowManagerKnows_HasTheKeyboard) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  workIn(*other);
  toggleUnderABusyWindowManager();
  waitForTheBusyWindowManager();
  EXPECT_TRUE(answersToKeys());
}

TEST_F(WindowManagerRecoveryTest, PanelOverTheSettingsShownByABusyWindowManager_HasTheKeyboard) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  DesktopShell shell(session().bus()->address());
  EXPECT_EQ(shell.activateAction(u"settings"_s), QString());
  require(u"the settings with the keyboard"_s, [this] {
    const auto settings = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return settings && session().windows().hasFocus(*settings);
  });
  program().settle();
  toggleUnderABusyWindowManager();
  waitForTheBusyWindowManager();
  EXPECT_TRUE(answersToKeys());
}

TEST_F(WindowManagerRecoveryTest, PanelTakenForHiddenLater_ComesUpByTheShortcutWithTheKeyboard) {
  if (manager().name() == u"xfwm4"_s) {
    GTEST_SKIP() << because(u"does not take a window on the screen for hidden"_s);
  }
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  showTooLongToRecover();
  session().windows().withdraw(program().panel());
  program().settle();
  ASSERT_FALSE(session().windows().isInNormalState(program().panel()));
  showByShortcut();
  EXPECT_TRUE(answersToKeys());
}

TEST_F(WindowManagerRecoveryTest, PanelMadeAnIcon_ComesUpByTheShortcutWithTheKeyboard) {
  if (manager().tiles()) {
    GTEST_SKIP() << because(manager().name() + u" knows no icons"_s);
  }
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  makeIcon();
  ASSERT_FALSE(session().windows().isInNormalState(program().panel()));
  showByShortcut();
  EXPECT_TRUE(answersToKeys());
}

TEST_F(WindowManagerRecoveryTest, PanelMadeAnIconAndHidden_ComesUpByTheShortcutWithTheKeyboard) {
  if (manager().tiles()) {
    GTEST_SKIP() << because(manager().name() + u" knows no icons"_s);
  }
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  makeIcon();
  ASSERT_FALSE(session().windows().isInNormalState(program().panel()));
  input().click(session().windows().geometry(other->window()).center());
  program().settle();
  showByShortcut();
  EXPECT_TRUE(answersToKeys());
}

}  // namespace
}  // namespace lanternix
