#include "Views/Style/Symbol.h"
#include "views/MeasuresTest.h"

#include <QtGui/QPainter>

#include <cmath>

namespace lanternix {

namespace {

/// The list as a whole and its recent section, which are the same in every density.
class ListMeasuresTest : public MeasuresTest {
 protected:
  void showRecent() {
    PathGroup home_ = group(QStringLiteral("Home"), 1);
    home_.isExpanded = false;
    show({work, home_}, {opened(report, 1)});
  }

  // The rows that it has then.
  static constexpr int recentHeader = 0;
  static constexpr int recentItem = 1;
  static constexpr int divider = 2;
  static constexpr int groupHeader = 3;
  static constexpr int groupItem = 4;
  static constexpr int secondGroupHeader = 5;

  static QFont titleFont() { return font(0.85, QFont::DemiBold); }

  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work);
};

INSTANTIATE_TEST_SUITE_P(Looks, ListMeasuresTest, testing::ValuesIn(looks), nameOfLook);

}  // namespace

TEST_P(ListMeasuresTest, TheFirstRow_IsSetOffFromTheTop) {
  showRecent();
  EXPECT_EQ(row(recentHeader).top(), place(part<PanelListView>()).top() + 10);
}

TEST_P(ListMeasuresTest, Rows_ReachFromEdgeToEdge) {
  showRecent();
  for (int index = recentHeader; index <= secondGroupHeader; ++index) {
    EXPECT_EQ(row(index).left(), 0);
    EXPECT_EQ(row(index).width(), 700);
  }
}

TEST_P(ListMeasuresTest, EveryPartOfTheList_IsSetOffByFourPixels) {
  showRecent();
  for (const int index : {recentItem, divider, groupHeader, secondGroupHeader}) {
    EXPECT_EQ(row(index).top(), row(index - 1).bottom() + 4) << "row " << index;
  }
  EXPECT_EQ(row(groupItem).top(), row(groupHeader).bottom()) << "a group is one part";
}

TEST_P(ListMeasuresTest, TheRecentSection_HasAClockInOrange) {
  showRecent();
  const QRectF header = row(recentHeader);
  const double side = Symbol::sideFor(font(0.85));
  EXPECT_TRUE(picture().shows(Picture::Mark{QStringLiteral("clock.fill"),
                                            side,
                                            either(0xFF9500, 0xFF9F0A),
                                            {20, header.top(), side, header.height()}},
                              ground()));
}

TEST_P(ListMeasuresTest, TheRecentSection_HasATitle) {
  showRecent();
  const QRectF header = row(recentHeader);
  const double left = 20 + Symbol::sideFor(font(0.85)) + 8;
  EXPECT_EQ(header.height(), std::ceil(heightOf(titleFont()) + 2 * 8));
  EXPECT_TRUE(picture().shows(Picture::Text{QStringLiteral("Recently Opened"),
                                            titleFont(),
                                            fill(FillStyle::secondary),
                                            {left, header.top(), 680 - left, header.height()}},
                              ground()));
}

TEST_P(ListMeasuresTest, ADividerOfOnePixel_EndsTheRecentSection) {
  showRecent();
  const QColor color = laid(fill(FillStyle::quaternary));
  const QRectF line(16, row(recentItem).bottom() + 4 + 6, 700 - 2 * 16, 1);
  EXPECT_EQ(picture().boundsOf(color, row(divider)), line);
  EXPECT_TRUE(picture().isPlain(line, color));
  EXPECT_EQ(row(divider).bottom(), line.bottom() + 6);
}

TEST_P(ListMeasuresTest, TheDivider_IsSharp) {
  showRecent();
  const QColor color = laid(fill(FillStyle::quaternary));
  const Picture shown = picture();
  const QRectF line = shown.boundsOf(color, row(divider));
  EXPECT_TRUE(shown.isPlain(line, color));
  const QRectF middle = row(divider).adjusted(100, 1, -100, -1);
  EXPECT_TRUE(shown.isPlain({middle.topLeft(), QPointF(middle.right(), line.top())}, ground()));
  EXPECT_TRUE(
      shown.isPlain({QPointF(middle.left(), line.bottom()), middle.bottomRight()}, ground()));
}

}  // namespace lanternix
