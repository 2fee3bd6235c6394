#include "views/GroupEditorViewTest.h"

#include "Views/Controls/ChoiceCell.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>

using namespace Qt::StringLiterals;

namespace lanternix {

TEST_F(GroupEditorViewTest, ANewGroup_StartsWithAnEmptyNameAFolderAndBlue) {
  const GroupEditorView *editor = open();
  EXPECT_EQ(editor->windowTitle(), u"New Group"_s);
  EXPECT_EQ(nameField(*editor)->text(), QString());
  EXPECT_EQ(nameField(*editor)->placeholderText(), u"Group Name"_s);
  EXPECT_EQ(grid(*editor, u"Icon"_s)->currentIndex(), 0);
  EXPECT_EQ(grid(*editor, u"Color"_s)->currentIndex(), 4);
  EXPECT_NE(button(*editor, u"Add Group"_s), nullptr);
}

TEST_F(GroupEditorViewTest, TheSheet_Is420By480AndShowsItsTextsInOrder) {
  const GroupEditorView *editor = open();
  EXPECT_EQ(editor->size(), QSize(420, 480));
  EXPECT_EQ(texts(*editor), (QStringList{u"New Group"_s, u"Icon"_s, u"Color"_s}));
}

TEST_F(GroupEditorViewTest, Typing_StartsInTheName) {
  GroupEditorView *editor = open();
  type(*editor, u"Work"_s);
  EXPECT_EQ(nameField(*editor)->text(), u"Work"_s);
}

TEST_F(GroupEditorViewTest, ANameOfBlanksAndTabs_CannotBeConfirmed) {
  const GroupEditorView *editor = open();
  EXPECT_FALSE(button(*editor, u"Add Group"_s)->isEnabled());
  nameField(*editor)->setText(u" \t  "_s);
  EXPECT_FALSE(button(*editor, u"Add Group"_s)->isEnabled());
  nameField(*editor)->setText(u" a "_s);
  EXPECT_TRUE(button(*editor, u"Add Group"_s)->isEnabled());
}

TEST_F(GroupEditorViewTest, ReturnOnANameOfBlanks_LeavesTheSheetOpen) {
  GroupEditorView *editor = open();
  type(*editor, u"   "_s);
  press(*editor, Qt::Key_Return);
  EXPECT_TRUE(editor->isVisible());
  EXPECT_TRUE(state->groups().isEmpty());
}

TEST_F(GroupEditorViewTest, Return_AddsAGroupWithTheTrimmedName) {
  QPointer<GroupEditorView> editor = open();
  type(*editor, u"  Work  "_s);
  press(*editor, Qt::Key_Return);
  ASSERT_EQ(state->groups().size(), 1);
  const PathGroup &added = state->groups().first();
  EXPECT_EQ(added.name, u"Work"_s);
  EXPECT_EQ(added.iconName, u"folder"_s);
  EXPECT_EQ(added.colorName, u"blue"_s);
  EXPECT_EQ(added.order, 0);
  EXPECT_TRUE(added.isExpanded);
  EXPECT_FALSE(added.id.isNull());
  EXPECT_EQ(savedData()->groups, state->groups());
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
}

TEST_F(GroupEditorViewTest, Escape_ClosesTheSheetWithoutChanges) {
  QPointer<GroupEditorView> editor = open();
  type(*editor, u"Work"_s);
  press(*editor, Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
  EXPECT_TRUE(state->groups().isEmpty());
}

TEST_F(GroupEditorViewTest, Cancel_ClosesTheSheetWithoutChanges) {
  QPointer<GroupEditorView> editor = open();
  type(*editor, u"Work"_s);
  button(*editor, u"Cancel"_s)->click();
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
  EXPECT_TRUE(state->groups().isEmpty());
}

TEST_F(GroupEditorViewTest, Editing_KeepsIdOrderAndFolding) {
  PathGroup group = foldedGroup(u"Work"_s, 7);
  group.iconName = u"star"_s;
  group.colorName = u"pink"_s;
  state = makeState({group}, {});
  const GroupEditorView *editor = open(group);
  EXPECT_EQ(editor->windowTitle(), u"Edit Group"_s);
  EXPECT_EQ(grid(*editor, u"Icon"_s)->currentIndex(), 12);
  EXPECT_EQ(grid(*editor, u"Color"_s)->currentIndex(), 6);
  nameField(*editor)->setText(u"\tPlay "_s);
  button(*editor, u"Save"_s)->click();
  group.name = u"Play"_s;
  EXPECT_EQ(state->groups(), QList{group});
}

TEST_F(GroupEditorViewTest, AnIconAndAColourThatAreNoChoices_AreKept) {
  PathGroup group = this->group(u"Work"_s);
  group.iconName = u"sparkles"_s;
  group.colorName = u"mauve"_s;
  state = makeState({group}, {});
  GroupEditorView *editor = open(group);
  EXPECT_EQ(grid(*editor, u"Icon"_s)->currentIndex(), -1);
  EXPECT_EQ(grid(*editor, u"Color"_s)->currentIndex(), -1);
  press(*editor, Qt::Key_Tab);
  press(*editor, Qt::Key_Tab);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->groups(), QList{group});
}

TEST_F(GroupEditorViewTest, AGroupFoldedInThePanelMeanwhile_StaysFolded) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  const GroupEditorView *editor = open(group);
  state->toggleGroup(group.id);
  button(*editor, u"Save"_s)->click();
  EXPECT_FALSE(state->groups().first().isExpanded);
}

TEST_F(GroupEditorViewTest, AGroupDeletedMeanwhile_StaysDeleted) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  QPointer<GroupEditorView> editor = open(group);
  state->deleteGroup(group.id);
  EXPECT_FALSE(saves([&] { button(*editor, u"Save"_s)->click(); }));
  EXPECT_TRUE(state->groups().isEmpty());
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
}

TEST_F(GroupEditorViewTest, PastedLineBreaks_BecomeBlanks) {
  GroupEditorView *editor = open();
  QApplication::clipboard()->setText(u"One\nTwo\r\nThree\n"_s);
  press(*editor, Qt::Key_V, Qt::ControlModifier);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->groups().first().name, u"One Two  Three"_s);
}

TEST_F(GroupEditorViewTest, AStoredNameWithALineBreak_SurvivesAnotherColour) {
  const PathGroup group = this->group(u"One\nTwo"_s);
  state = makeState({group}, {});
  const GroupEditorView *editor = open(group);
  grid(*editor, u"Color"_s)->cells()[0]->click();
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->groups().first().name, u"One\nTwo"_s);
  EXPECT_EQ(state->groups().first().colorName, u"red"_s);
}

TEST_F(GroupEditorViewTest, ANameOf100000Characters_IsKeptWhole) {
  const PathGroup group = this->group(QString(100'000, u'x'));
  state = makeState({group}, {});
  GroupEditorView *editor = open(group);
  EXPECT_FALSE(editor->grab().isNull());
  press(*editor, Qt::Key_End);
  type(*editor, u"y"_s);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->groups().first().name, QString(100'000, u'x') + u'y');
}

}  // namespace lanternix
