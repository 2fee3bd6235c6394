#include "views/ItemEditorViewTest.h"

#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>

using namespace Qt::StringLiterals;

namespace lanternix {

TEST_F(ItemEditorViewTest, TheSheet_Is440By320AndShowsItsFieldsInOrder) {
  const ItemEditorView *editor = openNew();
  EXPECT_EQ(editor->size(), QSize(440, 320));
  EXPECT_EQ(texts(*editor),
            (QStringList{u"New Item"_s, u"Type"_s, u"Name"_s, u"Path"_s, u"Group"_s}));
  EXPECT_NE(button(*editor, u"Add Item"_s), nullptr);
}

TEST_F(ItemEditorViewTest, ANewItem_IsADirectoryWithEmptyFields) {
  const ItemEditorView *editor = openNew();
  EXPECT_EQ(picker(*editor, u"Type"_s)->currentText(), u"Directory"_s);
  EXPECT_EQ(field(*editor, u"Name"_s)->text(), QString());
  EXPECT_EQ(field(*editor, u"Path"_s)->text(), QString());
}

TEST_F(ItemEditorViewTest, TheTabKey_GoesFromTopToBottom) {
  ItemEditorView *editor = openNew();
  fill(*editor, u"Docs"_s, u"/tmp"_s);
  EXPECT_EQ(editor->focusWidget(), field(*editor, u"Name"_s));
  picker(*editor, u"Type"_s)->setFocus();
  for (const QWidget *next : {static_cast<QWidget *>(field(*editor, u"Name"_s)),
                              static_cast<QWidget *>(field(*editor, u"Path"_s)),
                              static_cast<QWidget *>(button(*editor, u"Browse..."_s)),
                              static_cast<QWidget *>(picker(*editor, u"Group"_s)),
                              static_cast<QWidget *>(button(*editor, u"Cancel"_s)),
                              static_cast<QWidget *>(button(*editor, u"Add Item"_s)),
                              static_cast<QWidget *>(picker(*editor, u"Type"_s))}) {
    press(*editor, Qt::Key_Tab);
    EXPECT_EQ(editor->focusWidget(), next);
  }
}

TEST_F(ItemEditorViewTest, TheTypePicker_ListsTheTypesWithTheirSymbols) {
  const ItemEditorView *editor = openNew();
  const QComboBox *types = picker(*editor, u"Type"_s);
  EXPECT_EQ(entries(*types), (QStringList{u"Directory"_s, u"File"_s, u"Link"_s, u"Command"_s}));
  for (int i = 0; i < types->count(); ++i) {
    EXPECT_FALSE(types->itemIcon(i).isNull());
  }
}

TEST_F(ItemEditorViewTest, TheWheelOverAPicker_ChoosesNothing) {
  const ItemEditorView *editor = openNew();
  QComboBox *types = picker(*editor, u"Type"_s);
  QWheelEvent turn(QPointF(5, 5), types->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(types, &turn);
  EXPECT_EQ(types->currentIndex(), 0);
}

TEST_F(ItemEditorViewTest, ArrowKeysOnAPicker_Choose) {
  ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setFocus();
  press(*editor, Qt::Key_Down);
  EXPECT_EQ(picker(*editor, u"Type"_s)->currentText(), u"File"_s);
  picker(*editor, u"Group"_s)->setFocus();
  press(*editor, Qt::Key_Up);
  fill(*editor, u"Notes"_s, u"/tmp/notes"_s);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->items().first().type, ItemType::file);
  EXPECT_EQ(state->items().first().groupId, play.id);
}

TEST_F(ItemEditorViewTest, TheLocationField_GoesByTheType) {
  const ItemEditorView *editor = openNew();
  QComboBox *types = picker(*editor, u"Type"_s);
  field(*editor, u"Path"_s)->setText(u"kept"_s);
  types->setCurrentIndex(1);
  EXPECT_NE(field(*editor, u"Path"_s), nullptr);
  EXPECT_NE(button(*editor, u"Browse..."_s), nullptr);
  types->setCurrentIndex(2);
  ASSERT_NE(field(*editor, u"URL"_s), nullptr);
  EXPECT_TRUE(texts(*editor).contains(u"URL"_s));
  EXPECT_EQ(button(*editor, u"Browse..."_s), nullptr);
  types->setCurrentIndex(3);
  ASSERT_NE(field(*editor, u"Command"_s), nullptr);
  EXPECT_EQ(button(*editor, u"Browse..."_s), nullptr);
  EXPECT_EQ(field(*editor, u"Command"_s)->text(), u"kept"_s);
  EXPECT_NE(field(*editor, u"Command"_s)->font().family(),
            field(*editor, u"Name"_s)->font().family());
  EXPECT_EQ(field(*editor, u"Command"_s)->font().pointSizeF(),
            field(*editor, u"Name"_s)->font().pointSizeF());
}

TEST_F(ItemEditorViewTest, TheGroupPicker_ListsTheGroupsByOrderAndPreselects) {
  const ItemEditorView *editor = openNew();
  EXPECT_EQ(entries(*picker(*editor, u"Group"_s)), (QStringList{u"Play"_s, u"Work"_s}));
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentText(), u"Work"_s);
}

