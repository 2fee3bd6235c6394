#include "desktop/DesktopTest.h"
#include "support/DesktopShell.h"
#include "support/ProgramPing.h"
#include "support/SuspendedProcess.h"

#include <QtCore/QProcess>

#include <X11/keysym.h>
#include <array>
#include <optional>
#include <xcb/xinput.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The panel that has been asked for and does not get the keyboard yet, because the window manager
/// is busy: while it is, it does nothing at all.
class KeyboardHoldTest : public DesktopTest {
 protected:
  void SetUp() override {
    startHidden(commands({u"Build"_s, u"Deploy"_s}));
    other = session().openOtherWindow();
    input().type(u"make"_s);
    require(u"the other program's keys"_s, [&] { return other->keys().size() == 4; });
  }

  void suspendTheWindowManager() {
    // Not in the midst of something for which it keeps the whole server to itself.
    session().windowManager()->settle();
    busyManager.emplace(session().windowManager()->processId());
  }

  /// Presses the shortcut, and returns once the program has seen it.
  void pressWhileTheWindowManagerIsBusy() {
    suspendTheWindowManager();
    pressShortcut();
    ProgramPing(session().displayName(), program().panel()).waitForAnswer();
  }

  /// Whether any program but ours can take the keyboard for itself, as a menu or a lock does.
  bool canBeTaken() { return other->canTakeKeyboard(); }
  bool becomesTakeable() {
    return waitUntil([this] { return canBeTaken(); });
  }

  /// The keys that have reached the other program since the shortcut.
  QList<xcb_keysym_t> strayKeys() {
    QList<xcb_keysym_t> keys = other->keys().sliced(4);
    keys.removeIf([](xcb_keysym_t key) { return key == XK_Super_L || key == XK_Shift_L; });
    return keys;
  }

  std::unique_ptr<OtherClient> other;
  std::optional<SuspendedProcess> busyManager;
};

TEST_F(KeyboardHoldTest, LettersTypedBeforeThePanelHasTheKeyboard_AllReachTheSearch) {
  pressWhileTheWindowManagerIsBusy();
  input().type(u"dep"_s);
  input().tap(XK_Return);
  busyManager.reset();
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_THAT(strayKeys(), testing::IsEmpty());
}

TEST_F(KeyboardHoldTest, ShortcutAgainBeforeThePanelHasTheKeyboard_HidesIt) {
  pressWhileTheWindowManagerIsBusy();
  pressShortcut();
  busyManager.reset();
  // While the panel is waited for or shown, keys are for the panel.
  EXPECT_TRUE(waitUntil([&] {
    input().type(u"x"_s);
    return strayKeys().contains(XK_x);
  }));
  EXPECT_FALSE(isShown());
}

TEST_F(KeyboardHoldTest, ShortcutOfAnotherProgramMeanwhile_ReachesItInTheEnd) {
  ASSERT_TRUE(other->holdKey(XK_F9, 0));
  pressWhileTheWindowManagerIsBusy();
  input().tap(XK_F9);
  busyManager.reset();
  EXPECT_TRUE(waitUntil([&] { return strayKeys() == QList<xcb_keysym_t>{XK_F9}; }));
}

TEST_F(KeyboardHoldTest, PanelThatWaitsForTheKeyboard_KeepsItFromOthers) {
  pressWhileTheWindowManagerIsBusy();
  EXPECT_FALSE(canBeTaken());
}

TEST_F(KeyboardHoldTest, PanelThatHasTheKeyboard_LeavesItFree) {
  showByShortcut();
  EXPECT_TRUE(becomesTakeable());
}

TEST_F(KeyboardHoldTest, PanelThatHidesBeforeItHasTheKeyboard_LeavesItFree) {
  pressWhileTheWindowManagerIsBusy();
  ASSERT_FALSE(canBeTaken());
  DesktopShell shell(session().bus()->address());
  EXPECT_EQ(shell.activateAction(u"toggle"_s), QString());
  EXPECT_TRUE(canBeTaken());
}

TEST_F(KeyboardHoldTest, WindowManagerThatNeverAnswers_GetsTheKeyboardFreedForTheWindowThatHasIt) {
  pressWhileTheWindowManagerIsBusy();
  ASSERT_FALSE(canBeTaken());
  input().type(u"ls"_s);
  EXPECT_TRUE(becomesTakeable());
  EXPECT_TRUE(waitUntil([&] { return strayKeys() == QList<xcb_keysym_t>{XK_l, XK_s}; }));
}

