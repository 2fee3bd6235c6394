#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class FocusTest : public DesktopTest {};

TEST_F(FocusTest, TypingInAnotherProgram_GoesOnInThePanelAfterTheShortcut) {
  startHidden(commands({u"Build"_s, u"Deploy"_s}));
  const auto other = session().openOtherWindow();
  // Each key moves the time of the user's last action there forward, which is what a window manager
  // that guards against focus stealing compares.
  input().type(u"hello"_s);
  ASSERT_TRUE(waitUntil([&] { return other->keys().size() == 5; }));

  showByShortcut();
  input().type(u"dep"_s);
  input().tap(XK_Return);

  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_FALSE(other->keys().contains(XK_d));
}

TEST_F(FocusTest, WindowManager_CountsThePanelAsActive) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  showByShortcut();
  EXPECT_TRUE(waitUntil([&] { return session().windows().activeWindow() == program().panel(); }));
}

TEST_F(FocusTest, FullScreenWindow_LiesUnderThePanel) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow({0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  showByShortcut();
  EXPECT_TRUE(
      waitUntil([&] { return session().windows().isAbove(program().panel(), other->window()); }));
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(FocusTest, Hiding_GivesTheKeyboardBack) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  showByShortcut();
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return other->hasFocus(); }));
}

TEST_F(FocusTest, PressOnTheUnfocusedPanel_TakesTheKeyboardBack) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow({40, 500, 200, 200});
  ASSERT_FALSE(panelHasFocus());
  input().click(onPanel({300, 62}));
  EXPECT_TRUE(waitUntil([&] { return panelHasFocus(); }));
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(FocusTest, AnotherDesktop_ShowsThePanelThere) {
  startHidden(commands({u"Build"_s}));
  session().windowManager()->switchToDesktop(1);
  const auto other = session().openOtherWindow();
  showByShortcut();
  EXPECT_TRUE(session().windows().isViewable(other->window()));
  EXPECT_TRUE(isShown());
}

TEST_F(FocusTest, SwitchOfTheDesktop_TakesThePanelAlong) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  session().windowManager()->switchToDesktop(1);
  ASSERT_TRUE(waitUntil([&] { return !session().windows().isViewable(other->window()); }));
  EXPECT_TRUE(isShown());
}

}  // namespace
}  // namespace lanternix
