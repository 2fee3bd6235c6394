#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "views/ViewTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

namespace lanternix {

namespace {

class PanelListViewTest : public ViewTest {
 protected:
  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    state = makeState(groups, items);
    model = std::make_unique<PanelListModel>(*state);
    view = std::make_unique<PanelListView>(*state, *model);
    view->resize(500, 300);
    view->show();
  }

  /// A group with so many items that the list has to scroll.
  void showLongList() {
    QList<PathItem> items;
    for (int i = 0; i < 100; ++i) {
      items.append(item(QStringLiteral("Item %1").arg(i), work, i));
    }
    show({work}, items);
  }

  QPoint middleOf(qsizetype row) const { return view->rowRect(row).center(); }
  void click(qsizetype row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middleOf(row));
  }
  bool isInSight(qsizetype row) const {
    return view->viewport()->rect().contains(view->rowRect(row));
  }

  QMenu *openContextMenu(qsizetype row) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(row),
                            view->viewport()->mapToGlobal(middleOf(row)));
    QCoreApplication::sendEvent(view->viewport(), &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
  }

  static QStringList entries(const QMenu &menu) {
    QStringList texts;
    for (const QAction *action : menu.actions()) {
      texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
  }

  static void choose(QMenu &menu, const QString &text) {
    for (QAction *action : menu.actions()) {
      if (action->text() == text) {
        action->trigger();
      }
    }
    menu.close();
  }

  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work, 0, QStringLiteral("make report"));
  std::unique_ptr<AppState> state;
  std::unique_ptr<PanelListModel> model;
  std::unique_ptr<PanelListView> view;
};

}  // namespace

TEST_F(PanelListViewTest, AClickOnAnItem_OpensIt) {
  show({work}, {report});
  click(1);
  EXPECT_EQ(processLauncher.launches, QStringList(QStringLiteral("/bin/sh -c make report")));
}

TEST_F(PanelListViewTest, AClickOnAHeader_FoldsAndUnfoldsTheGroup) {
  show({work}, {report});
  click(0);
  EXPECT_FALSE(state->groups().front().isExpanded);
  click(0);
  EXPECT_TRUE(state->groups().front().isExpanded);
}

TEST_F(PanelListViewTest, APressThatLeavesTheRow_OpensNothing) {
  show({work}, {report});
  QTest::mousePress(view->viewport(), Qt::LeftButton, {}, middleOf(1));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, middleOf(0));
  EXPECT_TRUE(processLauncher.launches.isEmpty());
}

TEST_F(PanelListViewTest, AnotherButton_OpensNothing) {
  show({work}, {report});
  QTest::mouseClick(view->viewport(), Qt::MiddleButton, {}, middleOf(1));
  EXPECT_TRUE(processLauncher.launches.isEmpty());
}

TEST_F(PanelListViewTest, TheSelection_IsScrolledIntoSight) {
  showLongList();
  state->navigateUp();
  EXPECT_TRUE(isInSight(100)) << "the last item, round the end";
  EXPECT_FALSE(isInSight(1));
}

TEST_F(PanelListViewTest, TheFirstItem_BringsItsHeaderAlong) {
  showLongList();
  state->navigateUp();
  state->navigateDown();
  EXPECT_TRUE(isInSight(1));
  EXPECT_TRUE(isInSight(0));
  EXPECT_EQ(view->verticalScrollBar()->value(), 0);
}

TEST_F(PanelListViewTest, ASelectionInSight_DoesNotScroll) {
  showLongList();
  view->verticalScrollBar()->setValue(200);
  state->setSelectedItemId(model->itemAt(view->rowAt({100, 150}))->id);
  EXPECT_EQ(view->verticalScrollBar()->value(), 200);
}

TEST_F(PanelListViewTest, ANewSearch_StartsAtTheTop) {
  showLongList();
  view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
  state->setSearchQuery(QStringLiteral("item"));
  EXPECT_EQ(view->verticalScrollBar()->value(), 0);
}

TEST_F(PanelListViewTest, AChangeOfTheItems_LeavesAListThatWasScrolledWhereItIs) {
  showLongList();
  state->navigateDown();
  view->verticalScrollBar()->setValue(400);
  state->deleteItem(state->items().back().id);
  EXPECT_EQ(view->verticalScrollBar()->value(), 400);
}

TEST_F(PanelListViewTest, TheSelectedRow_IsDrawnDifferently) {
  show({work}, {report, item(QStringLiteral("Notes"), work, 1)});
  const QImage before = view->grab(view->rowRect(1)).toImage();
  const QImage otherBefore = view->grab(view->rowRect(2)).toImage();
  state->setSelectedItemId(report.id);
  EXPECT_NE(view->grab(view->rowRect(1)).toImage(), before);
  EXPECT_EQ(view->grab(view->rowRect(2)).toImage(), otherBefore);
}

