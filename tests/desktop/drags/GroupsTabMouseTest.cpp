#include "TestDesktop.h"
#include "Views/Settings/GroupEditorView.h"
#include "support/InputDriver.h"
#include "support/WaitUntil.h"
#include "views/GroupsTabTest.h"

#include <QtGui/QDrag>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QScrollBar>

#include <X11/keysym.h>
#include <atomic>
#include <exception>
#include <thread>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// The tab on a real display, under a hand of its own: a drag runs an event loop within an event,
/// so that the hand has to move on a thread beside it.
class GroupsTabMouseTest : public GroupsTabTest {
 protected:
  GroupsTabMouseTest() {
    QList<PathItem> items{report, notes, plan, garden};
    for (int i = 0; i < 60; ++i) {
      items.append(item(u"Item %1"_s.arg(i), work, 3 + i));
    }
    show({work, home_}, items);
    EXPECT_TRUE(QTest::qWaitForWindowActive(tab.get()));
    click(groupList(), 0);
  }

  using Condition = std::function<bool()>;

  /// For the hand's thread: whether \p condition, looked at by the tab's own thread, comes true
  /// while the hand does \p meanwhile.
  static bool awaits(
      const Condition &condition, const std::function<void()> &meanwhile = [] {}) {
    const auto end = std::chrono::steady_clock::now() + patience;
    bool holds = false;
    while (!holds && std::chrono::steady_clock::now() < end) {
      meanwhile();
      QMetaObject::invokeMethod(
          qApp, [&] { holds = condition(); }, Qt::BlockingQueuedConnection);
    }
    return holds;
  }

  /// For the hand's thread: the same while it hovers over \p place, never quite still.
  static bool hovers(InputDriver &input, const QPoint &place, const Condition &condition) {
    int trembling = 0;
    return awaits(condition, [&] { input.moveTo(place + QPoint(++trembling % 2, 0)); });
  }

  static void byHand(const std::function<void(InputDriver &)> &movements) {
    std::atomic<bool> done = false;
    std::exception_ptr failure;
    std::thread hand([&] {
      try {
        InputDriver input(testDisplayName(), &testWindowManager());
        movements(input);
      } catch (...) {
        failure = std::current_exception();
      }
      done = true;
    });
    while (!done) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    hand.join();
    if (failure) {
      std::rethrow_exception(failure);
    }
  }

  /// Presses at \p from, moves over \p to until \p arrived, and then does \p ending.
  void drag(const QPoint &from, const QPoint &to, const Condition &arrived,
            const std::function<void(InputDriver &)> &ending) {
    const auto hasStarted = [this] { return tab->findChild<QDrag *>() != nullptr; };
    const QPoint beyond(0, QApplication::startDragDistance() + 1);
    byHand([&](InputDriver &input) {
      input.moveTo(from);
      input.pressButton();
      EXPECT_TRUE(hovers(input, from + beyond, hasStarted));
      EXPECT_TRUE(hovers(input, to, arrived));
      ending(input);
    });
  }
  static void letGo(InputDriver &input) { input.releaseButton(); }

  static QPoint onScreen(const QListView &list, const QPoint &position) {
    return list.viewport()->mapToGlobal(position);
  }
  static QPoint onScreen(const QListView &list, int row) {
    return onScreen(list, middleOf(list, row));
  }
  QStringList firstItems() const { return shown(itemList()).first(3); }
};

}  // namespace

TEST_F(GroupsTabMouseTest, AnItemDraggedOntoAGroup_MovesThere) {
  drag(
      onScreen(itemList(), 0), onScreen(groupList(), 1),
      [this] { return groupList().dragTargetId() == home_.id; }, letGo);
  EXPECT_TRUE(waitUntil([this] { return state->itemWithId(report.id)->groupId == home_.id; }));
  EXPECT_EQ(groupList().dragTargetId(), std::nullopt);
  EXPECT_EQ(tab->selectedGroupId(), work.id);
}

TEST_F(GroupsTabMouseTest, AnItemDraggedBetweenOthers_GoesThereAndStaysSelected) {
  const QPoint gap = rowRect(itemList(), 1).bottomLeft() + QPoint(80, -3);
  drag(
      onScreen(itemList(), 0), onScreen(itemList(), gap),
      [this] { return itemList().insertionRow() == 2; }, letGo);
  EXPECT_TRUE(waitUntil([this] {
    return firstItems() == QStringList{u"Notes"_s, u"Report"_s, u"Plan"_s};
  }));
  EXPECT_EQ(tab->selectedItemId(), report.id);
  EXPECT_EQ(itemList().insertionRow(), std::nullopt);
}

