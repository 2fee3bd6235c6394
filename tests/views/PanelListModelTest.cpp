#include "Views/Panel/PanelListModel.h"
#include "views/ViewTest.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

namespace lanternix {

namespace {

using Kind = PanelRow::Kind;

class PanelListModelTest : public ViewTest {
 protected:
  PathGroup work = group(QStringLiteral("Work"), 0);
  PathGroup home_ = foldedGroup(QStringLiteral("Home"), 1);
  PathItem report = item(QStringLiteral("Report"), work, 0);
  PathItem notes = item(QStringLiteral("Notes"), work, 1);
  PathItem garden = item(QStringLiteral("Garden"), home_, 0);
};

QList<Kind> kinds(const PanelListModel &model) {
  QList<Kind> result;
  for (const PanelRow &row : model.rows()) {
    result.append(row.kind);
  }
  return result;
}

}  // namespace

TEST_F(PanelListModelTest, AFoldedGroup_HasOnlyItsHeader) {
  const auto state = makeState({work, home_}, {report, notes, garden});
  const PanelListModel model(*state);
  EXPECT_EQ(kinds(model), (QList{Kind::groupHeader, Kind::item, Kind::item, Kind::groupHeader}));
}

TEST_F(PanelListModelTest, AFoldedGroup_StillCountsItsItems) {
  const auto state = makeState({home_}, {garden});
  const PanelListModel model(*state);
  EXPECT_EQ(model.index(0).data(PanelListModel::CountRole).toInt(), 1);
  EXPECT_FALSE(model.index(0).data(PanelListModel::ExpandedRole).toBool());
}

TEST_F(PanelListModelTest, AnExpandedGroupWithoutItems_SaysSo) {
  const auto state = makeState({work}, {});
  const PanelListModel model(*state);
  EXPECT_EQ(kinds(model), (QList{Kind::groupHeader, Kind::emptyGroup}));
  EXPECT_EQ(model.index(1).data().toString(), QStringLiteral("No items in this group"));
}

TEST_F(PanelListModelTest, RecentItems_ComeFirst_NewestFirst) {
  const auto state = makeState({home_}, {opened(garden, 1), opened(report, 2)});
  const PanelListModel model(*state);
  EXPECT_EQ(kinds(model),
            (QList{Kind::recentHeader, Kind::item, Kind::item, Kind::divider, Kind::groupHeader}));
  EXPECT_EQ(model.index(1).data().toString(), QStringLiteral("Report"));
  EXPECT_EQ(model.index(2).data().toString(), QStringLiteral("Garden"));
}

TEST_F(PanelListModelTest, RecentItems_AreHiddenWhileSearching) {
  const auto state = makeState({work}, {opened(report, 1)});
  const PanelListModel model(*state);
  state->setSearchQuery(QStringLiteral("rep"));
  EXPECT_EQ(kinds(model), (QList{Kind::groupHeader, Kind::item}));
}

TEST_F(PanelListModelTest, RecentItems_CanBeSwitchedOff) {
  const auto state = makeState({home_}, {opened(garden, 1)});
  const PanelListModel model(*state);
  state->setShowRecentItems(false);
  EXPECT_EQ(kinds(model), (QList{Kind::groupHeader}));
}

TEST_F(PanelListModelTest, ASearch_LeavesOnlyTheMatches) {
  const auto state = makeState({work, home_}, {report, notes, garden});
  const PanelListModel model(*state);
  state->setSearchQuery(QStringLiteral("gard"));
  ASSERT_EQ(kinds(model), (QList{Kind::groupHeader, Kind::item}));
  EXPECT_EQ(model.index(1).data(PanelListModel::IdRole).toUuid(), garden.id);
}

TEST_F(PanelListModelTest, RowOfItem_IsTheFirstThatShowsIt) {
  const auto state = makeState({work}, {report, opened(notes, 1)});
  const PanelListModel model(*state);
  EXPECT_EQ(model.rowOfItem(notes.id), 1) << "in the recent section";
  EXPECT_EQ(model.rowOfItem(report.id), 4);
  EXPECT_EQ(model.rowOfItem(QUuid::createUuid()), -1);
}

TEST_F(PanelListModelTest, KeepsTheContractOfModels_ThroughEveryChange) {
  const auto state = makeState({work, home_}, {report, notes, garden});
  PanelListModel model(*state);
  const QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  state->setSearchQuery(QStringLiteral("no"));
  state->setSearchQuery({});
  state->toggleGroup(work.id);
  state->addItem(item(QStringLiteral("New"), work));
  state->openItem(report);
  state->deleteGroup(work.id);
  state->deleteGroup(home_.id);
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(PanelListModelTest, AChangeOfTheSelection_LeavesTheRowsAlone) {
  const auto state = makeState({work}, {report, notes});
  const PanelListModel model(*state);
  const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
  state->navigateDown();
  EXPECT_EQ(resets.count(), 0);
}

}  // namespace lanternix