TEST_F(PanelListViewTest, ABrokenItem_IsMarked) {
  PathItem there = report;
  there.type = ItemType::file;
  there.path = home.dataFile();
  PathItem missing = there;
  missing.id = QUuid::createUuid();
  missing.path = there.path + QLatin1Char('x');
  show({work}, {there, missing});
  state->setShowURLs(false);
  EXPECT_NE(view->grab(view->rowRect(1)).toImage(), view->grab(view->rowRect(2)).toImage());
}

TEST_F(PanelListViewTest, OnlyRowsInSight_AskForTheirIcons) {
  QList<PathItem> items;
  for (int i = 0; i < 1000; ++i) {
    items.append(item(QStringLiteral("Item"), work, i, QStringLiteral("/%1").arg(i)));
    items.last().type = ItemType::file;
  }
  show({work}, items);
  EXPECT_TRUE(workspace.iconRequests.isEmpty()) << "before anything is drawn";
  view->grab();
  EXPECT_FALSE(workspace.iconRequests.isEmpty());
  EXPECT_LT(workspace.iconRequests.size(), 20);
}

TEST_F(PanelListViewTest, EveryDensity_HasRowsOfItsOwnHeight) {
  show({work}, {report});
  const int medium = view->rowRect(1).height();
  state->setPanelItemSize(PanelItemSize::small);
  EXPECT_LT(view->rowRect(1).height(), medium);
  state->setPanelItemSize(PanelItemSize::large);
  EXPECT_GT(view->rowRect(1).height(), medium);
}

TEST_F(PanelListViewTest, HostileNames_AreDrawnWithoutHarm) {
  PathItem hostile = report;
  hostile.name = QStringLiteral("a\nb\tc\u202e\u0000d<b>&amp;").repeated(2000);
  hostile.path = QString(100'000, u'\U0000FFFD');
  show({work}, {hostile});
  EXPECT_EQ(view->grab().size(), view->size());
}

TEST_F(PanelListViewTest, TheMenuOfACommand_CopiesTheCommand) {
  show({work}, {report});
  QMenu *menu = openContextMenu(1);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(entries(*menu),
            (QStringList{QStringLiteral("Duplicate"), QStringLiteral("Copy Command"),
                         QStringLiteral("-"), QStringLiteral("Delete")}));
  choose(*menu, QStringLiteral("Copy Command"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), report.path);
}

TEST_F(PanelListViewTest, TheMenuOfAFile_RevealsIt) {
  report.type = ItemType::file;
  show({work}, {report});
  QMenu *menu = openContextMenu(1);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(entries(*menu).front(), QStringLiteral("Reveal in Finder"));
  choose(*menu, QStringLiteral("Reveal in Finder"));
  EXPECT_EQ(workspace.requests, QStringList(QStringLiteral("revealInFileViewer make report")));
}

TEST_F(PanelListViewTest, TheMenuOfALink_CopiesItsPath) {
  report.type = ItemType::link;
  show({work}, {report});
  QMenu *menu = openContextMenu(1);
  ASSERT_NE(menu, nullptr);
  EXPECT_FALSE(entries(*menu).contains(QStringLiteral("Reveal in Finder")));
  choose(*menu, QStringLiteral("Copy Path"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), report.path);
}

TEST_F(PanelListViewTest, TheMenu_DuplicatesAndDeletesAtOnce) {
  show({work}, {report});
  choose(*openContextMenu(1), QStringLiteral("Duplicate"));
  EXPECT_EQ(names(state->items()),
            (QStringList{QStringLiteral("Report"), QStringLiteral("Report Copy")}));
  choose(*openContextMenu(1), QStringLiteral("Delete"));
  EXPECT_EQ(names(state->items()), QStringList(QStringLiteral("Report Copy")));
}

TEST_F(PanelListViewTest, TheKeyboardsMenu_IsThatOfTheSelectedItem) {
  show({work}, {item(QStringLiteral("Notes"), work), report});
  EXPECT_FALSE(view->openMenuOfSelection()) << "nothing is selected";
  state->setSelectedItemId(report.id);
  EXPECT_TRUE(view->openMenuOfSelection());
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  choose(*menu, QStringLiteral("Delete"));
  EXPECT_EQ(names(state->items()), QStringList(QStringLiteral("Notes")));
}

TEST_F(PanelListViewTest, AHeader_HasNoMenu) {
  show({work}, {report});
  EXPECT_EQ(openContextMenu(0), nullptr);
}

}  // namespace lanternix
