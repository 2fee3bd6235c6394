#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class ToggleTest : public DesktopTest {};

TEST_F(ToggleTest, ShortcutOverTheShownPanel_HidesIt) {
  start(commands({u"Build"_s}));
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
}

TEST_F(ToggleTest, ShortcutOverTheHiddenPanel_ShowsIt) {
  startHidden(commands({u"Build"_s}));
  pressShortcut();
  EXPECT_TRUE(becomesShown());
}

TEST_F(ToggleTest, ShortcutTwiceInARow_EndsHidden) {
  startHidden(commands({u"Build"_s}));
  pressShortcut();
  pressShortcut();
  program().settle();
  EXPECT_FALSE(isShown());
}

TEST_F(ToggleTest, ManyPresses_NeitherLoseNorAddOne) {
  startHidden(commands({u"Build"_s}));
  for (int round = 0; round < 10; ++round) {
    pressShortcut();
    ASSERT_TRUE(becomesShown());
    pressShortcut();
    ASSERT_TRUE(becomesHidden());
  }
}

TEST_F(ToggleTest, ShortcutInAnotherProgram_DoesNotReachThatProgram) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  showByShortcut();
  EXPECT_FALSE(other->keys().contains(XK_space));
}

TEST_F(ToggleTest, ShortcutThatShows_TypesNothing) {
  startHidden(commands({u"Build"_s}));
  showByShortcut();
  // With a blank before it the query would match nothing.
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(ToggleTest, HidingByShortcut_ClearsTheSearch) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().type(u"Deploy"_s);
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
  EXPECT_FALSE(isMarked(u"Deploy"_s));
}

TEST_F(ToggleTest, StoredShortcut_TogglesInPlaceOfTheDefault) {
  // Control and option with K.
  session().home().writePreferences(
      R"ini(globalShortcut="@ByteArray({\"keyCode\":40,\"modifiers\":786432})")ini");
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow();
  pressShortcut();
  EXPECT_TRUE(waitUntil([&] { return other->keys().contains(XK_space); }));
  EXPECT_FALSE(isShown());
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(becomesShown());
}

TEST_F(ToggleTest, VariablesOfAWaylandSession_DoNotChangeAnXServersWays) {
  // As on a nested display that was started from such a session.
  session().home().set(u"WAYLAND_DISPLAY"_s, u"wayland-9"_s);
  session().home().set(u"XDG_SESSION_TYPE"_s, u"wayland"_s);
  startHidden(commands({u"Build"_s}));
  pressShortcut();
  EXPECT_TRUE(becomesShown());
  input().click({2, 2});
  EXPECT_TRUE(becomesHidden());
}

}  // namespace
}  // namespace lanternix
