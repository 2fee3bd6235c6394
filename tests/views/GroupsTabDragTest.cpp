#include "Views/Settings/DragPayload.h"
#include "Views/Style/LanternixStyle.h"
#include "views/GroupsTabTest.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QScrollBar>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// Drags as the window system tells of them: enter, moves, then a drop or a leave.
class GroupsTabDragTest : public GroupsTabTest {
 protected:
  static std::unique_ptr<QMimeData> payload(const QListView &list, int row) {
    return std::unique_ptr<QMimeData>(list.model()->mimeData({list.model()->index(row, 0)}));
  }
  static std::unique_ptr<QMimeData> text(const QString &text) {
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    return data;
  }

  /// Whether \p list would take it at \p place.
  static bool hover(const QListView &list, const QPoint &place, const QMimeData &data) {
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list.viewport(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list.viewport(), &move);
    return enter.isAccepted() && move.isAccepted();
  }
  static void leave(const QListView &list) {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(list.viewport(), &event);
  }
  static bool drop(const QListView &list, const QPoint &place, const QMimeData &data) {
    if (!hover(list, place, data)) {
      leave(list);
      return false;
    }
    QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list.viewport(), &event);
    return event.isAccepted();
  }
  static QPixmap pictureOf(const RecordListView &list, int row) {
    return list.dragPicture(list.model()->index(row, 0));
  }
  /// Just within the upper or the lower edge of a row.
  static QPoint above(const QListView &list, int row) {
    return rowRect(list, row).topLeft() + QPoint(60, 2);
  }
  static QPoint below(const QListView &list, int row) {
    return rowRect(list, row).bottomLeft() + QPoint(60, -2);
  }
};

}  // namespace

TEST_F(GroupsTabDragTest, AnItem_CarriesItsIdAsPlainTextInUpperCase) {
  show();
  click(groupList(), 0);
  EXPECT_EQ(payload(itemList(), 1)->text(), notes.id.toString(QUuid::WithoutBraces).toUpper());
  EXPECT_FALSE(payload(groupList(), 0)->hasText());
}

TEST_F(GroupsTabDragTest, AnItemDroppedBetweenRows_GoesThere) {
  show();
  click(groupList(), 0);
  EXPECT_TRUE(drop(itemList(), below(itemList(), 1), *payload(itemList(), 0)));
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Report"_s, u"Plan"_s}));
  EXPECT_TRUE(drop(itemList(), above(itemList(), 0), *payload(itemList(), 2)));
  EXPECT_EQ(shown(itemList()), (QStringList{u"Plan"_s, u"Notes"_s, u"Report"_s}));
}

TEST_F(GroupsTabDragTest, AnItemDroppedBelowTheRows_GoesToTheEnd) {
  show();
  click(groupList(), 0);
  EXPECT_TRUE(
      drop(itemList(), {60, itemList().viewport()->height() - 30}, *payload(itemList(), 0)));
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Plan"_s, u"Report"_s}));
}

TEST_F(GroupsTabDragTest, AnItemDroppedWhereItIs_SavesNothing) {
  show();
  click(groupList(), 0);
  EXPECT_FALSE(saves([this] {
    drop(itemList(), above(itemList(), 1), *payload(itemList(), 1));
    drop(itemList(), below(itemList(), 1), *payload(itemList(), 1));
  }));
}

TEST_F(GroupsTabDragTest, ARowInTheMiddleOfASearch_GoesWhereItIsSeenToGo) {
  PathItem hidden = item(u"Hidden"_s, work, 1);
  notes.order = 2;
  plan.order = 3;
  report.name = u"a Report"_s;
  notes.name = u"a Note"_s;
  plan.name = u"a Plan"_s;
  for (PathItem *each : {&report, &notes, &plan, &hidden}) {
    each->path = u"-"_s;
  }
  show({work}, {report, hidden, notes, plan});
  click(groupList(), 0);
  state->setSearchQuery(u"a "_s);
  ASSERT_EQ(shown(itemList()), (QStringList{u"a Report"_s, u"a Note"_s, u"a Plan"_s}));
  drop(itemList(), above(itemList(), 1), *payload(itemList(), 2));
  EXPECT_EQ(shown(itemList()), (QStringList{u"a Report"_s, u"a Plan"_s, u"a Note"_s}));
  drop(itemList(), below(itemList(), 2), *payload(itemList(), 0));
  EXPECT_EQ(shown(itemList()), (QStringList{u"a Plan"_s, u"a Note"_s, u"a Report"_s}));
  state->setSearchQuery({});
  EXPECT_EQ(shown(itemList()).size(), 4);
}

TEST_F(GroupsTabDragTest, AGroup_IsMovedAndStaysSelected) {
  show();
  click(groupList(), 0);
  EXPECT_TRUE(drop(groupList(), below(groupList(), 1), *payload(groupList(), 0)));
  EXPECT_EQ(names(state->groups()), (QStringList{u"Home"_s, u"Work"_s}));
  EXPECT_EQ(tab->selectedGroupId(), work.id);
  EXPECT_EQ(groupList().selectionModel()->selectedIndexes().front().row(), 1);
}

