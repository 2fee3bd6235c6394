#include "desktop/WindowManagerTest.h"
#include "support/BusyScreen.h"
#include "support/ProgramPing.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class WindowManagerFocusTest : public WindowManagerTest {
 protected:
  /// What of the search and of the shortcut has reached \p client after all.
  static QList<xcb_keysym_t> letters(OtherClient &client) {
    QList<xcb_keysym_t> keys = client.keys().sliced(4);
    keys.removeIf([](xcb_keysym_t key) { return key == XK_Super_L || key == XK_Shift_L; });
    return keys;
  }

  /// Opens the command "Deploy" by the shortcut, letters and Return, without looking at the screen.
  void workBlindly() {
    pressShortcut();
    waitAsAQuickHand();
    if (!isForTheTable()) {
      // When a loaded machine lets the program read the press is not what is asked here.
      ProgramPing(session().displayName(), program().panel()).waitForAnswer();
    }
    input().type(u"dep"_s);
    input().tap(XK_Return);
  }
};

TEST_F(WindowManagerFocusTest, Panel_LiesAboveAFullScreenWindow) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow({0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  ASSERT_TRUE(waitUntil([&] {
    return session().windows().geometry(other->window()).size() == session().screenSize();
  }));
  showByShortcut();
  EXPECT_TRUE(
      waitUntil([&] { return session().windows().isAbove(program().panel(), other->window()); }));
  // Where windows lie side by side, a full-screen one gives way to any that floats.
  if (!manager().tiles()) {
    EXPECT_EQ(session().windows().geometry(other->window()).size(), session().screenSize());
  }
}

TEST_F(WindowManagerFocusTest, Panel_TakesTheKeyboardFromABusyTerminal) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto terminal = session().openOtherWindow();
  const BusyScreen screen(session().displayName(), terminal->window());
  workIn(*terminal);
  showByShortcut();
  EXPECT_TRUE(waitUntil([&] { return session().windows().activeWindow() == program().panel(); }));
  EXPECT_TRUE(waitUntil([&] { return !terminal->hasFocus(); }));
}

TEST_F(WindowManagerFocusTest, Panel_TakesTheKeyboardFromAFullScreenWindow) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow({0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  workIn(*other);
  showByShortcut();
  EXPECT_TRUE(waitUntil([&] { return session().windows().activeWindow() == program().panel(); }));
  EXPECT_TRUE(waitUntil([&] { return !other->hasFocus(); }));
}

TEST_F(WindowManagerFocusTest, LettersTypedAtOnceOverABusyTerminal_AllReachTheSearch) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto terminal = session().openOtherWindow();
  const BusyScreen screen(session().displayName(), terminal->window());
  workIn(*terminal);
  workBlindly();
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_THAT(letters(*terminal), testing::IsEmpty());
}

TEST_F(WindowManagerFocusTest, LettersTypedAtOnceOverAFullScreenWindow_AllReachTheSearch) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow({0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  workIn(*other);
  workBlindly();
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_THAT(letters(*other), testing::IsEmpty());
}

TEST_F(WindowManagerFocusTest, HidingByEscape_GivesTheKeyboardBack) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  workIn(*other);
  showByShortcut();
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return other->hasFocus(); }));
}

TEST_F(WindowManagerFocusTest, HeldShortcut_TogglesOnceAndTypesNothing) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  workIn(*other);
  input().press(XK_Super_L);
  input().press(XK_Shift_L);
  input().press(XK_space);
  program().waitForPanel();
  // Longer than the server waits with the first repeat.
  waitUntil([] { return false; }, std::chrono::milliseconds(900));
  EXPECT_TRUE(isShown());
  input().release(XK_space);
  input().release(XK_Shift_L);
  input().release(XK_Super_L);
  // With a blank before it the query would match nothing.
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_THAT(letters(*other), testing::IsEmpty());
}

TEST_F(WindowManagerFocusTest, Panel_ComesUpOnWhicheverDesktopIsShown) {
  startHidden(commands({u"Build"_s}));
  manager().switchToDesktop(1);
  const auto other = session().openOtherWindow();
  workIn(*other);
  showByShortcut();
  EXPECT_TRUE(session().windows().isViewable(other->window()));
  EXPECT_TRUE(isShown());
}

TEST_F(WindowManagerFocusTest, ShownPanel_IsOnEveryDesktop) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  manager().switchToDesktop(1);
  ASSERT_TRUE(waitUntil([&] { return !session().windows().isViewable(other->window()); }));
  program().settle();
  EXPECT_TRUE(isShown());
  manager().switchToDesktop(0);
  ASSERT_TRUE(waitUntil([&] { return session().windows().isViewable(other->window()); }));
  program().settle();
  EXPECT_TRUE(isShown());
}

}  // namespace
}  // namespace lanternix
