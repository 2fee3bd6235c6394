#include "views/GroupsTabTest.h"

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class GroupsTabAlertTest : public GroupsTabTest {
 protected:
  QStringList buttons() const {
    QStringList result;
    for (const auto *each : dialog()->findChildren<QAbstractButton *>()) {
      result.append(each->text());
    }
    return result;
  }
};

}  // namespace

TEST_F(GroupsTabAlertTest, DeletingAGroup_AsksFirst) {
  show();
  click(groupList(), 0);
  button(u"Delete Group"_s).click();
  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialogTexts(),
            (QStringList{u"Delete \"Work\"?"_s,
                         u"This will permanently delete the group and 3 items inside it."_s}));
  EXPECT_THAT(buttons(), testing::UnorderedElementsAre(u"Delete Group"_s, u"Cancel"_s));
  EXPECT_EQ(state->groups().size(), 2);
}

TEST_F(GroupsTabAlertTest, OneItem_IsSpokenOfInTheSingular) {
  show();
  click(groupList(), 1);
  press(groupList(), Qt::Key_Delete);
  EXPECT_TRUE(
      dialogTexts().contains(u"This will permanently delete the group and 1 item inside it."_s));
}

TEST_F(GroupsTabAlertTest, NoItems_AreSpokenOfInThePlural) {
  show({work}, {});
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  EXPECT_TRUE(
      dialogTexts().contains(u"This will permanently delete the group and 0 items inside it."_s));
}

TEST_F(GroupsTabAlertTest, ItemsThatASearchHides_AreCountedToo) {
  show();
  click(groupList(), 0);
  state->setSearchQuery(u"notes"_s);
  press(groupList(), Qt::Key_Delete);
  EXPECT_TRUE(
      dialogTexts().contains(u"This will permanently delete the group and 3 items inside it."_s));
}

TEST_F(GroupsTabAlertTest, AConfirmedGroup_IsDeletedWithItsItemsAndTheSelection) {
  show();
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  answer(u"Delete Group"_s);
  EXPECT_EQ(names(state->groups()), QStringList(u"Home"_s));
  EXPECT_EQ(names(state->items()), QStringList(u"Garden"_s));
  EXPECT_EQ(tab->selectedGroupId(), std::nullopt);
  EXPECT_TRUE(texts().contains(u"Select a group"_s));
}

TEST_F(GroupsTabAlertTest, AGroupThatIsNotSelected_LeavesTheSelectionWhenItGoes) {
  show();
  click(groupList(), 0);
  choose(*openMenu(groupList(), 1), u"Delete Group"_s);
  answer(u"Delete Group"_s);
  EXPECT_EQ(names(state->groups()), QStringList(u"Work"_s));
  EXPECT_EQ(tab->selectedGroupId(), work.id);
}

TEST_F(GroupsTabAlertTest, EscapeAndCancel_DeleteNothing) {
  show();
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  QTest::keyClick(dialog(), Qt::Key_Escape);
  press(groupList(), Qt::Key_Delete);
  answer(u"Cancel"_s);
  EXPECT_EQ(dialog(), nullptr);
  EXPECT_EQ(state->groups().size(), 2);
}

TEST_F(GroupsTabAlertTest, Return_DoesWhatTheButtonWithTheKeyboardSays) {
  show();
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  dialog()->activateWindow();
  QTest::keyClick(dialog()->focusWidget(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(state->groups().size(), 2) << "at first it is Cancel";
  press(groupList(), Qt::Key_Delete);
  dialog()->activateWindow();
  QTest::keyClick(dialog()->focusWidget(), Qt::Key_Tab);
  QTest::keyClick(dialog()->focusWidget(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog(), nullptr);
  EXPECT_EQ(names(state->groups()), QStringList(u"Home"_s));
}

TEST_F(GroupsTabAlertTest, DeletingAnItem_AsksFirst) {
  show();
  click(groupList(), 0);
  click(itemList(), 1);
  press(itemList(), Qt::Key_Delete);
  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialogTexts(),
            (QStringList{u"Delete \"Notes\"?"_s, u"This item will be permanently removed."_s}));
  EXPECT_THAT(buttons(), testing::UnorderedElementsAre(u"Delete Item"_s, u"Cancel"_s));
  answer(u"Delete Item"_s);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Report"_s, u"Plan"_s}));
}

TEST_F(GroupsTabAlertTest, WhatIsGoneByThen_IsNotDeletedAgain) {
  show();
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  state->deleteGroup(work.id);
  EXPECT_FALSE(saves([this] { answer(u"Delete Group"_s); }));
  click(groupList(), 0);
  click(itemList(), 0);
  press(itemList(), Qt::Key_Delete);
  state->deleteItem(garden.id);
  EXPECT_FALSE(saves([this] { answer(u"Delete Item"_s); }));
  EXPECT_EQ(names(state->groups()), QStringList(u"Home"_s));
}

TEST_F(GroupsTabAlertTest, ALongName_IsAskedAboutByItsEnds) {
  work.name = QString(100'000, u'x') + u"end"_s;
  show({work}, {});
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  EXPECT_LT(dialog()->height(), 400);
  EXPECT_TRUE(dialogTexts().front().endsWith(u"end\"?"_s));
}

TEST_F(GroupsTabAlertTest, ALongNameOfEmoji_IsNotCutWithinOne) {
  work.name = u'x' + u"😀"_s.repeated(200) + u'y';
  show({work}, {});
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  EXPECT_TRUE(dialogTexts().front().isValidUtf16());
}

TEST_F(GroupsTabAlertTest, AnUnbrokenName_IsBrokenIntoLines) {
  work.name = QString(20, u'x');
  show({work}, {});
  click(groupList(), 0);
  press(groupList(), Qt::Key_Delete);
  const int low = dialog()->height();
  dialog()->reject();
  work.name = QString(150, u'x');
  state->updateGroup(work);
  press(groupList(), Qt::Key_Delete);
  EXPECT_GT(dialog()->height(), low);
  EXPECT_EQ(dialog()->width(), 340);
}

}  // namespace lanternix
