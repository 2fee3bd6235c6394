#include "Views/Settings/GroupEditorView.h"
#include "Views/Settings/ItemEditorView.h"
#include "views/GroupsTabTest.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using namespace Qt::StringLiterals;

namespace lanternix {

using GroupsTabKeyboardTest = GroupsTabTest;

TEST_F(GroupsTabKeyboardTest, UpAndDown_Select) {
  show();
  press(groupList(), Qt::Key_Down);
  EXPECT_EQ(tab->selectedGroupId(), work.id);
  press(groupList(), Qt::Key_Down);
  EXPECT_EQ(tab->selectedGroupId(), home_.id);
  press(groupList(), Qt::Key_Up);
  EXPECT_EQ(tab->selectedGroupId(), work.id);
  press(groupList(), Qt::Key_Up);
  EXPECT_EQ(tab->selectedGroupId(), work.id) << "the first";
}

TEST_F(GroupsTabKeyboardTest, Up_WithNothingSelected_SelectsTheLast) {
  show();
  press(groupList(), Qt::Key_Up);
  EXPECT_EQ(tab->selectedGroupId(), home_.id);
}

TEST_F(GroupsTabKeyboardTest, F2AndReturn_Edit) {
  show();
  press(groupList(), Qt::Key_F2);
  EXPECT_EQ(dialog(), nullptr) << "nothing is selected";
  click(groupList(), 0);
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
    press(groupList(), key);
    ASSERT_NE(dialogOf<GroupEditorView>(), nullptr);
    dialog()->reject();
  }
  press(itemList(), Qt::Key_Down);
  press(itemList(), Qt::Key_Return);
  EXPECT_NE(dialogOf<ItemEditorView>(), nullptr);
}

TEST_F(GroupsTabKeyboardTest, AKeyThatIsHeld_DoesNotEditAnew) {
  show();
  click(groupList(), 0);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_Delete}) {
    QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&groupList(), &repeat);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(repeat.isAccepted());
  }
}

TEST_F(GroupsTabKeyboardTest, GroupsDeletedOneAfterAnother_LeaveTheKeyboardInTheirPlace) {
  const PathGroup third = group(u"Third"_s, 2);
  show({work, home_, third}, {});
  click(groupList(), 1);
  press(groupList(), Qt::Key_Delete);
  answer(u"Delete Group"_s);
  press(groupList(), Qt::Key_Down);
  EXPECT_EQ(tab->selectedGroupId(), third.id);
}

TEST_F(GroupsTabKeyboardTest, Delete_WithNothingSelected_AsksNothing) {
  show();
  press(groupList(), Qt::Key_Delete);
  EXPECT_EQ(dialog(), nullptr);
}