TEST_F(ItemEditorViewTest, NameAndPath_HaveToBeMoreThanBlanks) {
  const ItemEditorView *editor = openNew();
  const QAbstractButton *confirm = button(*editor, u"Add Item"_s);
  EXPECT_FALSE(confirm->isEnabled());
  fill(*editor, u"Name"_s, u" \t "_s);
  EXPECT_FALSE(confirm->isEnabled());
  fill(*editor, u"\t"_s, u"/tmp"_s);
  EXPECT_FALSE(confirm->isEnabled());
  fill(*editor, u"Name"_s, u"/does/not/exist"_s);
  EXPECT_TRUE(confirm->isEnabled());
}

TEST_F(ItemEditorViewTest, Return_AddsTheItemTrimmedAndNeverOpened) {
  QPointer<ItemEditorView> editor = openNew();
  fill(*editor, u"  Docs\t"_s, u" /tmp "_s);
  press(*editor, Qt::Key_Return);
  ASSERT_EQ(state->items().size(), 1);
  const PathItem &added = state->items().first();
  EXPECT_EQ(added.name, u"Docs"_s);
  EXPECT_EQ(added.path, u"/tmp"_s);
  EXPECT_EQ(added.type, ItemType::directory);
  EXPECT_EQ(added.groupId, work.id);
  EXPECT_EQ(added.dateAdded, clock.now());
  EXPECT_FALSE(added.lastAccessed.has_value());
  EXPECT_EQ(added.order, 0);
  EXPECT_EQ(savedData()->items, state->items());
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
}

TEST_F(ItemEditorViewTest, Escape_ClosesTheSheetWithoutChanges) {
  QPointer<ItemEditorView> editor = openNew();
  fill(*editor, u"Docs"_s, u"/tmp"_s);
  press(*editor, Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
  EXPECT_TRUE(state->items().isEmpty());
}

TEST_F(ItemEditorViewTest, ReturnOnCancel_ChangesNothing) {
  QPointer<ItemEditorView> editor = openEditing(typed(ItemType::file));
  fill(*editor, u"Other"_s, u"/other"_s);
  button(*editor, u"Cancel"_s)->setFocus(Qt::TabFocusReason);
  press(*editor, Qt::Key_Return);
  EXPECT_TRUE(waitUntil([&] { return editor.isNull(); }));
  EXPECT_EQ(state->items().first().name, u"Thing"_s);
  EXPECT_EQ(state->items().first().path, u"/tmp"_s);
}

TEST_F(ItemEditorViewTest, ReturnOnBrowse_BrowsesAndLeavesTheSheetOpen) {
  ItemEditorView *editor = openNew();
  fill(*editor, u"Other"_s, u"/other"_s);
  button(*editor, u"Browse..."_s)->setFocus(Qt::TabFocusReason);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(fileChooser.requests.size(), 1);
  EXPECT_TRUE(state->items().isEmpty());
  EXPECT_TRUE(editor->isVisible());
}

TEST_F(ItemEditorViewTest, ReturnInAFieldAfterAVisitToCancel_Saves) {
  ItemEditorView *editor = openNew();
  fill(*editor, u"Other"_s, u"/other"_s);
  button(*editor, u"Cancel"_s)->setFocus(Qt::TabFocusReason);
  field(*editor, u"Name"_s)->setFocus(Qt::TabFocusReason);
  press(*editor, Qt::Key_Return);
  EXPECT_EQ(state->items().size(), 1);
}

TEST_F(ItemEditorViewTest, TheChosenType_IsSaved) {
  const ItemEditorView *editor = openNew();
  picker(*editor, u"Type"_s)->setCurrentIndex(3);
  field(*editor, u"Name"_s)->setText(u"List"_s);
  field(*editor, u"Command"_s)->setText(u"ls -l"_s);
  button(*editor, u"Add Item"_s)->click();
  EXPECT_EQ(state->items().first().type, ItemType::command);
}

TEST_F(ItemEditorViewTest, Editing_ShowsNoTypeAndKeepsEverythingElse) {
  PathItem link = typed(ItemType::link);
  const ItemEditorView *editor = openEditing(link);
  EXPECT_EQ(editor->windowTitle(), u"Edit Item"_s);
  EXPECT_EQ(picker(*editor, u"Type"_s), nullptr);
  EXPECT_EQ(field(*editor, u"URL"_s)->text(), u"/tmp"_s);
  field(*editor, u"Name"_s)->setText(u" Other "_s);
  field(*editor, u"URL"_s)->setText(u"https://example.org"_s);
  button(*editor, u"Save"_s)->click();
  link = state->items().first();
  EXPECT_EQ(link.name, u"Other"_s);
  EXPECT_EQ(link.path, u"https://example.org"_s);
  EXPECT_EQ(link.type, ItemType::link);
  EXPECT_EQ(link.groupId, work.id);
  EXPECT_EQ(link.dateAdded, Date{12.5});
  EXPECT_EQ(link.lastAccessed, Date{99});
}

TEST_F(ItemEditorViewTest, AnotherGroup_MovesTheItemOnSaving) {
  const ItemEditorView *editor = openEditing(typed(ItemType::file));
  picker(*editor, u"Group"_s)->setCurrentIndex(0);
  EXPECT_EQ(state->items().first().groupId, work.id);
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->items().first().groupId, play.id);
}

