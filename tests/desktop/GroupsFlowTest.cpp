#include "desktop/GroupsDragTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using State = AccessibilityBus::State;

/// How groups and items are made, ordered and removed.
class GroupsFlowTest : public GroupsDragTest {};

TEST_F(GroupsFlowTest, FromAnEmptyPanel_AGroupAndACommandAreMadeAndOpened) {
  start(SampleGroups());
  click(reader.find(window(u"Lanternix"_s), u"push button"_s, u"Open Settings"_s));
  requireSettings();

  click(button(u"Add Group"_s));
  const auto groupEditor = dialog(u"New Group"_s);
  input().type(u"Work"_s);
  input().tap(XK_Return);
  requireClosed(groupEditor);
  EXPECT_TRUE(becomesStored({u"Work"_s}));
  select(u"Work"_s);

  click(button(u"Add Item"_s));
  const auto itemEditor = dialog(u"New Item"_s);
  input().tap(XK_Tab, {XK_Shift_L});
  input().type(u"c"_s);  // as in Command
  input().tap(XK_Tab);
  input().type(u"Build"_s);
  input().tap(XK_Tab);
  input().type(marking(u"Build"_s));
  input().tap(XK_Return);
  requireClosed(itemEditor);
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Build"_s}));
  EXPECT_EQ(session().home().item(u"Build"_s)["type"_L1].toString(), u"command"_s);
  EXPECT_EQ(session().home().item(u"Build"_s)["path"_L1].toString(), marking(u"Build"_s));

  showByShortcut();
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(GroupsFlowTest, AnItemIsADirectory_UnlessAnotherTypeIsChosen) {
  openTwoGroups();
  select(u"Home"_s);
  click(button(u"Add Item"_s));
  const auto editor = dialog(u"New Item"_s);
  input().type(u"Sources"_s);
  input().tap(XK_Tab);
  input().type(u"/usr/src"_s);
  input().tap(XK_Return);
  requireClosed(editor);
  EXPECT_TRUE(becomesStored(u"Home"_s, {u"Sources"_s}));
  EXPECT_EQ(session().home().item(u"Sources"_s)["type"_L1].toString(), u"directory"_s);
  EXPECT_EQ(session().home().item(u"Sources"_s)["path"_L1].toString(), u"/usr/src"_s);
}

TEST_F(GroupsFlowTest, AnEditorLeftByEscape_MakesNothing) {
  openTwoGroups();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  input().type(u"Never"_s);
  input().tap(XK_Escape);
  requireClosed(editor);
  EXPECT_EQ(storedGroups(), (QStringList{u"Work"_s, u"Home"_s}));
}

TEST_F(GroupsFlowTest, ADoubleClick_EditsAndRenamesTheGroup) {
  openTwoGroups();
  const QPoint place = reader.geometry(row(u"Home"_s)).center();
  input().click(place);
  program().settle();  // two presses within one millisecond are no double click to the toolkit
  input().click(place);
  const auto editor = dialog(u"Edit Group"_s);
  input().tap(XK_a, {XK_Control_L});
  input().type(u"House"_s);
  input().tap(XK_Return);
  requireClosed(editor);
  EXPECT_TRUE(becomesStored({u"Work"_s, u"House"_s}));
}

TEST_F(GroupsFlowTest, AnItemDraggedOntoAGroup_MovesThere) {
  openTwoGroups();
  drag(grip(u"Notes"_s), onto(u"Home"_s));
  EXPECT_TRUE(becomesStored(u"Home"_s, {u"Notes"_s}));
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s, u"Plan"_s}));
}

TEST_F(GroupsFlowTest, AnItemDraggedBetweenOthers_GoesThere) {
  openTwoGroups();
  drag(grip(u"Plan"_s), above(u"Report"_s));
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Plan"_s, u"Report"_s, u"Notes"_s}));
}

TEST_F(GroupsFlowTest, AGroupDraggedAboveAnother_GoesThere) {
  openTwoGroups();
  drag(grip(u"Home"_s), above(u"Work"_s));
  EXPECT_TRUE(becomesStored({u"Home"_s, u"Work"_s}));
}