TEST_F(GroupsTabKeyboardTest, AltUpAndDown_MoveTheItemAndKeepItSelected) {
  show();
  click(groupList(), 0);
  click(itemList(), 0);
  press(itemList(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Report"_s, u"Plan"_s}));
  press(itemList(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Plan"_s, u"Report"_s}));
  press(itemList(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Report"_s, u"Plan"_s}));
  EXPECT_EQ(tab->selectedItemId(), report.id);
  EXPECT_EQ(itemList().selectionModel()->selectedIndexes().front().row(), 1);
}

TEST_F(GroupsTabKeyboardTest, AltUpAndDown_AtTheEnds_DoNothing) {
  show();
  click(groupList(), 0);
  EXPECT_FALSE(saves([this] { press(groupList(), Qt::Key_Up, Qt::AltModifier); }));
  click(groupList(), 1);
  EXPECT_FALSE(saves([this] { press(groupList(), Qt::Key_Down, Qt::AltModifier); }));
  EXPECT_EQ(tab->selectedGroupId(), home_.id);
}

TEST_F(GroupsTabKeyboardTest, AltDown_MovesTheGroup) {
  show();
  click(groupList(), 0);
  press(groupList(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(names(state->groups()), (QStringList{u"Home"_s, u"Work"_s}));
  EXPECT_EQ(tab->selectedGroupId(), work.id);
}

TEST_F(GroupsTabKeyboardTest, AMovedRow_StaysInSight) {
  QList<PathItem> items;
  for (int i = 0; i < 100; ++i) {
    items.append(item(QString::number(i), work, i));
  }
  show({work}, items);
  click(groupList(), 0);
  click(itemList(), 0);
  for (int i = 0; i < 30; ++i) {
    press(itemList(), Qt::Key_Down, Qt::AltModifier);
  }
  EXPECT_EQ(tab->selectedItemId(), items.front().id);
  EXPECT_TRUE(itemList().viewport()->rect().contains(rowRect(itemList(), 30)));
}

TEST_F(GroupsTabKeyboardTest, TheMenuKey_OpensTheMenuOfTheSelectedRow) {
  show();
  click(groupList(), 1);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(&groupList(), &event);
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_GE(menu->y(), groupList().viewport()->mapToGlobal(rowRect(groupList(), 1).center()).y());
  choose(*menu, u"Delete Group"_s);
  EXPECT_EQ(dialogTexts().front(), u"Delete \"Home\"?"_s);
}

TEST_F(GroupsTabKeyboardTest, ShiftF10_OpensTheMenuOfTheSelectedRow) {
  show();
  press(groupList(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "nothing is selected";
  click(groupList(), 1);
  press(groupList(), Qt::Key_F10);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "another key";
  press(groupList(), Qt::Key_F10, Qt::ShiftModifier);
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_GE(menu->y(), groupList().viewport()->mapToGlobal(rowRect(groupList(), 1).center()).y());
  choose(*menu, u"Delete Group"_s);
  EXPECT_EQ(dialogTexts().front(), u"Delete \"Home\"?"_s);
}

TEST_F(GroupsTabKeyboardTest, TheMenuKey_WithNothingSelected_OpensNothing) {
  show();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {20, 20}, {20, 20});
  QCoreApplication::sendEvent(&groupList(), &event);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(GroupsTabKeyboardTest, Tab_GoesFromTheSidebarThroughTheButtonsToTheItems) {
  show();
  click(groupList(), 0);
  groupList().setFocus();
  const QList<QWidget *> wanted{&button(u"Add Group"_s), &button(u"Edit Group"_s),
                                &button(u"Delete Group"_s), &button(u"Add Item"_s), &itemList()};
  for (QWidget *next : wanted) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), next) << qPrintable(next->accessibleName());
  }
}

TEST_F(GroupsTabKeyboardTest, EveryControl_HasAName) {
  show();
  click(groupList(), 0);
  int controls = 0;
  for (const auto *each : tab->findChildren<QWidget *>()) {
    if (each->isVisible() && (each->focusPolicy() & Qt::TabFocus) != 0) {
      const auto *button = qobject_cast<const QAbstractButton *>(each);
      EXPECT_FALSE(each->accessibleName().isEmpty() &&
                   (button == nullptr || button->text().isEmpty()))
          << each->metaObject()->className();
      ++controls;
    }
  }
  EXPECT_EQ(controls, 6) << "two lists, three buttons below the one and one above the other";
  EXPECT_EQ(groupList().accessibleName(), u"Groups"_s);
  EXPECT_EQ(itemList().accessibleName(), u"Items"_s);
  EXPECT_EQ(groupList().model()->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
            u"3 items"_s);
}

TEST_F(GroupsTabKeyboardTest, AfterADeletion_TheArrowsGoOnFromThere) {
  show();
  click(groupList(), 0);
  click(itemList(), 1);
  state->deleteItem(notes.id);
  EXPECT_EQ(tab->selectedItemId(), std::nullopt);
  press(itemList(), Qt::Key_Down);
  EXPECT_EQ(tab->selectedItemId(), plan.id);
}

TEST_F(GroupsTabKeyboardTest, AfterADeletion_AnotherGroup_BeginsAtItsTop) {
  const PathItem shed = item(u"Shed"_s, home_, 1);
  const PathItem pond = item(u"Pond"_s, home_, 2);
  show({work, home_}, {report, notes, plan, garden, shed, pond});
  click(groupList(), 0);
  click(itemList(), 1);
  state->deleteItem(notes.id);
  click(groupList(), 1);
  press(itemList(), Qt::Key_Down);
  EXPECT_EQ(tab->selectedItemId(), garden.id);
}

TEST_F(GroupsTabKeyboardTest, ATripleClick_EditsOnce) {
  show();
  QSignalSpy edits(&groupList(), &RecordListView::editRequested);
  click(groupList(), 0);
  EXPECT_EQ(edits.count(), 0);
  QWidget *viewport = groupList().viewport();
  const QPoint place = middleOf(groupList(), 0);
  // The sheet of the second would take the others.
  QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
  QTest::mousePress(viewport, Qt::LeftButton, {}, place);
  QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
  QCoreApplication::processEvents();
  EXPECT_EQ(edits.count(), 1);
}

TEST_F(GroupsTabKeyboardTest, ADoubleClickBesideTheRows_EditsNothing) {
  show();
  QSignalSpy edits(&groupList(), &RecordListView::editRequested);
  QTest::mouseDClick(groupList().viewport(), Qt::LeftButton, {}, {50, 300});
  QTest::mouseDClick(groupList().viewport(), Qt::RightButton, {}, middleOf(groupList(), 0));
  QCoreApplication::processEvents();
  EXPECT_EQ(edits.count(), 0);
}

}  // namespace lanternix