TEST_F(GroupsTabMouseTest, ARowTakenByItsFarEnd_IsHeldByTheEndOfItsPicture) {
  const QRect row = rowRect(itemList(), 0);
  const QPoint farEnd = row.center() + QPoint(row.width() / 2 - 30, 0);
  QPoint hotSpot;
  QSizeF picture;
  drag(
      onScreen(itemList(), farEnd), onScreen(itemList(), 2),
      [&] {
        const auto *running = tab->findChild<QDrag *>();
        hotSpot = running->hotSpot();
        picture = running->pixmap().deviceIndependentSize();
        return itemList().insertionRow().has_value();
      },
      letGo);
  EXPECT_GT(farEnd.x(), picture.width());
  EXPECT_EQ(hotSpot.x(), picture.width() - 1);
  EXPECT_NEAR(hotSpot.y(), farEnd.y() - row.top(), 1);  // Qt 6.8 may have the window a pixel off
}

TEST_F(GroupsTabMouseTest, AGroupDraggedAboveAnother_GoesThere) {
  const QPoint gap = rowRect(groupList(), 0).topLeft() + QPoint(80, 3);
  drag(
      onScreen(groupList(), 1), onScreen(groupList(), gap),
      [this] { return groupList().insertionRow() == 0; }, letGo);
  EXPECT_TRUE(waitUntil([this] {
    return shown(groupList()) == QStringList{u"Home"_s, u"Work"_s};
  }));
}

TEST_F(GroupsTabMouseTest, Escape_EndsADragAndChangesNothing) {
  drag(
      onScreen(itemList(), 0), onScreen(groupList(), 1),
      [this] { return groupList().dragTargetId() == home_.id; },
      [this](InputDriver &input) {
        input.tap(XK_Escape);
        EXPECT_TRUE(awaits([this] { return !groupList().dragTargetId().has_value(); }));
        input.releaseButton();
      });
  EXPECT_EQ(state->itemWithId(report.id)->groupId, work.id);
  EXPECT_TRUE(tab->isVisible());
  const QPoint other = onScreen(itemList(), 2);
  byHand([&](InputDriver &input) { input.click(other); });
  EXPECT_TRUE(waitUntil([this] { return tab->selectedItemId() == plan.id; }))
      << "the list takes presses again";
}

TEST_F(GroupsTabMouseTest, ADragAtTheEdge_ScrollsAndDropsFarBelow) {
  const QPoint edge(100, itemList().viewport()->height() - 4);
  const QScrollBar *bar = itemList().verticalScrollBar();
  drag(
      onScreen(itemList(), 0), onScreen(itemList(), edge),
      [bar] { return bar->value() == bar->maximum(); }, letGo);
  EXPECT_TRUE(waitUntil([this] { return shown(itemList()).indexOf(u"Report"_s) > 50; }));
}

TEST_F(GroupsTabMouseTest, ARowThatGoesWhileItIsDragged_DoesNoHarm) {
  drag(
      onScreen(itemList(), 0), onScreen(groupList(), 1),
      [this] { return groupList().dragTargetId() == home_.id; },
      [this](InputDriver &input) {
        EXPECT_TRUE(awaits([this] {
          state->deleteItem(report.id);
          return true;
        }));
        input.releaseButton();
      });
  EXPECT_TRUE(waitUntil([this] { return !groupList().dragTargetId().has_value(); }));
  EXPECT_EQ(firstItems().front(), u"Notes"_s);
}

TEST_F(GroupsTabMouseTest, ATripleClick_EditsOnce) {
  QSignalSpy edits(&groupList(), &RecordListView::editRequested);
  const QPoint row = onScreen(groupList(), 1);
  const QPoint outside = onScreen(groupList(), 0);
  byHand([&](InputDriver &input) {
    input.moveTo(outside);
    for (int i = 0; i < 3; ++i) {
      input.click(row);
    }
  });
  EXPECT_TRUE(waitUntil([this] { return dialogOf<GroupEditorView>() != nullptr; }));
  EXPECT_EQ(edits.count(), 1);
}

}  // namespace lanternix
