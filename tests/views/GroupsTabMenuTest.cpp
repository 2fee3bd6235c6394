#include "Views/Settings/GroupEditorView.h"
#include "Views/Settings/ItemEditorView.h"
#include "Views/Style/Destructive.h"
#include "views/GroupsTabTest.h"

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class GroupsTabMenuTest : public GroupsTabTest {
 protected:
  QMenu *openItemMenu(int row) {
    click(groupList(), 0);
    return openMenu(itemList(), row);
  }
};

}  // namespace

TEST_F(GroupsTabMenuTest, TheMenuOfAGroup_EditsAndDeletes) {
  show();
  QMenu *menu = openMenu(groupList(), 1);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(entries(*menu), (QStringList{u"Edit Group..."_s, u"-"_s, u"Delete Group"_s}));
  choose(*menu, u"Edit Group..."_s);
  EXPECT_NE(dialogOf<GroupEditorView>(), nullptr);
  dialog()->reject();
  choose(*openMenu(groupList(), 1), u"Delete Group"_s);
  EXPECT_EQ(dialogTexts().front(), u"Delete \"Home\"?"_s);
}

TEST_F(GroupsTabMenuTest, TheMenuOfACommand_HasEverythingButReveal) {
  show();
  QMenu *menu = openItemMenu(0);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(entries(*menu), (QStringList{u"Edit Item..."_s, u"Duplicate"_s, u"Move to Group"_s,
                                         u"-"_s, u"Delete Item"_s}));
  choose(*menu, u"Edit Item..."_s);
  EXPECT_NE(dialogOf<ItemEditorView>(), nullptr);
}

TEST_F(GroupsTabMenuTest, TheMenuOfALink_HasNoReveal) {
  report.type = ItemType::link;
  show();
  QMenu *menu = openItemMenu(0);
  EXPECT_FALSE(entries(*menu).contains(u"Reveal in Finder"_s));
  menu->close();
}

TEST_F(GroupsTabMenuTest, TheMenuOfADirectory_RevealsIt) {
  report.type = ItemType::directory;
  show();
  QMenu *menu = openItemMenu(0);
  EXPECT_EQ(entries(*menu).at(2), u"Reveal in Finder"_s);
  choose(*menu, u"Reveal in Finder"_s);
  EXPECT_EQ(workspace.requests, QStringList(u"revealInFileViewer /"_s));
}

TEST_F(GroupsTabMenuTest, Duplicate_AppendsACopy) {
  show();
  choose(*openItemMenu(0), u"Duplicate"_s);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Report"_s, u"Notes"_s, u"Plan"_s, u"Report Copy"_s}));
}

TEST_F(GroupsTabMenuTest, MoveToGroup_ListsTheOthersInTheirOrder) {
  show({work, group(u"Last"_s, 9), group(u"Mid & Low"_s, 5), home_}, {report});
  QMenu *groups = submenu(*openItemMenu(0), u"Move to Group"_s);
  ASSERT_NE(groups, nullptr);
  EXPECT_EQ(entries(*groups), (QStringList{u"Home"_s, u"Mid && Low"_s, u"Last"_s}));
  for (const QAction *action : groups->actions()) {
    constexpr double twice = 2;
    EXPECT_EQ(action->icon().pixmap(QSize(16, 16), twice).size(), QSize(32, 32))
        << "sharp on every screen";
  }
  choose(*groups, u"Last"_s);
  EXPECT_TRUE(itemList().model()->rowCount() == 0);
  EXPECT_EQ(state->items().front().groupId, state->groups().at(1).id);
}

TEST_F(GroupsTabMenuTest, MoveToGroup_IsAbsentWithoutAnotherGroup) {
  show({work}, {report});
  QMenu *menu = openItemMenu(0);
  EXPECT_FALSE(entries(*menu).contains(u"Move to Group"_s));
  menu->close();
}

TEST_F(GroupsTabMenuTest, DeleteItem_IsMarkedAndAsks) {
  show();
  QMenu *menu = openItemMenu(1);
  EXPECT_TRUE(isDestructive(menu->actions().last()));
  choose(*menu, u"Delete Item"_s);
  EXPECT_EQ(dialogTexts().front(), u"Delete \"Notes\"?"_s);
}

TEST_F(GroupsTabMenuTest, AnItemThatGoesWhileItsMenuIsOpen_DoesNoHarm) {
  show();
  for (const QString &entry : {u"Edit Item..."_s, u"Duplicate"_s, u"Delete Item"_s}) {
    QMenu *menu = openItemMenu(0);
    state->deleteItem(itemList().model()->index(0, 0).data(Qt::UserRole).toUuid());
    const qsizetype left = state->items().size();
    choose(*menu, entry);
    EXPECT_EQ(state->items().size(), left);
    EXPECT_EQ(dialog(), nullptr);
  }
}

TEST_F(GroupsTabMenuTest, TheEmptyPartOfAList_HasNoMenu) {
  show();
  QContextMenuEvent event(QContextMenuEvent::Mouse, {50, 300}, {50, 300});
  QCoreApplication::sendEvent(groupList().viewport(), &event);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(GroupsTabMenuTest, HostileNames_AreOneShortLine) {
  home_.name = u"a\nb\tc"_s.repeated(20'000);
  show();
  QMenu *menu = openItemMenu(0);
  const QString text = entries(*submenu(*menu, u"Move to Group"_s)).front();
  EXPECT_LT(text.size(), 200);
  EXPECT_FALSE(text.contains(u'\n') || text.contains(u'\t'));
  menu->close();
}

}  // namespace lanternix
