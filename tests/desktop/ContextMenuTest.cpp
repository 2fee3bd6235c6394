#include "desktop/MenuTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// A spot of the bare desktop, clear of the panel and of any menu.
constexpr QPoint bareDesktop{1200, 860};

class ContextMenuTest : public MenuTest {};

// --- Opening it
// -----------------------------------------------------------------------------------

TEST_F(ContextMenuTest, RightClick_OpensTheMenuAtThePointer) {
  startWithCommands();
  const QPoint pointer = onPanel(row(1).center());
  input().click(pointer, 3);
  program().settle();
  ASSERT_TRUE(menuOpens());
  EXPECT_EQ(menuGeometry().topLeft(), pointer);
  EXPECT_TRUE(isShown());
}

TEST_F(ContextMenuTest, MenuKey_OpensTheMenuBelowTheSelectedName) {
  startWithCommands();
  input().tap(XK_Down);
  input().tap(XK_Menu);
  ASSERT_TRUE(menuOpens());
  const QRect selected = row(1).translated(panelGeometry().topLeft());
  EXPECT_NEAR(menuGeometry().top(), selected.bottom(), 1);
  EXPECT_GT(menuGeometry().left(), selected.left());
  EXPECT_LT(menuGeometry().left(), selected.center().x());
}

TEST_F(ContextMenuTest, ShiftF10_OpensTheMenuBelowTheSelectedName) {
  startWithCommands();
  input().tap(XK_F10, {XK_Shift_L});
  ASSERT_TRUE(menuOpens());
  EXPECT_NEAR(menuGeometry().top(), row(0).translated(panelGeometry().topLeft()).bottom(), 1);
}

TEST_F(ContextMenuTest, MenuKeyForARowOutOfSight_BringsItIntoSight) {
  QStringList names;
  for (int i = 0; i < 40; ++i) {
    names.append(u"item%1"_s.arg(i));
  }
  start(commands(names));
  selectNextRow();
  input().moveTo(panelGeometry().center());
  const QImage top = settledPicture();
  for (int step = 0; step < 30; ++step) {
    input().pressButton(5);
    input().releaseButton(5);
  }
  ASSERT_TRUE(waitUntil([&] { return picture() != top; }));
  input().tap(XK_Menu);
  ASSERT_TRUE(menuOpens());
  EXPECT_TRUE(panelGeometry().contains(menuGeometry().topLeft()));
}

TEST_F(ContextMenuTest, RightClickNearTheScreensCorner_KeepsTheMenuOnTheScreen) {
  session().home().writePreferences("panelWidth=1280\npanelHeight=860");
  QStringList names;
  for (int i = 0; i < 40; ++i) {
    names.append(u"item%1"_s.arg(i));
  }
  start(commands(names));
  const QRect panel = panelGeometry();
  input().click(panel.bottomRight() - QPoint(30, 60), 3);
  ASSERT_TRUE(menuOpens());
  EXPECT_TRUE(QRect(QPoint(), session().screenSize()).contains(menuGeometry()));
}

TEST_F(ContextMenuTest, RightClickOnAHeader_OpensNothing) {
  startWithCommands();
  input().click(onPanel({row(0).center().x(), row(0).top() - 12}), 3);
  program().settle();
  EXPECT_TRUE(menus().isEmpty());
}

TEST_F(ContextMenuTest, MenuKeyWithNothingSelected_LeavesThePanelUsable) {
  start(commands({u"first"_s, u"second"_s}));
  input().tap(XK_Menu);
  program().settle();
  // The search field may show a menu of its own.
  if (!menus().isEmpty()) {
    input().tap(XK_Escape);
  }
  ASSERT_TRUE(menuCloses());
  input().type(u"second"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

// --- Leaving it
// -----------------------------------------------------------------------------------

TEST_F(ContextMenuTest, Escape_ClosesTheMenuOnly) {
  startWithCommands();
  openMenuOf(1);
  input().tap(XK_Escape);
  ASSERT_TRUE(menuCloses());
  program().settle();
  EXPECT_TRUE(isShown());
  input().tap(XK_Escape);
  EXPECT_TRUE(becomesHidden());
}

TEST_F(ContextMenuTest, ReturnWithNoEntryChosen_OpensNoItem) {
  startWithCommands();
  input().tap(XK_Menu);
  ASSERT_TRUE(menuOpens());
  input().tap(XK_Return);
  program().settle();
  EXPECT_TRUE(isShown());
  EXPECT_FALSE(isMarked(u"first"_s));
}

TEST_F(ContextMenuTest, ArrowsInTheMenu_LeaveTheSelection) {
  startWithCommands();
  input().tap(XK_Menu);
  ASSERT_TRUE(menuOpens());
  input().tap(XK_Down);
  input().tap(XK_Down);
  input().tap(XK_Escape);
  ASSERT_TRUE(menuCloses());
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
}

TEST_F(ContextMenuTest, LettersInTheMenu_DoNotReachTheSearch) {
  startWithCommands();
  input().tap(XK_Menu);
  ASSERT_TRUE(menuOpens());
  input().type(u"third"_s);
  input().tap(XK_Escape);
  ASSERT_TRUE(menuCloses());
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
}

TEST_F(ContextMenuTest, PressOnAnotherRow_ClosesTheMenuAndOpensNothing) {
  startWithCommands();
  openMenuOf(0);
  input().click(onPanel(row(2).center() - QPoint(200, 0)));
  ASSERT_TRUE(menuCloses());
  program().settle();
  EXPECT_TRUE(isShown());
  EXPECT_FALSE(isMarked(u"third"_s));
}

TEST_F(ContextMenuTest, PressOutsideThePanel_ClosesTheMenuOnlyAndTheNextOneHides) {
  startWithCommands();
  openMenuOf(1);
  input().click(bareDesktop);
  ASSERT_TRUE(menuCloses());
  program().settle();
  EXPECT_TRUE(isShown());
  input().click(bareDesktop);
  EXPECT_TRUE(becomesHidden());
}

TEST_F(ContextMenuTest, PressOutsideAfterAVisitToTheMenu_ClosesTheMenuOnly) {
  startWithCommands();
  openMenuOf(1);
  input().moveTo(menuGeometry().center());
  input().moveTo(menuGeometry().center() + QPoint(4, 4));
  program().settle();
  input().click(bareDesktop);
  ASSERT_TRUE(menuCloses());
  program().settle();
  EXPECT_TRUE(isShown());
}

TEST_F(ContextMenuTest, PanelShownAfterAMenu_TakesKeys) {
  startWithCommands();
  openMenuOf(1);
  input().tap(XK_Escape);
  ASSERT_TRUE(menuCloses());
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().type(u"third"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"third"_s));
}

}  // namespace
}  // namespace lanternix
