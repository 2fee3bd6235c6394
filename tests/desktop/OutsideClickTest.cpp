#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// A spot of the bare desktop, clear of the panel and of the other windows.
constexpr QPoint bareDesktop{1200, 860};
constexpr QRect leftOfThePanel{40, 500, 200, 200};

class OutsideClickTest : public DesktopTest {};

TEST_F(OutsideClickTest, LeftPressOnAnotherWindow_HidesAndReachesThatWindow) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow(leftOfThePanel);
  ASSERT_TRUE(isShown());
  input().click(leftOfThePanel.center());
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return other->buttons() == QList<quint8>{1}; }));
}

TEST_F(OutsideClickTest, RightPressOnAnotherWindow_HidesAndReachesThatWindow) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow(leftOfThePanel);
  input().click(leftOfThePanel.center(), 3);
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return other->buttons() == QList<quint8>{3}; }));
}

TEST_F(OutsideClickTest, PressOnTheBareDesktop_Hides) {
  start(commands({u"Build"_s}));
  input().click(bareDesktop);
  EXPECT_TRUE(becomesHidden());
}

TEST_F(OutsideClickTest, PressAfterTheSecondShow_Hides) {
  startHidden(commands({u"Build"_s}));
  showByShortcut();
  input().click(bareDesktop);
  EXPECT_TRUE(becomesHidden());
}

TEST_F(OutsideClickTest, OutsidePress_ClearsTheSearch) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().type(u"Deploy"_s);
  input().click(bareDesktop);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(OutsideClickTest, PressInsideThePanel_DoesNotHideIt) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().click(onPanel({28, 62}));
  // Had the press hidden the panel, these keys would not reach it.
  input().type(u"Deploy"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(OutsideClickTest, PressInsideWithALeapAwayAfterIt_DoesNotHide) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().moveTo(onPanel({300, 62}));
  input().pressButton();
  input().moveTo(bareDesktop);
  input().releaseButton();
  program().settle();
  EXPECT_TRUE(isShown());
}

TEST_F(OutsideClickTest, MiddlePressAndWheel_DoNotHide) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  for (const quint8 button : {quint8{2}, quint8{4}, quint8{5}}) {
    input().click(bareDesktop, button);
  }
  input().type(u"Deploy"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(OutsideClickTest, LossOfTheKeyboardAlone_DoesNotHide) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow(leftOfThePanel);
  input().type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return other->keys() == QList<xcb_keysym_t>{XK_x}; }));
  EXPECT_TRUE(isShown());
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
}

}  // namespace
}  // namespace lanternix
