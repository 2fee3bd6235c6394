#include "Views/Panel/KeyHintView.h"
#include "Views/Panel/PanelFooterView.h"
#include "Views/Panel/PanelHeaderView.h"
#include "Views/Panel/ScopeBadgeView.h"
#include "Views/Panel/SearchBarView.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/TextLabel.h"
#include "views/MeasuresTest.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace lanternix {

namespace {

class PanelMeasuresTest : public MeasuresTest {
 protected:
  static double sideIn(double ratio) { return Symbol::sideFor(font(ratio)); }

  // From top to bottom.
  QRectF headerPlace() const { return place(part<PanelHeaderView>()).adjusted(20, 18, -20, -12); }
  QRectF searchPlace() const {
    return {20, place(part<PanelHeaderView>()).bottom(), 660,
            place(part<SearchBarView>()).height()};
  }
  QRectF footerPlace() const { return place(part<PanelFooterView>()).adjusted(20, 8, -20, -8); }

  const KeyHintView *toggleHint() const {
    const auto hints = part<PanelFooterView>()->findChildren<KeyHintView *>();
    return *std::ranges::max_element(hints, {}, &QWidget::x);
  }
  const TextLabel *count() const { return part<PanelFooterView>()->findChild<TextLabel *>(); }

  /// Whether the key hint at \p left shows \p key on its cap and \p word beside it.
  testing::AssertionResult showsHint(double left, const QString &key, const QString &word) const {
    const QFont keyFont = font(0.77, QFont::Medium);
    QRectF cap(left, 0, widthOf(key, keyFont) + 2 * 5, heightOf(keyFont) + 2 * 2);
    cap.moveTop(footerPlace().center().y() - cap.height() / 2);
    const double width = cap.width() + 4 + widthOf(word, font(0.77)) + 8;
    const QRectF area(left, footerPlace().top(), width, footerPlace().height());
    return picture().shows(area, ground(), [&](QPainter &painter) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(fill(FillStyle::quaternary));
      painter.drawRoundedRect(cap, 3, 3);
      painter.setPen(fillOn(laid(fill(FillStyle::quaternary)), FillStyle::tertiary));
      painter.setFont(keyFont);
      painter.drawText(cap, Qt::AlignCenter, key);
      painter.setPen(fill(FillStyle::tertiary));
      painter.setFont(font(0.77));
      painter.drawText(QRectF(cap.right() + 4, area.top(), width, area.height()),
                       Qt::AlignLeft | Qt::AlignVCenter, word);
    });
  }

  PathGroup work = group(QStringLiteral("Work"));
  PathGroup home_ = group(QStringLiteral("Home work"), 1);
  PathItem report = item(QStringLiteral("Report"), work);
};

INSTANTIATE_TEST_SUITE_P(Looks, PanelMeasuresTest, testing::ValuesIn(appearances), nameOfLook);

}  // namespace

TEST_P(PanelMeasuresTest, TheHeader_BeginsWithTheMarkInBlue) {
  show({work}, {report});
  const QRectF place(20, headerPlace().top(), sideIn(1.31), headerPlace().height());
  EXPECT_TRUE(showsInMiddle(
      Picture::Mark{QStringLiteral("arrow.triangle.branch"), sideIn(1.31), blue(), place}));
}

TEST_P(PanelMeasuresTest, TheHeader_NamesTheProgram) {
  show({work}, {report});
  const QRectF place(20 + sideIn(1.31) + 12, headerPlace().top(), 400, headerPlace().height());
  EXPECT_TRUE(showsInMiddle(Picture::Text{QStringLiteral("Lanternix"), font(1.15, QFont::DemiBold),
                                          fill(FillStyle::primary), place}));
}

TEST_P(PanelMeasuresTest, TheHeader_EndsWithTheGear) {
  show({work}, {report});
  const QRectF place(680 - sideIn(1), headerPlace().top(), sideIn(1), headerPlace().height());
  EXPECT_TRUE(showsInMiddle(
      Picture::Mark{QStringLiteral("gearshape"), sideIn(1), fill(FillStyle::secondary), place}));
}

TEST_P(PanelMeasuresTest, TheHeader_IsAsHighAsItsNameWithItsPadding) {
  show({work}, {report});
  EXPECT_NEAR(headerPlace().height(), std::max(heightOf(font(1.15, QFont::DemiBold)), sideIn(1.31)),
              1);
}

TEST_P(PanelMeasuresTest, TheSearchRow_BeginsWithTheMagnifyingGlass) {
  show({work}, {report});
  const QRectF place(20, searchPlace().top(), sideIn(1.15), searchPlace().height());
  EXPECT_TRUE(showsInMiddle(Picture::Mark{QStringLiteral("magnifyingglass"), sideIn(1.15),
                                          fill(FillStyle::secondary), place}));
}

TEST_P(PanelMeasuresTest, TheEmptyField_SaysWhatCanBeTyped) {
  show({work}, {report});
  const QRectF place(20 + sideIn(1.15) + 10, searchPlace().top(), 600, searchPlace().height());
  EXPECT_TRUE(
      showsInMiddle(Picture::Text{QStringLiteral("Search... or group: query to scope"), font(1.15),
                                  palette.color(QPalette::PlaceholderText), place}));
}

TEST_P(PanelMeasuresTest, TheQuery_StandsWhereThePlaceholderWas) {
  show({work}, {report});
  state->setSearchQuery(QStringLiteral("report"));
  const QRectF place(20 + sideIn(1.15) + 10, searchPlace().top(), 600, searchPlace().height());
  EXPECT_TRUE(showsInMiddle(
      Picture::Text{QStringLiteral("report"), font(1.15), palette.color(QPalette::Text), place}));
}

