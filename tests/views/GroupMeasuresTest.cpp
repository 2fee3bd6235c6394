#include "Views/Style/Symbol.h"
#include "views/MeasuresTest.h"

#include <QtGui/QPainter>

#include <cmath>

namespace lanternix {

namespace {

double headerPadding(PanelItemSize size) {
  switch (size) {
    case PanelItemSize::small:
      return 7;
    case PanelItemSize::medium:
      return 11;
    case PanelItemSize::large:
      return 15;
  }
  return 0;
}

class GroupMeasuresTest : public MeasuresTest {
 protected:
  /// A green group of so many items.
  void showGroup(int count) {
    work.colorName = QStringLiteral("green");
    QList<PathItem> items;
    for (int i = 0; i < count; ++i) {
      items.append(item(QStringLiteral("Item %1").arg(i), work, i));
    }
    show({work}, items);
  }

  static QFont nameFont() { return font(1, QFont::DemiBold); }
  static QFont countFont() { return font(0.77, QFont::Medium); }
  static double symbolSide() { return Symbol::sideFor(font(1)); }
  static double countHeight() { return heightOf(countFont()) + 2 * 3; }

  QRectF header() const { return row(0); }
  /// The places of the header's parts, from left to right, 8 apart.
  QRectF across(double left, double width) const {
    return {left, header().top(), width, header().height()};
  }
  QRectF chevronPlace() const { return across(20, 14); }
  QRectF symbolPlace() const { return across(chevronPlace().right() + 8, symbolSide()); }
  QRectF namePlace() const {
    // Whole pixels, for the sake of a sharp capsule.
    return across(symbolPlace().right() + 8, std::ceil(widthOf(work.name, nameFont())));
  }
  QRectF capsule(const QString &count) const {
    return {namePlace().right() + 8, header().center().y() - countHeight() / 2,
            widthOf(count, countFont()) + 2 * 8, countHeight()};
  }

  testing::AssertionResult showsChevron(const char *name) const {
    return picture().shows(Picture::Mark{QLatin1String(name), Symbol::sideFor(font(0.77)),
                                         fill(FillStyle::tertiary), chevronPlace()},
                           ground());
  }
  testing::AssertionResult showsCount(const QString &count) const {
    const QRectF shape = capsule(count);
    const QRectF rest(shape.left() - 4, shape.top() - 2, header().right() - 20 - shape.left(),
                      shape.height() + 4);
    return picture().shows(rest, ground(), [&](QPainter &painter) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(fill(FillStyle::quaternary));
      painter.drawRoundedRect(shape, countHeight() / 2, countHeight() / 2);
      painter.setFont(countFont());
      painter.setPen(fillOn(laid(fill(FillStyle::quaternary)), FillStyle::secondary));
      painter.drawText(shape, Qt::AlignCenter, count);
    });
  }

  PathGroup work = group(QStringLiteral("Work"));
};

INSTANTIATE_TEST_SUITE_P(Looks, GroupMeasuresTest, testing::ValuesIn(looks), nameOfLook);

}  // namespace

TEST_P(GroupMeasuresTest, AHeader_IsItsContentWithItsPadding) {
  showGroup(0);
  EXPECT_EQ(header().height(), std::ceil(std::max(heightOf(nameFont()), countHeight()) +
                                         2 * headerPadding(GetParam().size)));
}

TEST_P(GroupMeasuresTest, TheChevronOfAnUnfoldedGroup_PointsDown) {
  showGroup(1);
  EXPECT_TRUE(showsChevron("chevron.down"));
}

TEST_P(GroupMeasuresTest, TheChevronOfAFoldedGroup_PointsToTheRight) {
  work.isExpanded = false;
  showGroup(1);
  EXPECT_TRUE(showsChevron("chevron.right"));
}

TEST_P(GroupMeasuresTest, TheSymbol_IsInTheGroupsColour) {
  work.iconName = QStringLiteral("briefcase.fill");
  showGroup(0);
  EXPECT_TRUE(picture().shows(Picture::Mark{QStringLiteral("briefcase.fill"), symbolSide(),
                                            either(0x34C759, 0x32D74B), symbolPlace()},
                              ground()));
}

TEST_P(GroupMeasuresTest, TheName_IsSemiboldAndPrimary) {
  showGroup(0);
  EXPECT_TRUE(picture().shows(
      Picture::Text{work.name, nameFont(), fill(FillStyle::primary), namePlace()}, ground()));
}

TEST_P(GroupMeasuresTest, TheCount_StandsOnACapsule) {
  showGroup(12);
  EXPECT_TRUE(showsCount(QStringLiteral("12")));
}

TEST_P(GroupMeasuresTest, AFoldedGroup_CountsAllItsItems) {
  work.isExpanded = false;
  showGroup(3);
  EXPECT_TRUE(showsCount(QStringLiteral("3")));
}

TEST_P(GroupMeasuresTest, AnEmptyGroup_SaysSoInItalics) {
  showGroup(0);
  QFont italic = font(0.85);
  italic.setItalic(true);
  EXPECT_EQ(row(1).top(), header().bottom());
  EXPECT_EQ(row(1).height(), std::ceil(heightOf(font(0.85)) + 2 * 8));
  EXPECT_TRUE(
      picture().shows(Picture::Text{QStringLiteral("No items in this group"), italic,
                                    fill(FillStyle::tertiary), row(1).adjusted(24, 0, -24, 0)},
                      ground()));
}

TEST_P(GroupMeasuresTest, ALongName_LeavesRoomForTheCount) {
  work.name = QStringLiteral("A name that goes on ").repeated(30);
  showGroup(0);
  const QRectF seen = picture().boundsOf(laid(fill(FillStyle::quaternary)), header());
  EXPECT_LE(seen.right(), header().right() - 20);
  EXPECT_NEAR(seen.right(), header().right() - 20, widthOf(QStringLiteral("WW"), nameFont()));
}

}  // namespace lanternix
