#include "Views/Panel/PanelListLayout.h"

#include <gtest/gtest.h>

namespace lanternix {

namespace {

using Kind = PanelRow::Kind;

constexpr PanelListLayout::Heights heights{
    .recentHeader = 30, .item = 50, .divider = 13, .groupHeader = 40, .emptyGroup = 31};

PanelListLayout laidOut(const QList<PanelRow> &rows) {
  PanelListLayout layout;
  layout.layOut(rows, heights);
  return layout;
}

}  // namespace

TEST(PanelListLayout, WithoutRows_IsOnlyItsPadding) {
  const PanelListLayout layout = laidOut({});
  EXPECT_EQ(layout.height(), 20);
  EXPECT_EQ(layout.rowAt(5), -1);
  EXPECT_EQ(layout.firstRowBelow(0), 0);
}

TEST(PanelListLayout, RowsOfAGroup_FollowItsHeaderWithoutAGap) {
  const PanelListLayout layout = laidOut({{Kind::groupHeader, 0}, {Kind::item, 0, false}});
  EXPECT_EQ(layout.top(0), 10);
  EXPECT_EQ(layout.bottom(0), 50);
  EXPECT_EQ(layout.top(1), 50);
  EXPECT_EQ(layout.height(), 110);
}

TEST(PanelListLayout, Sections_AreSetOffByFourPixels) {
  const PanelListLayout layout = laidOut({{Kind::groupHeader, 0}, {Kind::groupHeader, 1}});
  EXPECT_EQ(layout.top(1), 54);
  EXPECT_EQ(layout.rowAt(51), -1) << "the gap belongs to no row";
}

TEST(PanelListLayout, RowAt_FindsTheRowThatCoversAPosition) {
  const PanelListLayout layout = laidOut({{Kind::groupHeader, 0}, {Kind::item, 0, false}});
  EXPECT_EQ(layout.rowAt(9), -1);
  EXPECT_EQ(layout.rowAt(10), 0);
  EXPECT_EQ(layout.rowAt(49), 0);
  EXPECT_EQ(layout.rowAt(50), 1);
  EXPECT_EQ(layout.rowAt(99), 1);
  EXPECT_EQ(layout.rowAt(100), -1);
}

TEST(PanelListLayout, FirstRowBelow_IsTheFirstToDraw) {
  const PanelListLayout layout = laidOut({{Kind::groupHeader, 0}, {Kind::item, 0, false}});
  EXPECT_EQ(layout.firstRowBelow(49), 0);
  EXPECT_EQ(layout.firstRowBelow(50), 1);
  EXPECT_EQ(layout.firstRowBelow(100), 2);
}

namespace {

const QList<PanelRow> twoGroups{{Kind::groupHeader, 0},
                                {Kind::item, 0, false},
                                {Kind::item, 1, false},
                                {Kind::groupHeader, 1},
                                {Kind::item, 2, false}};

PanelListLayout openTo(double openness) {
  PanelListLayout layout;
  layout.layOut(twoGroups, heights, {{0, openness}});
  return layout;
}

}  // namespace

TEST(PanelListLayout, AGroupHalfUnfolded_ShowsTheLowerHalfOfItsRows) {
  const PanelListLayout layout = openTo(0.5);
  EXPECT_EQ(layout.top(1), layout.bottom(1)) << "under the header";
  EXPECT_EQ(layout.top(2), 50);
  EXPECT_EQ(layout.bottom(2), 100);
  EXPECT_EQ(layout.top(3), 104) << "what follows comes up";
}

TEST(PanelListLayout, ARowHalfUnderItsHeader_IsCutOffThere) {
  const PanelListLayout layout = openTo(0.25);
  EXPECT_EQ(layout.wholeTop(2), 25);
  EXPECT_EQ(layout.top(2), 50);
  EXPECT_EQ(layout.bottom(2), 75);
  EXPECT_EQ(layout.rowAt(60), 2);
  EXPECT_EQ(layout.rowAt(30), 0);
}

TEST(PanelListLayout, AGroupThatIsAboutToUnfold_LooksFolded) {
  const PanelListLayout layout = openTo(0);
  EXPECT_EQ(layout.top(3), 54);
  EXPECT_EQ(layout.height(), 54 + 40 + 50 + 10);
}

TEST(PanelListLayout, AGroupFullyUnfolded_LooksLikeOneAtRest) {
  const PanelListLayout layout = openTo(1);
  const PanelListLayout atRest = laidOut(twoGroups);
  for (qsizetype row = 0; row < twoGroups.size(); ++row) {
    EXPECT_EQ(layout.top(row), atRest.top(row));
    EXPECT_EQ(layout.bottom(row), atRest.bottom(row));
  }
}

}  // namespace lanternix
