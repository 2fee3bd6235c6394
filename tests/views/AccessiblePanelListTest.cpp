#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "support/WaitUntil.h"
#include "views/AccessiblePanelTest.h"

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class AccessiblePanelListTest : public AccessiblePanelTest {
 protected:
  PanelListView *listView() const { return view->findChild<PanelListView *>(); }
  QAccessibleInterface *list() const { return QAccessible::queryAccessibleInterface(listView()); }
  /// The interface of the row with this number in the model.
  QAccessibleInterface *row(qsizetype number) const {
    const QPoint corner = listView()->rowRect(number).topLeft();
    const QPoint onScreen = listView()->viewport()->mapToGlobal(corner);
    return list()->childAt(onScreen.x(), onScreen.y());
  }
  static QStringList childNames(const QAccessibleInterface *about) {
    QStringList result;
    for (int index = 0; index < about->childCount(); ++index) {
      result.append(nameOf(about->child(index)));
    }
    return result;
  }
  static QString descriptionOf(QAccessibleInterface *about) {
    return about->text(QAccessible::Description);
  }
  static void act(QAccessibleInterface *about, const QString &action) {
    QAccessibleActionInterface *actions = about->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(action);
    QCoreApplication::processEvents();
  }

  PathItem notes = item(u"Notes"_s, work, 1, u"edit notes"_s);
};

}  // namespace

TEST_F(AccessiblePanelListTest, TheList_IsATreeWithABranchForEverySection) {
  const PathGroup empty = group(u"Empty"_s, 1);
  show({work, empty}, {opened(report, 1), notes});
  EXPECT_EQ(list()->role(), QAccessible::Tree);
  EXPECT_EQ(nameOf(list()), u"Items"_s);
  EXPECT_EQ(childNames(list()), (QStringList{u"Recently Opened"_s, u"Work"_s, u"Empty"_s}));
  EXPECT_EQ(childNames(list()->child(0)), QStringList(u"Report"_s));
  EXPECT_EQ(childNames(list()->child(1)), (QStringList{u"Report"_s, u"Notes"_s}));
  EXPECT_EQ(childNames(list()->child(2)), QStringList(u"No items in this group"_s));
  EXPECT_EQ(list()->child(1)->role(), QAccessible::TreeItem);
  EXPECT_EQ(list()->child(1)->child(0)->role(), QAccessible::TreeItem);
  EXPECT_EQ(list()->child(2)->child(0)->role(), QAccessible::StaticText);
}

TEST_F(AccessiblePanelListTest, ARow_KnowsItsPlaceAndItsParent) {
  show({work}, {opened(report, 1), notes});
  QAccessibleInterface *group = list()->child(1);
  QAccessibleInterface *item = group->child(1);
  EXPECT_EQ(list()->indexOfChild(group), 1);
  EXPECT_EQ(group->parent(), list());
  EXPECT_EQ(group->indexOfChild(item), 1);
  EXPECT_EQ(item->parent(), group);
  EXPECT_EQ(item->childCount(), 0);
  EXPECT_EQ(list()->indexOfChild(item), -1);
  EXPECT_EQ(list()->child(0)->indexOfChild(item), -1);
  EXPECT_EQ(group->child(1), item) << "one interface a row";
}

TEST_F(AccessiblePanelListTest, APlaceWithoutAChild_IsEmpty) {
  show({work}, {report});
  EXPECT_EQ(list()->child(-1), nullptr);
  EXPECT_EQ(list()->child(1), nullptr);
  EXPECT_EQ(list()->child(0)->child(-1), nullptr);
  EXPECT_EQ(list()->child(0)->child(1), nullptr);
}

TEST_F(AccessiblePanelListTest, TheRecentItems_AreCountedToo) {
  show({work}, {opened(report, 1), opened(notes, 2)});
  EXPECT_EQ(descriptionOf(list()->child(0)), u"2 items"_s);
}