TEST_F(GroupsFlowTest, Escape_EndsADragAndChangesNothing) {
  openTwoGroups();
  dragAndHold(grip(u"Notes"_s), onto(u"Home"_s));
  input().tap(XK_Escape);
  program().settle();
  input().releaseButton();
  select(u"Home"_s);  // the mouse is as it was
  EXPECT_TRUE(areSettingsShown());
  EXPECT_EQ(storedItems(u"Work"_s), (QStringList{u"Report"_s, u"Notes"_s, u"Plan"_s}));
}

TEST_F(GroupsFlowTest, AltAndTheArrows_MoveTheSelectedItem) {
  openTwoGroups();
  select(u"Report"_s);
  input().tap(XK_Down, {XK_Alt_L});
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Notes"_s, u"Report"_s, u"Plan"_s}));
}

TEST_F(GroupsFlowTest, F2_RenamesTheSelectedItem) {
  openTwoGroups();
  select(u"Notes"_s);
  input().tap(XK_F2);
  const auto editor = dialog(u"Edit Item"_s);
  input().tap(XK_a, {XK_Control_L});
  input().type(u"Minutes"_s);
  input().tap(XK_Return);
  requireClosed(editor);
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s, u"Minutes"_s, u"Plan"_s}));
}

TEST_F(GroupsFlowTest, TheKeyboardAlone_MovesAnItemByItsMenu) {
  openTwoGroups();
  select(u"Notes"_s);
  const auto areOpen = [this](qsizetype count) {
    return [this, count] { return session().windows().menus(u"lanternix"_s).size() == count; };
  };
  input().tap(XK_Menu);
  require(u"the item's menu"_s, areOpen(1));
  for (int entry = 0; entry < 3; ++entry) {  // past "Edit Item..." and "Duplicate"
    input().tap(XK_Down);
  }
  input().tap(XK_Right);
  require(u"the menu of the groups"_s, areOpen(2));
  input().tap(XK_Return);
  EXPECT_TRUE(becomesStored(u"Home"_s, {u"Notes"_s}));
}

TEST_F(GroupsFlowTest, AKeyboardWithoutAMenuKey_DuplicatesAnItemByItsMenu) {
  openTwoGroups();
  select(u"Notes"_s);
  input().tap(XK_F10, {XK_Shift_L});
  require(u"the item's menu"_s,
          [this] { return session().windows().menus(u"lanternix"_s).size() == 1; });
  input().tap(XK_Down);
  input().tap(XK_Down);
  input().tap(XK_Return);
  EXPECT_TRUE(waitUntil([&] { return storedItems(u"Work"_s).size() == 4; }));
}

TEST_F(GroupsFlowTest, EscapeAndReturn_KeepTheItemThatDeleteAskedAbout) {
  openTwoGroups();
  select(u"Notes"_s);
  for (const xcb_keysym_t key : {xcb_keysym_t{XK_Escape}, xcb_keysym_t{XK_Return}}) {
    input().tap(XK_Delete);
    const auto question = dialog(u"Delete \"Notes\"?"_s);
    input().tap(key);
    requireClosed(question);
    program().settle();
    EXPECT_EQ(storedItems(u"Work"_s), (QStringList{u"Report"_s, u"Notes"_s, u"Plan"_s}));
  }
}

TEST_F(GroupsFlowTest, TheQuestionsOtherButton_DeletesTheItem) {
  openTwoGroups();
  select(u"Notes"_s);
  input().tap(XK_Delete);
  const auto question = dialog(u"Delete \"Notes\"?"_s);
  tabTo(reader.find(question, u"push button"_s, u"Delete Item"_s));
  input().tap(XK_space);
  requireClosed(question);
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s, u"Plan"_s}));
}

TEST_F(GroupsFlowTest, TheQuestionsOtherButton_DeletesTheGroupWithItsItems) {
  openTwoGroups();
  input().tap(XK_Delete);
  const auto question = dialog(u"Delete \"Work\"?"_s);
  EXPECT_EQ(reader.description(question),
            u"This will permanently delete the group and 3 items inside it."_s);
  tabTo(reader.find(question, u"push button"_s, u"Delete Group"_s));
  input().tap(XK_space);
  requireClosed(question);
  EXPECT_TRUE(becomesStored({u"Home"_s}));
  EXPECT_TRUE(waitUntil([&] { return session().home().item(u"Report"_s).isEmpty(); }));
}

}  // namespace
}  // namespace lanternix
