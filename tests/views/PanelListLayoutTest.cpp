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

}  // namespace lanternix
