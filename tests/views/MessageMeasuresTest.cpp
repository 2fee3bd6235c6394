#include "Views/Panel/EmptyStateView.h"
#include "Views/Panel/NoResultsView.h"
#include "Views/Style/AccentFill.h"
#include "Views/Style/TextLabel.h"
#include "views/MeasuresTest.h"

#include <QtWidgets/QPushButton>

#include <algorithm>

namespace lanternix {

namespace {

/// What the panel says in place of the list.
class MessageMeasuresTest : public MeasuresTest {
 protected:
  /// Where the label with \p text is drawn, in the panel.
  QRectF label(const QString &text) const {
    const auto labels = panel->findChildren<TextLabel *>();
    const auto found = std::ranges::find(labels, text, &TextLabel::text);
    return found == labels.end() ? QRectF() : place(*found);
  }

  /// A text in the middle of the panel, at the height at which \p label has been found.
  testing::AssertionResult showsCentred(const QString &text, const QFont &font,
                                        FillStyle style) const {
    const QRectF found = label(text);
    if (std::abs(found.center().x() - 350) > 1 ||
        std::abs(found.width() - widthOf(text, font)) > 2) {
      return testing::AssertionFailure()
             << text.toStdString() << " reaches from " << found.left() << " to " << found.right();
    }
    return showsInMiddle(Picture::Text{text, font, fill(style), found});
  }

  testing::AssertionResult showsMark(const char *symbol, double side, double top) const {
    return showsInMiddle(Picture::Mark{QLatin1String(symbol),
                                       side,
                                       fill(FillStyle::quaternary),
                                       {350 - side / 2, top, side, side}});
  }
};

INSTANTIATE_TEST_SUITE_P(Looks, MessageMeasuresTest, testing::ValuesIn(appearances), nameOfLook);

const QString noItems = QStringLiteral("No items yet");
const QString openSettingsHint = QStringLiteral("Open Settings to add groups and items");
const QString noResults = QStringLiteral("No results found");

}  // namespace

TEST_P(MessageMeasuresTest, TheEmptyState_IsSetOffFromTheTop) {
  show({}, {});
  const QRectF view = place(part<EmptyStateView>());
  const QRectF upperDivider(0, view.top() - 11, 700, 1);
  EXPECT_TRUE(picture().isPlain(upperDivider, laid(fill(FillStyle::quaternary))))
      << "the padding of the list";
  EXPECT_EQ(view.left(), 0);
  EXPECT_EQ(view.width(), 700);
  EXPECT_TRUE(showsMark("arrow.triangle.branch", 44, view.top() + 20));
}

TEST_P(MessageMeasuresTest, TheEmptyState_StaysAtTheTopOfATallPanel) {
  show({}, {});
  panel->resize(700, 1000);
  EXPECT_TRUE(showsMark("arrow.triangle.branch", 44, place(part<EmptyStateView>()).top() + 20));
}

TEST_P(MessageMeasuresTest, TheEmptyState_SaysSo) {
  show({}, {});
  EXPECT_TRUE(showsCentred(noItems, font(1.15, QFont::Medium), FillStyle::secondary));
  const double markBottom = place(part<EmptyStateView>()).top() + 20 + 44;
  EXPECT_EQ(label(noItems).top(), markBottom + 16);
}

TEST_P(MessageMeasuresTest, TheEmptyState_TellsWhatToDo) {
  show({}, {});
  EXPECT_TRUE(showsCentred(openSettingsHint, font(0.85), FillStyle::tertiary));
  EXPECT_EQ(label(openSettingsHint).top(), label(noItems).bottom() + 6);
}

TEST_P(MessageMeasuresTest, TheEmptyState_EndsWithAProminentButton) {
  show({}, {});
  const auto *button = part<QPushButton>();
  EXPECT_EQ(button->text(), QStringLiteral("Open Settings"));
  EXPECT_EQ(button->font(), font(0.85, QFont::Medium));
  EXPECT_EQ(place(button).top(), label(openSettingsHint).bottom() + 16);
  EXPECT_NEAR(place(button).center().x(), 350, 1);
  EXPECT_EQ(place(part<EmptyStateView>()).bottom(), place(button).bottom() + 20);
  const QColor accent = AccentFill::of(palette).ground;
  EXPECT_NEAR(picture().boundsOf(accent, place(button)).width(), place(button).width(), 4);
}

TEST_P(MessageMeasuresTest, ASearchWithoutMatches_SaysSoBelowAMagnifyingGlass) {
  const PathGroup work = group(QStringLiteral("Work"));
  show({work}, {opened(item(QStringLiteral("Report"), work), 1)});
  state->setSearchQuery(QStringLiteral("zebra"));
  const QRectF view = place(part<NoResultsView>());
  const QRectF upperDivider(0, view.top() - 11, 700, 1);
  EXPECT_TRUE(picture().isPlain(upperDivider, laid(fill(FillStyle::quaternary))));
  EXPECT_TRUE(showsMark("magnifyingglass", 32, view.top() + 30));
  EXPECT_EQ(label(noResults).top(), view.top() + 30 + 32 + 12);
  EXPECT_TRUE(showsCentred(noResults, font(0.85), FillStyle::secondary));
  EXPECT_EQ(view.bottom(), label(noResults).bottom() + 30);
}

TEST_P(MessageMeasuresTest, BothMessages_StandOneAboveTheOther) {
  show({}, {});
  state->setSearchQuery(QStringLiteral("zebra"));
  EXPECT_EQ(place(part<NoResultsView>()).top(), place(part<EmptyStateView>()).bottom() + 4);
  EXPECT_TRUE(showsCentred(noItems, font(1.15, QFont::Medium), FillStyle::secondary));
  EXPECT_TRUE(showsCentred(noResults, font(0.85), FillStyle::secondary));
}

}  // namespace lanternix