TEST_F(ItemEditorViewTest, AnItemOfNoGroup_CanBeSavedAsItIs) {
  PathItem stray = typed(ItemType::file);
  stray.groupId = QUuid::createUuid();
  const ItemEditorView *editor = openEditing(stray);
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentIndex(), -1);
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->items().first().groupId, stray.groupId);
}

TEST_F(ItemEditorViewTest, APreselectedGroupDeletedMeanwhile_LeavesTheChoiceToTheUser) {
  const ItemEditorView *editor = openNew();
  fill(*editor, u"Docs"_s, u"/tmp"_s);
  state->deleteGroup(work.id);
  EXPECT_EQ(entries(*picker(*editor, u"Group"_s)), QStringList{u"Play"_s});
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentIndex(), -1);
  EXPECT_FALSE(button(*editor, u"Add Item"_s)->isEnabled());
}

TEST_F(ItemEditorViewTest, AGroupRenamedMeanwhile_KeepsTheChoice) {
  const ItemEditorView *editor = openNew();
  PathGroup renamed = work;
  renamed.name = u"Office"_s;
  renamed.order = -1;
  state->updateGroup(renamed);
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentText(), u"Office"_s);
  EXPECT_EQ(picker(*editor, u"Group"_s)->currentIndex(), 0);
}

TEST_F(ItemEditorViewTest, AnItemDeletedMeanwhile_StaysDeleted) {
  const PathItem item = typed(ItemType::file);
  QPointer<ItemEditorView> editor = openEditing(item);
  state->deleteItem(item.id);
  EXPECT_FALSE(saves([&] { button(*editor, u"Save"_s)->click(); }));
  EXPECT_TRUE(state->items().isEmpty());
  EXPECT_TRUE(waitUntil([&editor] { return editor.isNull(); }));
}

TEST_F(ItemEditorViewTest, AnItemOpenedInThePanelMeanwhile_KeepsThatAccess) {
  const PathItem item = typed(ItemType::command);
  const ItemEditorView *editor = openEditing(item);
  state->openItem(item);
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->items().first().lastAccessed, clock.now());
}

TEST_F(ItemEditorViewTest, NamesOf100000Characters_AreKeptWhole) {
  work.name = QString(100'000, u'w');
  PathItem item = typed(ItemType::file);
  item.name = QString(100'000, u'x');
  item.path = u'/' + QString(100'000, u'y');
  ItemEditorView *editor = openEditing(item);
  EXPECT_FALSE(editor->grab().isNull());
  button(*editor, u"Save"_s)->click();
  EXPECT_EQ(state->items().first().name, item.name);
  EXPECT_EQ(state->items().first().path, item.path);
}

}  // namespace lanternix
