#include "Views/Style/AccentFill.h"
#include "views/ItemEditorViewTest.h"

#include <QtGui/QClipboard>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class ItemEditorPathTest : public ItemEditorViewTest {};

}  // namespace

TEST_F(ItemEditorPathTest, WithoutAPreselectedGroup_OneHasToBeChosen) {
  const ItemEditorView *editor = open({}, {});
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentIndex(), -1);
  fill(*editor, u"Name"_s, u"/tmp"_s);
  EXPECT_FALSE(button(*editor, u"Add Item"_s)->isEnabled());
  picker(*editor, u"Group"_s)->setCurrentIndex(0);
  EXPECT_TRUE(button(*editor, u"Add Item"_s)->isEnabled());
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().groupId, play.id);
}

TEST_F(ItemEditorPathTest, ALongStoredPath_IsShownFromItsBeginning) {
  PathItem item = typed(ItemType::file);
  item.path = u"/tmp"_s + u"/directory"_s.repeated(40);
  QLineEdit *path = field(*openEditing(item), u"Path"_s);
  EXPECT_EQ(path->cursorPositionAt(QPoint(0, path->height() / 2)), 0);
}

TEST_F(ItemEditorPathTest, SelectedText_IsDrawnAsOnEveryAccentGround) {
  const QLineEdit *name = field(*openNew(), u"Name"_s);
  const AccentFill fill = AccentFill::of(QApplication::palette());
  EXPECT_EQ(name->palette().color(QPalette::HighlightedText), fill.text);
  EXPECT_EQ(name->palette().color(QPalette::Highlight), fill.ground);
}

TEST_F(ItemEditorPathTest, BrowsingForADirectory_AsksForDirectoriesOnlyFromThePresentPath) {
  const ItemEditorView *editor = openNew();
  field(*editor, u"Path"_s)->setText(u" /tmp "_s);
  button(*editor, u"Browse..."_s)->click();
  ASSERT_EQ(fileChooser.requests.size(), 1);
  EXPECT_EQ(fileChooser.requests.first().kind, FileChooser::Kind::directory);
  EXPECT_EQ(fileChooser.requests.first().start, u"/tmp"_s);
}

TEST_F(ItemEditorPathTest, BrowsingForAFile_AsksForAnyFile) {
  const ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(1);
  button(*editor, u"Browse..."_s)->click();
  ASSERT_EQ(fileChooser.requests.size(), 1);
  EXPECT_EQ(fileChooser.requests.first().kind, FileChooser::Kind::file);
  EXPECT_TRUE(fileChooser.requests.first().nameFilters.isEmpty());
}

TEST_F(ItemEditorPathTest, AChosenPath_NamesAnItemWithoutAName) {
  const ItemEditorView *editor = openNew();
  field(*editor, u"Name"_s)->setText(u" \t"_s);
  fileChooser.answer = u"/home/someone/Projects"_s;
  button(*editor, u"Browse..."_s)->click();
  EXPECT_EQ(field(*editor, u"Path"_s)->text(), u"/home/someone/Projects"_s);
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), u"Projects"_s);
  EXPECT_TRUE(button(*editor, u"Add Item"_s)->isEnabled());
}

TEST_F(ItemEditorPathTest, AChosenPath_LeavesATypedNameAlone) {
  const ItemEditorView *editor = openNew();
  field(*editor, u"Name"_s)->setText(u"Mine"_s);
  fileChooser.answer = u"/home/someone/notes.txt"_s;
  button(*editor, u"Browse..."_s)->click();
  EXPECT_EQ(field(*editor, u"Path"_s)->text(), u"/home/someone/notes.txt"_s);
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), u"Mine"_s);
}

TEST_F(ItemEditorPathTest, TheNameOfAChosenFile_KeepsItsExtension) {
  const ItemEditorView *editor = openNew();
  fileChooser.answer = u"/home/someone/notes.tar.gz"_s;
  button(*editor, u"Browse..."_s)->click();
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), u"notes.tar.gz"_s);
}

TEST_F(ItemEditorPathTest, TheRootDirectory_IsNamedByItsPath) {
  const ItemEditorView *editor = openNew();
  fileChooser.answer = u"/"_s;
  button(*editor, u"Browse..."_s)->click();
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), u"/"_s);
}

TEST_F(ItemEditorPathTest, AChosenPathWithALineBreak_StaysThatPath) {
  const ItemEditorView *editor = openNew();
  fileChooser.answer = u"/tmp/one\ntwo"_s;
  button(*editor, u"Browse..."_s)->click();
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().path, u"/tmp/one\ntwo"_s);
}

TEST_F(ItemEditorPathTest, CancellingTheChooser_ChangesNothing) {
  const ItemEditorView *editor = openNew();
  fill(*editor, {}, u"/tmp"_s);
  button(*editor, u"Browse..."_s)->click();
  EXPECT_EQ(field(*editor, u"Path"_s)->text(), u"/tmp"_s);
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), QString());
}

TEST_F(ItemEditorPathTest, APathPastedFromATerminal_LosesItsLineBreak) {
  ItemEditorView *editor = openNew();
  field(*editor, u"Name"_s)->setText(u"Docs"_s);
  field(*editor, u"Path"_s)->setFocus();
  QApplication::clipboard()->setText(u"/tmp\n"_s);
  press(*editor, Qt::Key_V, Qt::ControlModifier);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->items().first().path, u"/tmp"_s);
}

TEST_F(ItemEditorPathTest, APastedCommandOfSeveralLines_StaysThatCommand) {
  ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  field(*editor, u"Name"_s)->setText(u"Both"_s);
  field(*editor, u"Command"_s)->setFocus();
  QApplication::clipboard()->setText(u"echo one\necho two"_s);
  press(*editor, Qt::Key_V, Qt::ControlModifier);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->items().first().path, u"echo one\necho two"_s);
}

TEST_F(ItemEditorPathTest, ACommandOfSeveralLines_BecomesOneLineWithAnotherType) {
  const ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  field(*editor, u"Name"_s)->setText(u"Both"_s);
  field(*editor, u"Command"_s)->setText(u"/tmp/one\ntwo"_s);
  picker(*editor, u"Type"_s)->setCurrentIndex(1);
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().path, u"/tmp/one two"_s);
}

TEST_F(ItemEditorPathTest, ACommandOfSeveralLines_IsItselfAgainWhenAnotherTypeWasOnlyPassed) {
  const ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  field(*editor, u"Name"_s)->setText(u"Both"_s);
  field(*editor, u"Command"_s)->setText(u"echo one # first\necho two"_s);
  picker(*editor, u"Type"_s)->setCurrentIndex(2);
  picker(*editor, u"Type"_s)->setCurrentIndex(1);
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().path, u"echo one # first\necho two"_s);
}

TEST_F(ItemEditorPathTest, ATextThatWasChangedMeanwhile_IsNotTakenForTheCommandThatWasLeft) {
  const ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  field(*editor, u"Name"_s)->setText(u"Both"_s);
  field(*editor, u"Command"_s)->setText(u"echo one\necho two"_s);
  picker(*editor, u"Type"_s)->setCurrentIndex(1);
  field(*editor, u"Path"_s)->setText(u"echo three"_s);
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().path, u"echo three"_s);
}

TEST_F(ItemEditorPathTest, AStoredPathWithALineBreak_IsSavedAsItWas) {
  PathItem item = typed(ItemType::file);
  item.path = u"/tmp/one\ntwo"_s;
  const ItemEditorView *editor = openEditing(item);
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->items().first().path, u"/tmp/one\ntwo"_s);
}

}  // namespace lanternix
