#include "Views/Settings/GroupEditorView.h"
#include "Views/Settings/ItemEditorView.h"
#include "Views/Style/SystemColors.h"
#include "views/GroupsTabTest.h"

#include <QtWidgets/QScrollBar>

using namespace Qt::StringLiterals;

namespace lanternix {

using GroupsSettingsTabTest = GroupsTabTest;

TEST_F(GroupsSettingsTabTest, WithoutGroups_TheSidebarSaysWhatToDo) {
  show({}, {});
  EXPECT_TRUE(texts().contains(u"No groups yet"_s));
  EXPECT_TRUE(texts().contains(u"Create a group to organize your items"_s));
  EXPECT_FALSE(groupList().isVisible());
  EXPECT_TRUE(button(u"Add Group"_s).isEnabled());
  EXPECT_FALSE(button(u"Edit Group"_s).isEnabled());
  EXPECT_FALSE(button(u"Delete Group"_s).isEnabled());
}

TEST_F(GroupsSettingsTabTest, WithNothingSelected_TheDetailSaysWhatToDo) {
  show();
  EXPECT_TRUE(texts().contains(u"Select a group"_s));
  EXPECT_TRUE(texts().contains(u"Choose a group from the sidebar to manage its items"_s));
  EXPECT_FALSE(itemList().isVisible());
}

TEST_F(GroupsSettingsTabTest, ASelectedGroup_ShowsItsHeaderAndItems) {
  show();
  click(groupList(), 0);
  EXPECT_TRUE(texts().contains(u"Work"_s));
  EXPECT_TRUE(texts().contains(u"3 items"_s));
  EXPECT_TRUE(button(u"Add Item"_s).isVisible());
  EXPECT_EQ(shown(itemList()), (QStringList{u"Report"_s, u"Notes"_s, u"Plan"_s}));
}

TEST_F(GroupsSettingsTabTest, AGroupWithoutItems_SaysSo) {
  show({work}, {});
  click(groupList(), 0);
  EXPECT_TRUE(texts().contains(u"No items in this group"_s));
  EXPECT_TRUE(texts().contains(u"Add directories, files, or links"_s));
  EXPECT_TRUE(texts().contains(u"0 items"_s));
}

TEST_F(GroupsSettingsTabTest, TheSidebar_IsBetween200And300Wide_And240AtFirst) {
  show();
  const QWidget *sidebar = tab->findChild<GroupSidebarView *>();
  EXPECT_EQ(sidebar->width(), 240);
  EXPECT_EQ(sidebar->minimumWidth(), 200);
  EXPECT_EQ(sidebar->maximumWidth(), 300);
  tab->resize(1000, 700);
  EXPECT_EQ(sidebar->width(), 240) << "a larger window is for the items";
}

TEST_F(GroupsSettingsTabTest, TheButtonsOfTheBar_SayWhatTheyDo_And_AreAsLargeAsTheirFrames) {
  show();
  for (const QString &name : {u"Add Group"_s, u"Edit Group"_s, u"Delete Group"_s}) {
    EXPECT_EQ(button(name).toolTip(), name);
    EXPECT_EQ(button(name).width(), 26);
    EXPECT_GE(button(name).height(), 18);
  }
}

TEST_F(GroupsSettingsTabTest, ASelectedGroup_CanBeEditedAndDeletedByTheBar) {
  show();
  click(groupList(), 1);
  EXPECT_TRUE(button(u"Edit Group"_s).isEnabled());
  EXPECT_TRUE(button(u"Delete Group"_s).isEnabled());
  button(u"Edit Group"_s).click();
  ASSERT_NE(dialogOf<GroupEditorView>(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), u"Edit Group"_s);
}

TEST_F(GroupsSettingsTabTest, AddGroup_OpensTheEditorForANewOne) {
  show();
  click(groupList(), 1);
  button(u"Add Group"_s).click();
  ASSERT_NE(dialogOf<GroupEditorView>(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), u"New Group"_s);
}

TEST_F(GroupsSettingsTabTest, AddItem_OpensTheEditorForANewOne) {
  show();
  click(groupList(), 0);
  button(u"Add Item"_s).click();
  ASSERT_NE(dialogOf<ItemEditorView>(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), u"New Item"_s);
}

TEST_F(GroupsSettingsTabTest, ADoubleClick_EditsTheGroupOrTheItem) {
  show();
  doubleClick(groupList(), 0);
  ASSERT_NE(dialogOf<GroupEditorView>(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), u"Edit Group"_s);
  dialog()->reject();
  doubleClick(itemList(), 1);
  ASSERT_NE(dialogOf<ItemEditorView>(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), u"Edit Item"_s);
}

TEST_F(GroupsSettingsTabTest, AnotherGroup_ClearsTheSelectionOfItems) {
  show();
  click(groupList(), 0);
  click(itemList(), 1);
  EXPECT_EQ(tab->selectedItemId(), notes.id);
  click(groupList(), 1);
  EXPECT_EQ(tab->selectedItemId(), std::nullopt);
  click(groupList(), 0);
  EXPECT_EQ(tab->selectedItemId(), std::nullopt);
}

TEST_F(GroupsSettingsTabTest, AnotherGroup_IsShownFromItsTop) {
  QList<PathItem> items;
  for (int i = 0; i < 200; ++i) {
    items.append(item(u"Item"_s, i < 100 ? work : home_, i));
  }
  show({work, home_}, items);
  click(groupList(), 0);
  itemList().scrollToBottom();
  click(groupList(), 1);
  EXPECT_EQ(itemList().verticalScrollBar()->value(), 0);
}

TEST_F(GroupsSettingsTabTest, AGroupThatIsDeletedElsewhere_LeavesThePlaceholder) {
  show();
  click(groupList(), 0);
  state->deleteGroup(work.id);
  EXPECT_EQ(tab->selectedGroupId(), std::nullopt);
  EXPECT_TRUE(texts().contains(u"Select a group"_s));
  EXPECT_FALSE(button(u"Delete Group"_s).isEnabled());
}

TEST_F(GroupsSettingsTabTest, AnImport_KeepsTheSelectionOfWhatIsStillThere) {
  show();
  click(groupList(), 1);
  click(itemList(), 0);
  garden.name = u"Orchard"_s;
  state->importData(*DataDocument{{group(u"New"_s, 0), home_}, {garden}}.encoded());
  EXPECT_EQ(tab->selectedGroupId(), home_.id);
  EXPECT_EQ(tab->selectedItemId(), garden.id);
  EXPECT_EQ(shown(itemList()), QStringList(u"Orchard"_s));
}

TEST_F(GroupsSettingsTabTest, TheHeaderAndTheCounts_FollowTheStore) {
  show();
  click(groupList(), 0);
  work.name = u"Office"_s;
  state->updateGroup(work);
  state->deleteItem(report.id);
  EXPECT_TRUE(texts().contains(u"Office"_s));
  EXPECT_TRUE(texts().contains(u"2 items"_s));
}

TEST_F(GroupsSettingsTabTest, AnAddedGroup_ReplacesTheEmptyState) {
  show({}, {});
  state->addGroup(work);
  EXPECT_TRUE(groupList().isVisible());
  EXPECT_EQ(shown(groupList()), QStringList(u"Work"_s));
  state->deleteGroup(work.id);
  EXPECT_FALSE(groupList().isVisible());
}

TEST_F(GroupsSettingsTabTest, AnItemThatGoes_LeavesTheListWhereItWasScrolled) {
  QList<PathItem> items;
  for (int i = 0; i < 100; ++i) {
    items.append(item(u"Item"_s, work, i));
  }
  show({work}, items);
  click(groupList(), 0);
  click(itemList(), 0);
  itemList().verticalScrollBar()->setValue(600);
  state->deleteItem(items.back().id);
  QCoreApplication::processEvents();
  EXPECT_EQ(itemList().verticalScrollBar()->value(), 600);
  EXPECT_EQ(tab->selectedItemId(), items.front().id);
  state->deleteItem(items.front().id);
  QCoreApplication::processEvents();
  EXPECT_EQ(itemList().verticalScrollBar()->value(), 600);
}

TEST_F(GroupsSettingsTabTest, ABrokenItem_IsMarked) {
  const auto isMarked = [this] {
    const QColor yellow = systemColor(SystemColor::yellow, tab->palette());
    const QImage row = itemList().viewport()->grab(rowRect(itemList(), 0)).toImage();
    for (int y = 0; y < row.height(); ++y) {
      for (int x = row.width() / 2; x < row.width(); ++x) {
        if (row.pixelColor(x, y) == yellow) {
          return true;
        }
      }
    }
    return false;
  };
  report.type = ItemType::file;
  report.path = home.dataFile();
  show({work}, {report});
  click(groupList(), 0);
  EXPECT_FALSE(isMarked());
  report.path += u'x';
  state->updateItem(report);
  EXPECT_TRUE(isMarked());
}

TEST_F(GroupsSettingsTabTest, Rows_GrowWithTheUsersFont) {
  const QFont before = QApplication::font();
  show();
  click(groupList(), 0);
  const int groupHeight = rowRect(groupList(), 0).height();
  const int itemHeight = rowRect(itemList(), 0).height();
  QFont large = before;
  large.setPointSizeF(before.pointSizeF() * 2);
  QApplication::setFont(large);
  QCoreApplication::processEvents();
  EXPECT_GT(rowRect(groupList(), 0).height(), groupHeight);
  EXPECT_GT(rowRect(itemList(), 0).height(), itemHeight);
  QApplication::setFont(before);
}

TEST_F(GroupsSettingsTabTest, TheSelection_ShowsWhereKeysWouldGo) {
  show();
  click(groupList(), 0);
  groupList().setFocus();
  const QImage withKeys = groupList().grab(rowRect(groupList(), 0)).toImage();
  button(u"Add Item"_s).setFocus();
  EXPECT_NE(groupList().grab(rowRect(groupList(), 0)).toImage(), withKeys);
}

TEST_F(GroupsSettingsTabTest, ALongNameOfAGroup_LeavesTheWindowAsItIs) {
  work.name = u"a\nb\tc\u202e<b>&amp;"_s.repeated(10'000);
  show({work}, {});
  click(groupList(), 0);
  EXPECT_LE(tab->minimumSizeHint().width(), 600);
  EXPECT_EQ(tab->grab().toImage().size(), QSize(600, 480));
}

TEST_F(GroupsSettingsTabTest, TheSymbolOfAddItem_IsSharpOnEveryScreen) {
  show();
  click(groupList(), 0);
  constexpr double twice = 2;
  const QSize size = button(u"Add Item"_s).iconSize();
  EXPECT_EQ(button(u"Add Item"_s).icon().pixmap(size, twice).size(), size * twice);
}

}  // namespace lanternix
