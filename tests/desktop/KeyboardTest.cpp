#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class KeyboardTest : public DesktopTest {
 protected:
  void startWithThree() { start(commands({u"first"_s, u"second"_s, u"third"_s})); }
};

TEST_F(KeyboardTest, Escape_HidesAndClearsTheSearch) {
  startWithThree();
  input().type(u"third"_s);
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
  EXPECT_FALSE(isMarked(u"third"_s));
}

TEST_F(KeyboardTest, Escape_ClearsTheSelection) {
  startWithThree();
  input().tap(XK_Up);
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
  EXPECT_FALSE(isMarked(u"third"_s));
}

TEST_F(KeyboardTest, EscapeWhileHidden_ReachesTheOtherProgram) {
  startHidden(commands({u"first"_s}));
  const auto other = session().openOtherWindow();
  input().tap(XK_Escape);
  EXPECT_TRUE(waitUntil([&] { return other->keys() == QList<xcb_keysym_t>{XK_Escape}; }));
}

TEST_F(KeyboardTest, Down_SelectsTheFirstRow) {
  startWithThree();
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
}

TEST_F(KeyboardTest, DownTwice_SelectsTheSecondRow) {
  startWithThree();
  input().tap(XK_Down);
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

TEST_F(KeyboardTest, DownPastTheEnd_WrapsToTheFirstRow) {
  startWithThree();
  for (int press = 0; press < 4; ++press) {
    input().tap(XK_Down);
  }
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
}

TEST_F(KeyboardTest, Up_SelectsTheLastRow) {
  startWithThree();
  input().tap(XK_Up);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"third"_s));
}

TEST_F(KeyboardTest, UpFromTheFirstRow_WrapsToTheLast) {
  startWithThree();
  input().tap(XK_Down);
  input().tap(XK_Up);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"third"_s));
}

TEST_F(KeyboardTest, ReturnWithoutASelection_OpensTheFirstRow) {
  startWithThree();
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
  EXPECT_TRUE(becomesHidden());
}

TEST_F(KeyboardTest, ReturnWithShift_OpensAllTheSame) {
  startWithThree();
  input().tap(XK_Return, {XK_Shift_L});
  EXPECT_TRUE(becomesMarked(u"first"_s));
}

TEST_F(KeyboardTest, ReturnOverNoMatch_DoesNothing) {
  startWithThree();
  input().type(u"zz"_s);
  input().tap(XK_Return);
  input().tap(XK_BackSpace);
  input().tap(XK_BackSpace);
  input().type(u"second"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
  EXPECT_FALSE(isMarked(u"first"_s));
}

TEST_F(KeyboardTest, ArrowsOnAnEmptyList_DoNothing) {
  start();
  input().tap(XK_Down);
  input().tap(XK_Up);
  input().tap(XK_Return);
  input().tap(XK_Escape);
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(program().isRunning());
}

TEST_F(KeyboardTest, Arrows_LeaveTheCaretOfTheSearchFieldWhereItIs) {
  // An arrow that reached the field would put the last letter in front of the others.
  start(commands({u"abc"_s, u"bca"_s}));
  input().type(u"bc"_s);
  input().tap(XK_Up);
  input().type(u"a"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"bca"_s));
  EXPECT_FALSE(isMarked(u"abc"_s));
}

TEST_F(KeyboardTest, LettersAfterTab_AreSearchedFor) {
  startWithThree();
  input().tap(XK_Tab);
  input().type(u"second"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

TEST_F(KeyboardTest, ReturnAfterTabAndAnArrow_OpensTheItem) {
  start(commands({u"first"_s, u"second"_s}));
  input().tap(XK_Tab);
  input().tap(XK_Down);
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

TEST_F(KeyboardTest, TabAndReturn_OpenTheSettings) {
  startWithThree();
  input().tap(XK_Tab);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([this] {
    const auto settings = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return settings.has_value() && session().windows().hasFocus(*settings);
  }));
  EXPECT_FALSE(isMarked(u"first"_s));
}

TEST_F(KeyboardTest, Comma_IsTyped) {
  start(commands({u"plain"_s, u"with, comma"_s}));
  input().type(u","_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"with, comma"_s));
}

TEST_F(KeyboardTest, CommaWithCommand_HidesThePanel) {
  startWithThree();
  input().tap(XK_comma, {XK_Super_L});
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(program().isRunning());
}

TEST_F(KeyboardTest, CommaWithControl_HidesThePanel) {
  startWithThree();
  input().tap(XK_comma, {XK_Control_L});
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(program().isRunning());
}

TEST_F(KeyboardTest, CommaWithCommand_IsNotTypedIntoTheNextSearch) {
  startWithThree();
  input().tap(XK_comma, {XK_Super_L});
  ASSERT_TRUE(becomesHidden());
  // The settings come instead, and take the keyboard.
  ASSERT_TRUE(waitUntil([this] {
    const auto settings = session().windows().find(u"lanternix"_s, u"Lanternix Settings"_s);
    return settings.has_value() && session().windows().hasFocus(*settings);
  }));
  showByShortcut();
  input().type(u"second"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

}  // namespace
}  // namespace lanternix