TEST_F(AccessiblePanelListTest, AGroup_SaysItsCountAndWhetherItIsUnfolded) {
  show({work, foldedGroup(u"Home"_s, 1)}, {report, notes});
  EXPECT_EQ(descriptionOf(row(0)), u"2 items"_s);
  EXPECT_TRUE(row(0)->state().expandable);
  EXPECT_TRUE(row(0)->state().expanded);
  EXPECT_EQ(nameOf(row(3)), u"Home"_s);
  EXPECT_EQ(descriptionOf(row(3)), u"0 items"_s);
  EXPECT_TRUE(row(3)->state().expandable);
  EXPECT_TRUE(row(3)->state().collapsed);
}

TEST_F(AccessiblePanelListTest, AGroupOfOne_SaysSoInTheSingular) {
  show({work}, {report});
  EXPECT_EQ(descriptionOf(row(0)), u"1 item"_s);
}

TEST_F(AccessiblePanelListTest, AnItem_SaysItsTypeAndPath) {
  report.type = ItemType::link;
  report.path = u"https://example.org"_s;
  show({work}, {report, notes});
  EXPECT_EQ(nameOf(row(1)), u"Report"_s);
  EXPECT_EQ(descriptionOf(row(1)), u"Link, https://example.org"_s);
  EXPECT_EQ(descriptionOf(row(2)), u"Command, edit notes"_s);
}

TEST_F(AccessiblePanelListTest, ABrokenItem_SaysWhatIsWrong) {
  report.type = ItemType::file;
  report.path = u"/nonexistent"_s;
  PathItem folder = item(u"Folder"_s, work, 2, u"/nonexistent/folder"_s);
  folder.type = ItemType::directory;
  notes.path = u" "_s;
  show({work}, {report, notes, folder});
  EXPECT_EQ(descriptionOf(row(1)), u"File, not found, /nonexistent"_s);
  EXPECT_TRUE(descriptionOf(row(2)).startsWith(u"Command, empty command"_s));
  EXPECT_TRUE(descriptionOf(row(3)).startsWith(u"Directory, not found"_s));
}

TEST_F(AccessiblePanelListTest, APathThatIsNotShown_IsNotSpokenEither) {
  show({work}, {report});
  state->setShowURLs(false);
  EXPECT_EQ(descriptionOf(row(1)), u"Command"_s);
}

TEST_F(AccessiblePanelListTest, TheSelectedItem_IsSelectedAndFocused) {
  show({work}, {report, notes});
  EXPECT_TRUE(row(1)->state().selectable);
  EXPECT_TRUE(row(1)->state().focusable);
  EXPECT_FALSE(row(1)->state().selected);
  state->setSelectedItemId(report.id);
  EXPECT_TRUE(row(1)->state().selected);
  EXPECT_TRUE(row(1)->state().focused);
  EXPECT_FALSE(row(2)->state().selected);
}

TEST_F(AccessiblePanelListTest, ASelectedItemThatStandsTwice_HasTheFocusOnce) {
  show({work}, {opened(report, 1), notes});
  state->setSelectedItemId(report.id);
  EXPECT_TRUE(row(1)->state().focused);
  QAccessibleInterface *again = list()->child(1)->child(0);
  EXPECT_TRUE(again->state().selected);
  EXPECT_FALSE(again->state().focused);
}

TEST_F(AccessiblePanelListTest, ARow_StandsWhereItIsDrawn) {
  show({work}, {report, notes});
  const QRect area = row(2)->rect();
  EXPECT_EQ(area.topLeft(), listView()->viewport()->mapToGlobal(listView()->rowRect(2).topLeft()));
  EXPECT_EQ(list()->childAt(area.center().x(), area.center().y()), row(2));
  EXPECT_EQ(list()->childAt(-10'000, -10'000), nullptr);
  EXPECT_FALSE(row(2)->state().offscreen);
}

TEST_F(AccessiblePanelListTest, ARowOutOfSight_SaysSo) {
  QList<PathItem> items;
  for (int i = 0; i < 100; ++i) {
    items.append(item(u"Item %1"_s.arg(i), work, i));
  }
  show({work}, items);
  EXPECT_TRUE(list()->child(0)->child(99)->state().offscreen);
}