TEST_F(GroupsTabDragTest, GroupsAreMoved_AsTheyAreSeen_NotAsTheyAreStored) {
  work.order = 1;
  home_.order = 0;
  show();
  ASSERT_EQ(shown(groupList()), (QStringList{u"Home"_s, u"Work"_s}));
  drop(groupList(), below(groupList(), 1), *payload(groupList(), 0));
  EXPECT_EQ(shown(groupList()), (QStringList{u"Work"_s, u"Home"_s}));
}

TEST_F(GroupsTabDragTest, ALineShows_WhereTheRowWouldGo) {
  show();
  click(groupList(), 0);
  const QImage before = itemList().grab().toImage();
  const auto item = payload(itemList(), 0);
  hover(itemList(), below(itemList(), 1), *item);
  EXPECT_EQ(itemList().insertionRow(), 2);
  EXPECT_NE(itemList().grab().toImage(), before);
  hover(itemList(), below(itemList(), 2), *item);
  EXPECT_EQ(itemList().insertionRow(), 3);
  leave(itemList());
  EXPECT_EQ(itemList().insertionRow(), std::nullopt);
  EXPECT_EQ(itemList().grab().toImage(), before);
}

TEST_F(GroupsTabDragTest, AnItemOverAGroup_HighlightsIt) {
  show();
  click(groupList(), 0);
  const auto item = payload(itemList(), 0);
  const QImage before = groupList().grab(rowRect(groupList(), 1)).toImage();
  EXPECT_TRUE(hover(groupList(), middleOf(groupList(), 1), *item));
  EXPECT_EQ(groupList().dragTargetId(), home_.id);
  EXPECT_NE(groupList().grab(rowRect(groupList(), 1)).toImage(), before);
  EXPECT_TRUE(hover(groupList(), middleOf(groupList(), 0), *item));
  EXPECT_EQ(groupList().dragTargetId(), work.id);
  leave(groupList());
  EXPECT_EQ(groupList().dragTargetId(), std::nullopt);
}

TEST_F(GroupsTabDragTest, AnItemDroppedOnAGroup_MovesThere) {
  show();
  click(groupList(), 0);
  EXPECT_TRUE(drop(groupList(), middleOf(groupList(), 1), *payload(itemList(), 0)));
  EXPECT_EQ(state->itemWithId(report.id)->groupId, home_.id);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Plan"_s}));
  EXPECT_EQ(groupList().dragTargetId(), std::nullopt);
  EXPECT_EQ(tab->selectedGroupId(), work.id);
}

TEST_F(GroupsTabDragTest, TheIdOfAnItem_MovesIt_WhereverTheTextIsFrom) {
  show();
  const QString id = garden.id.toString(QUuid::WithoutBraces).toLower();
  EXPECT_TRUE(drop(groupList(), middleOf(groupList(), 0), *text(id)));
  EXPECT_EQ(state->itemWithId(garden.id)->groupId, work.id);
}

TEST_F(GroupsTabDragTest, AnyOtherText_IsTakenAndChangesNothing) {
  show();
  const QString id = garden.id.toString();
  EXPECT_FALSE(saves([&] {
    for (const QString &other :
         {u""_s, u"Work"_s, id, id.mid(1, 35), QUuid::createUuid().toString(QUuid::WithoutBraces),
          work.id.toString(QUuid::WithoutBraces), QString(100'000, u'7')}) {
      EXPECT_TRUE(drop(groupList(), middleOf(groupList(), 0), *text(other)));
    }
  }));
  EXPECT_EQ(state->itemWithId(garden.id)->groupId, home_.id);
}

TEST_F(GroupsTabDragTest, ForeignText_IsCopied_SoThatItsOwnerKeepsIt) {
  show();
  const auto data = text(u"precious"_s);
  hover(groupList(), middleOf(groupList(), 0), *data);
  QDropEvent event(middleOf(groupList(), 0), Qt::CopyAction | Qt::MoveAction, data.get(),
                   Qt::LeftButton, {});
  event.setDropAction(Qt::MoveAction);
  QCoreApplication::sendEvent(groupList().viewport(), &event);
  EXPECT_EQ(event.dropAction(), Qt::CopyAction);
}

TEST_F(GroupsTabDragTest, TextWithoutAPlainForm_IsRefused) {
  show();
  QMimeData formatted;
  formatted.setHtml(garden.id.toString(QUuid::WithoutBraces));
  EXPECT_FALSE(drop(groupList(), middleOf(groupList(), 0), formatted));
  QMimeData files;
  files.setUrls({QUrl(u"file:///etc/hostname"_s)});
  EXPECT_FALSE(drop(groupList(), middleOf(groupList(), 0), files));
  EXPECT_EQ(groupList().dragTargetId(), std::nullopt);
}

TEST_F(GroupsTabDragTest, BesideTheGroups_NothingIsTaken) {
  show();
  EXPECT_FALSE(drop(groupList(), {60, groupList().viewport()->height() - 20}, *text(u"x"_s)));
}

TEST_F(GroupsTabDragTest, TheItems_TakeOnlyTheirOwnRows) {
  show();
  click(groupList(), 0);
  EXPECT_FALSE(drop(itemList(), middleOf(itemList(), 0), *text(u"x"_s)));
  EXPECT_FALSE(drop(itemList(), middleOf(itemList(), 0), *payload(groupList(), 0)));
  EXPECT_FALSE(drop(itemList(), middleOf(itemList(), 0), *DragPayload::forItem(garden.id)));
}

TEST_F(GroupsTabDragTest, ARowThatGoesWhileItIsDragged_DoesNoHarm) {
  show();
  click(groupList(), 0);
  const auto item = payload(itemList(), 0);
  EXPECT_TRUE(hover(itemList(), below(itemList(), 1), *item));
  state->deleteItem(report.id);
  QDropEvent event(below(itemList(), 1), Qt::MoveAction, item.get(), Qt::LeftButton, {});
  QCoreApplication::sendEvent(itemList().viewport(), &event);
  EXPECT_EQ(shown(itemList()), (QStringList{u"Notes"_s, u"Plan"_s}));
}

TEST_F(GroupsTabDragTest, TheListScrolls_WhileADragRestsAtItsEdge) {
  QList<PathItem> items;
  for (int i = 0; i < 100; ++i) {
    items.append(item(QString::number(i), work, i));
  }
  show({work}, items);
  click(groupList(), 0);
  const auto first = payload(itemList(), 0);
  const QPoint edge(60, itemList().viewport()->height() - 3);
  hover(itemList(), edge, *first);
  const int gap = *itemList().insertionRow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return itemList().verticalScrollBar()->value() > 100; }));
  EXPECT_GT(*itemList().insertionRow(), gap) << "the line stays under the pointer";
  leave(itemList());
  EXPECT_EQ(itemList().insertionRow(), std::nullopt);
}

