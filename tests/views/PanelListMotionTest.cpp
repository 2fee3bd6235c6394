#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Style/LanternixStyle.h"
#include "support/WaitUntil.h"
#include "views/ViewTest.h"

#include <QtGui/QCursor>
#include <QtTest/QTest>
#include <QtWidgets/QScrollBar>

namespace lanternix {

namespace {

class PanelListMotionTest : public ViewTest {
 protected:
  PanelListMotionTest() {
    QList<PathItem> items;
    for (int i = 0; i < 20; ++i) {
      items.append(item(QStringLiteral("Item %1").arg(i), work, i));
    }
    items.append(item(QStringLiteral("Chair"), home_));
    state = makeState({work, home_}, items);
    model = std::make_unique<PanelListModel>(*state);
    view = std::make_unique<PanelListView>(*state, *model);
    view->resize(500, 1600);
    // A row under a pointer that was left there would be lit from the start.
    QCursor::setPos(0, 0);
    view->show();
  }

  void click(qsizetype row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->rowRect(row).center());
  }
  /// Where the second group's header stands, wherever the first group's rows are.
  int secondHeaderTop() const { return view->rowRect(model->rowCount() - 2).top(); }
  bool comesToRest(int rows) {
    return waitUntil([&] { return model->rowCount() == rows; });
  }

  static constexpr int unfoldedRows = 23;
  static constexpr int foldedRows = 3;

  PathGroup work = group(QStringLiteral("Work"));
  PathGroup home_ = group(QStringLiteral("Home"), 1);
  std::unique_ptr<AppState> state;
  std::unique_ptr<PanelListModel> model;
  std::unique_ptr<PanelListView> view;
};

}  // namespace

TEST_F(PanelListMotionTest, AFoldingGroup_ShowsItsRowsUntilTheyHaveGoneUnderItsHeader) {
  const int unfoldedTop = secondHeaderTop();
  const int foldedTop = view->rowRect(0).bottom() + 1 + 4;
  click(0);
  EXPECT_EQ(model->rowCount(), unfoldedRows) << "they are still on their way";
  EXPECT_TRUE(waitUntil([&] {
    const int top = secondHeaderTop();
    return top < unfoldedTop && top > foldedTop;
  })) << "what stands below slides up";
  EXPECT_TRUE(comesToRest(foldedRows));
  EXPECT_EQ(secondHeaderTop(), foldedTop);
}

TEST_F(PanelListMotionTest, AnUnfoldingGroup_SlidesOpen) {
  const int unfoldedTop = secondHeaderTop();
  click(0);
  ASSERT_TRUE(comesToRest(foldedRows));
  const int foldedTop = secondHeaderTop();
  click(0);
  EXPECT_EQ(model->rowCount(), unfoldedRows);
  EXPECT_EQ(secondHeaderTop(), foldedTop) << "it starts where it was";
  EXPECT_TRUE(waitUntil([&] { return secondHeaderTop() == unfoldedTop; }));
}

TEST_F(PanelListMotionTest, AGroupTurnedRound_GoesBackFromWhereItStands) {
  const int unfoldedTop = secondHeaderTop();
  click(0);
  ASSERT_TRUE(waitUntil([&] { return secondHeaderTop() < unfoldedTop - 20; }));
  const int turningPoint = secondHeaderTop();
  click(0);
  EXPECT_EQ(secondHeaderTop(), turningPoint);
  EXPECT_TRUE(state->groups().front().isExpanded);
  EXPECT_TRUE(waitUntil([&] { return secondHeaderTop() == unfoldedTop; }));
  EXPECT_EQ(model->rowCount(), unfoldedRows);
}

TEST_F(PanelListMotionTest, WithMotionReduced_AGroupFoldsAtOnce) {
  auto *style = new LanternixStyle;
  style->setParent(view.get());
  style->setMotionReduced(true);
  view->setStyle(style);
  click(0);
  EXPECT_EQ(model->rowCount(), foldedRows);
  click(0);
  EXPECT_EQ(model->rowCount(), unfoldedRows);
}

TEST_F(PanelListMotionTest, ASearchWhileAGroupFolds_EndsTheMotion) {
  click(0);
  state->setSearchQuery(QStringLiteral("chair"));
  EXPECT_EQ(model->rowCount(), 2) << "the header of the one group and its item";
}

TEST_F(PanelListMotionTest, HidingTheList_EndsTheMotion) {
  click(0);
  view->hide();
  EXPECT_EQ(model->rowCount(), foldedRows);
}

TEST_F(PanelListMotionTest, RowsOnTheirWay_TakeClicksOnlyWhereTheyCanBeSeen) {
  const int unfoldedTop = secondHeaderTop();
  click(0);
  ASSERT_TRUE(waitUntil([&] { return secondHeaderTop() < unfoldedTop - 20; }));
  EXPECT_EQ(view->rowAt(view->rowRect(0).center()), 0) << "the rows are under the header";
  EXPECT_EQ(view->rowAt(view->rowRect(model->rowCount() - 2).center()), model->rowCount() - 2);
}

TEST_F(PanelListMotionTest, ThePointersHighlight_FadesIn) {
  const QRect row = view->rowRect(1);
  const QPoint edge(row.left() + 40, row.top() + 3);
  const auto colour = [&] { return view->viewport()->grab().toImage().pixelColor(edge); };
  const QColor plain = colour();
  QTest::mouseMove(view->viewport(), view->rowRect(0).center());
  QTest::mouseMove(view->viewport(), row.center());
  EXPECT_EQ(colour(), plain) << "it starts from nothing";
  EXPECT_TRUE(waitUntil([&] { return colour() != plain; }));
}

}  // namespace lanternix