TEST_P(PanelMeasuresTest, TheSearchRow_EndsWithTheClearButton) {
  show({work}, {report});
  const QRectF place(680 - sideIn(1), searchPlace().top(), sideIn(1), searchPlace().height());
  EXPECT_TRUE(picture().isPlain(place, ground())) << "nothing to clear";
  state->setSearchQuery(QStringLiteral("report"));
  EXPECT_TRUE(showsInMiddle(Picture::Mark{QStringLiteral("xmark.circle.fill"), sideIn(1),
                                          fill(FillStyle::secondary), place}));
}

TEST_P(PanelMeasuresTest, TheClearButton_MovesNothing) {
  show({work}, {report});
  const QRectF before = place(part<PanelListView>());
  state->setSearchQuery(QStringLiteral("report"));
  EXPECT_EQ(place(part<PanelListView>()), before);
}

TEST_P(PanelMeasuresTest, TwoDividers_OfOnePixelReachFromEdgeToEdge) {
  show({work}, {report});
  const QColor color = laid(fill(FillStyle::quaternary));
  const QRectF list = place(part<PanelListView>());
  const QRectF upper(0, searchPlace().bottom() + 14, 700, 1);
  const QRectF lower(0, place(part<PanelFooterView>()).top() - 1, 700, 1);
  EXPECT_EQ(upper.bottom(), list.top());
  EXPECT_EQ(lower.top(), list.bottom());
  EXPECT_EQ(picture().boundsOf(color, upper.adjusted(0, -6, 0, 6)), upper);
  EXPECT_EQ(picture().boundsOf(color, lower.adjusted(0, -6, 0, 6)), lower);
  EXPECT_TRUE(picture().isPlain(upper, color));
  EXPECT_TRUE(picture().isPlain(lower, color));
}

TEST_P(PanelMeasuresTest, TheFooter_IsAsHighAsItsKeyCapsWithItsPadding) {
  show({work}, {report});
  EXPECT_EQ(place(part<PanelFooterView>()).bottom(), 500);
  EXPECT_EQ(footerPlace().height(), std::ceil(heightOf(font(0.77, QFont::Medium)) + 2 * 2));
}

TEST_P(PanelMeasuresTest, TheFooter_TellsHowToClose) {
  show({work}, {report});
  EXPECT_TRUE(showsHint(20, QStringLiteral("esc"), QStringLiteral("close")));
}

TEST_P(PanelMeasuresTest, TheFooter_TellsHowToToggle) {
  show({work}, {report});
  const QFont keyFont = font(0.77, QFont::Medium);
  const double first = widthOf(QStringLiteral("esc"), keyFont) + 2 * 5 + 4 +
                       widthOf(QStringLiteral("close"), font(0.77));
  const double left = place(toggleHint()).left();
  EXPECT_EQ(left, 20 + std::ceil(first) + 16);
  EXPECT_TRUE(showsHint(left, QStringLiteral("⇧⌘Space"), QStringLiteral("toggle")));
}

TEST_P(PanelMeasuresTest, TheFooter_EndsWithTheCountOfAllItems) {
  show({work}, {report, item(QStringLiteral("Notes"), work, 1)});
  state->setSearchQuery(QStringLiteral("rep"));
  const QString text = QStringLiteral("2 items");
  const double left = place(count()).left();
  EXPECT_NEAR(left, 680 - widthOf(text, font(0.77)), 1);
  EXPECT_TRUE(showsInMiddle(
      Picture::Text{text,
                    font(0.77),
                    fill(FillStyle::tertiary),
                    {left, footerPlace().top(), 680 - left, footerPlace().height()}}));
}

TEST_P(PanelMeasuresTest, TheScope_StandsOnABlueCapsuleBeforeTheCount) {
  show({work, home_}, {report});
  state->setSearchQuery(QStringLiteral("work:"));
  const QString names = QStringLiteral("Work, Home work");
  const double side = sideIn(0.77);
  const QColor capsule = laid(blue(), 0.15);
  const QColor text = Contrast::readableOn(capsule, blue());
  const QRectF badge = place(part<ScopeBadgeView>());
  EXPECT_EQ(badge.right(), place(count()).left() - 16);
  EXPECT_EQ(badge.height(), std::ceil(heightOf(font(0.77)) + 2 * 2));
  EXPECT_EQ(badge.width(), std::ceil(6 + side + 4 + widthOf(names, font(0.77)) + 6));
  EXPECT_TRUE(picture().shows(badge.adjusted(-4, 0, 4, 0), ground(), [&](QPainter &painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(capsule);
    painter.drawRoundedRect(badge, badge.height() / 2, badge.height() / 2);
    Symbol::draw(painter, {badge.left() + 6, badge.top(), side, badge.height()},
                 QStringLiteral("scope"), side, text);
    painter.setFont(font(0.77));
    painter.setPen(text);
    painter.drawText(badge.adjusted(6 + side + 4, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     names);
  }));
}

TEST_P(PanelMeasuresTest, AScopeOfManyGroups_LeavesTheRestOfTheFooterItsRoom) {
  work.name = QStringLiteral("A name that goes on ").repeated(30);
  show({work}, {report});
  state->setSearchQuery(QStringLiteral("name:"));
  const QRectF badge = place(part<ScopeBadgeView>());
  EXPECT_GE(badge.left(), place(toggleHint()).right() + 16);
  EXPECT_EQ(badge.right(), place(count()).left() - 16);
  EXPECT_NEAR(place(count()).right(), 680, 1);
}

}  // namespace lanternix