TEST_F(GroupsTabDragTest, APress_StartsADragOnlyAfterTheDistance) {
  show();
  click(groupList(), 0);
  QWidget *viewport = itemList().viewport();
  QPoint place = middleOf(itemList(), 0);
  const int distance = QApplication::startDragDistance();
  const auto isDragging = [this] { return itemList().findChild<QDrag *>() != nullptr; };
  QTest::mousePress(viewport, Qt::LeftButton, {}, place);
  for (int moved = 1; moved < distance; ++moved) {
    QTest::mouseMove(viewport, place + QPoint(0, moved));
  }
  EXPECT_FALSE(isDragging());
  QTest::mouseMove(viewport, place + QPoint(0, distance + 2));
  EXPECT_TRUE(isDragging());
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, place + QPoint(0, distance + 4));
  EXPECT_EQ(shown(itemList()), (QStringList{u"Report"_s, u"Notes"_s, u"Plan"_s}));
}

TEST_F(GroupsTabDragTest, AnotherButton_DragsNothing) {
  show();
  click(groupList(), 0);
  QWidget *viewport = itemList().viewport();
  const QPoint place = middleOf(itemList(), 0);
  QTest::mousePress(viewport, Qt::MiddleButton, {}, place);
  for (int moved = 10; moved < 50; moved += 10) {
    QTest::mouseMove(viewport, place + QPoint(0, moved));
  }
  EXPECT_EQ(itemList().findChild<QDrag *>(), nullptr);
  QTest::mouseRelease(viewport, Qt::MiddleButton, {}, place + QPoint(0, 50));
}

TEST_F(GroupsTabDragTest, ThePictureOfADrag_IsTheRowsOwn) {
  show();
  click(groupList(), 0);
  const QPixmap picture = pictureOf(itemList(), 0);
  EXPECT_NE(picture.toImage(), pictureOf(itemList(), 1).toImage());
  EXPECT_EQ(picture.deviceIndependentSize().height(), rowRect(itemList(), 0).height());
}

TEST_F(GroupsTabDragTest, ThePictureOfADrag_LeavesMostOfAWideRowInSight) {
  show();
  tab->resize(1000, 480);
  QCoreApplication::processEvents();
  click(groupList(), 0);
  ASSERT_GT(rowRect(itemList(), 0).width(), 600);
  EXPECT_EQ(pictureOf(itemList(), 0).deviceIndependentSize().width(), 220);
}

TEST_F(GroupsTabDragTest, ThePictureOfADrag_LeavesAQuarterOfANarrowRowInSight) {
  show();
  const int row = rowRect(groupList(), 0).width();
  ASSERT_LE(row, 290);
  EXPECT_EQ(pictureOf(groupList(), 0).deviceIndependentSize().width(), qRound(row * 0.75));
}

TEST_F(GroupsTabDragTest, ThePictureOfADrag_IsSeenThroughWhereWindowsAreBlended) {
  show();
  const QPoint ground(2, 10);
  auto &style = *qobject_cast<LanternixStyle *>(QApplication::style());
  EXPECT_EQ(pictureOf(groupList(), 0).toImage().pixelColor(ground).alpha(), 255);
  style.setSoftEdges(true);
  const int alpha = pictureOf(groupList(), 0).toImage().pixelColor(ground).alpha();
  style.setSoftEdges(false);
  EXPECT_NEAR(alpha, 0.8 * 255, 1);
}

}  // namespace lanternix