TEST_F(KeyboardHoldTest, ShortcutLetGoMeanwhile_DoesNotRepeat) {
  // A frozen keyboard does not notice that a key is let go, and this is sooner than a hold ends.
  ASSERT_EQ(QProcess::execute(u"xset"_s, {u"-display"_s, session().displayName(), u"r"_s, u"rate"_s,
                                          u"100"_s, u"50"_s}),
            0)
      << "Debian package x11-xserver-utils";
  pressWhileTheWindowManagerIsBusy();
  ASSERT_TRUE(becomesTakeable());
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return strayKeys().contains(XK_x); }));
  EXPECT_EQ(strayKeys(), QList<xcb_keysym_t>{XK_x});
  busyManager.reset();
  EXPECT_TRUE(becomesShown());
}

TEST_F(KeyboardHoldTest, ProgramThatHangs_LosesTheKeyboardAllTheSame) {
  pressWhileTheWindowManagerIsBusy();
  ASSERT_FALSE(canBeTaken());
  const SuspendedProcess hung(program().processId());
  EXPECT_TRUE(becomesTakeable());
}

TEST_F(KeyboardHoldTest, ProgramThatHasHung_HoldsTheKeyboardAgainAtTheNextPress) {
  {
    pressWhileTheWindowManagerIsBusy();
    const SuspendedProcess hung(program().processId());
    ASSERT_TRUE(becomesTakeable());
  }
  busyManager.reset();
  program().waitForPanel();
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  pressWhileTheWindowManagerIsBusy();
  EXPECT_FALSE(canBeTaken());
}

TEST_F(KeyboardHoldTest, ProgramThatDies_LeavesTheKeyboardFree) {
  pressWhileTheWindowManagerIsBusy();
  ASSERT_FALSE(canBeTaken());
  program().kill();
  EXPECT_TRUE(becomesTakeable());
}

TEST_F(KeyboardHoldTest, ProgramThatEnds_LeavesTheKeyboardFree) {
  pressWhileTheWindowManagerIsBusy();
  ASSERT_FALSE(canBeTaken());
  program().terminate();
  EXPECT_TRUE(canBeTaken());
}

TEST_F(KeyboardHoldTest, ShortcutHeldUntilAfterTheHold_StillTogglesOnce) {
  suspendTheWindowManager();
  input().press(XK_Super_L);
  input().press(XK_Shift_L);
  input().press(XK_space);
  ProgramPing(session().displayName(), program().panel()).waitForAnswer();
  busyManager.reset();
  program().waitForPanel();
  // Longer than the server waits with the first repeat.
  EXPECT_FALSE(waitUntil([&] { return !isShown(); }, std::chrono::milliseconds(900)));
  input().release(XK_space);
  input().release(XK_Shift_L);
  input().release(XK_Super_L);
  program().settle();
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
}

/// Real machines have many devices, and the server names a counter after each.
class KeyboardHoldAmongManyDevicesTest : public KeyboardHoldTest {
 protected:
  void SetUp() override {
    ASSERT_NO_FATAL_FAILURE(addMasterDevice());
    ASSERT_NO_FATAL_FAILURE(addMasterDevice());
    KeyboardHoldTest::SetUp();
  }

  /// Four devices in fact: a pointer and a keyboard, and those to drive them.
  void addMasterDevice() {
    struct AddMaster {
      xcb_input_add_master_t head;
      std::array<char, 4> name;
    };
    const AddMaster change{.head = {.type = XCB_INPUT_HIERARCHY_CHANGE_TYPE_ADD_MASTER,
                                    .len = sizeof change / 4,
                                    .name_len = sizeof change.name,
                                    .send_core = 1,
                                    .enable = 1},
                           .name = {'m', 'o', 'r', 'e'}};
    const XConnection &connection = session().windows().connection();
    const xcb_void_cookie_t request = xcb_input_xi_change_hierarchy_checked(
        connection, 1, reinterpret_cast<const xcb_input_hierarchy_change_t *>(&change));
    ASSERT_EQ(XReply<xcb_generic_error_t>(xcb_request_check(connection, request)), nullptr);
  }
};

TEST_F(KeyboardHoldAmongManyDevicesTest, LettersTypedBeforeThePanelHasTheKeyboard_ReachTheSearch) {
  pressWhileTheWindowManagerIsBusy();
  EXPECT_FALSE(canBeTaken());
  input().type(u"dep"_s);
  input().tap(XK_Return);
  busyManager.reset();
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_THAT(strayKeys(), testing::IsEmpty());
}

}  // namespace
}  // namespace lanternix