TEST_F(AccessiblePanelListTest, ThePressOfAnItem_OpensIt) {
  show({work}, {report, notes});
  act(row(2), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(processLauncher.launches, QStringList(u"/bin/sh -c edit notes"_s));
}

TEST_F(AccessiblePanelListTest, TheFocusGivenToAnItem_SelectsIt) {
  show({work}, {report, notes});
  act(row(2), QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(state->selectedItemId(), notes.id);
}

TEST_F(AccessiblePanelListTest, TheActionOfAGroup_FoldsAndUnfoldsIt) {
  show({work}, {report, notes});
  act(row(0), QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(row(0)->state().collapsed);
  EXPECT_TRUE(waitUntil([this] { return list()->child(0)->childCount() == 0; }));
  act(row(0), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(list()->child(0)->childCount(), 2);
}

TEST_F(AccessiblePanelListTest, AnActionThatARowDoesNotHave_DoesNothing) {
  show({work}, {report, notes});
  act(row(0), QAccessibleActionInterface::increaseAction());
  act(row(1), QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(list()->child(0)->childCount(), 2);
  EXPECT_TRUE(processLauncher.launches.isEmpty());
}

TEST_F(AccessiblePanelListTest, ASearch_LeavesTheRowsItFinds) {
  show({work}, {report, notes});
  ASSERT_EQ(list()->child(0)->childCount(), 2);
  state->setSearchQuery(u"note"_s);
  EXPECT_EQ(childNames(list()), QStringList(u"Work"_s));
  EXPECT_EQ(childNames(list()->child(0)), QStringList(u"Notes"_s));
  EXPECT_EQ(descriptionOf(row(0)), u"1 item"_s);
}

TEST_F(AccessiblePanelListTest, ARowThatIsGone_CannotBeReachedAnyMore) {
  show({work}, {report, notes});
  const QAccessible::Id id = QAccessible::uniqueId(row(1));
  ASSERT_EQ(QAccessible::accessibleInterface(id), row(1));
  state->setSearchQuery(u"note"_s);
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessiblePanelListTest, ARowThatMoves_StaysWhatItWas) {
  show({work}, {opened(report, 1), notes});
  QAccessibleInterface *item = list()->child(1)->child(1);
  state->setSearchQuery(u"note"_s);
  EXPECT_EQ(list()->child(0)->child(0), item);
  EXPECT_EQ(nameOf(item), u"Notes"_s);
  EXPECT_EQ(item->rect().topLeft(),
            listView()->viewport()->mapToGlobal(listView()->rowRect(1).topLeft()));
  EXPECT_EQ(item->parent(), list()->child(0));
}

TEST_F(AccessiblePanelListTest, ItemsThatRepeatAnId_AreRowsOfTheirOwn) {
  notes.id = report.id;
  show({work}, {report, notes});
  QAccessibleInterface *first = list()->child(0)->child(0);
  QAccessibleInterface *second = list()->child(0)->child(1);
  EXPECT_NE(first, second);
  state->setSearchQuery(u"e"_s);
  EXPECT_EQ(childNames(list()->child(0)), (QStringList{u"Report"_s, u"Notes"_s}));
}

TEST_F(AccessiblePanelListTest, WhenTheListEnds_ItsRowsEndToo) {
  show({work}, {report, notes});
  const QAccessible::Id id = QAccessible::uniqueId(row(2));
  view.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessiblePanelListTest, HostileTexts_AreHarmless) {
  report.name = QString();
  notes.name = u"a\nb\u0007c"_s + QChar(QChar::Null) + QString(100'000, u'x');
  notes.path = QString(100'000, u'\n');
  PathItem faces = item(u"x"_s + u"\U0001F600"_s.repeated(50'000), work, 2);
  show({work}, {report, notes, faces});
  EXPECT_EQ(nameOf(row(1)), QString());
  EXPECT_TRUE(nameOf(row(2)).startsWith(u"a b c x"_s));
  EXPECT_LE(nameOf(row(2)).size(), 1000);
  EXPECT_FALSE(descriptionOf(row(2)).contains(u'\n'));
  EXPECT_LE(descriptionOf(row(2)).size(), 1100);
  EXPECT_FALSE(nameOf(row(3)).back().isHighSurrogate());
}

}  // namespace lanternix
