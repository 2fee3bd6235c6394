#include "Views/Style/Material.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"
#include "support/WaitUntil.h"
#include "views/MeasuresTest.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <utility>

namespace lanternix {

namespace {

/// What the whole panel is made of: colours, sizes of text, its window's ground.
class StyleMeasuresTest : public MeasuresTest {
 protected:
  StyleMeasuresTest() : m_previousFont(QApplication::font()) {}
  ~StyleMeasuresTest() override { QApplication::setFont(m_previousFont); }
  Q_DISABLE_COPY_MOVE(StyleMeasuresTest)

  static void setUserFont(double points) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
  }

  /// Whether the panel comes to be drawn like one that is built only now.
  bool looksLikeNew() const {
    PopupPanelView fresh(*state);
    fresh.resize(panel->size());
    fresh.show();
    return waitUntil([&] { return panel->grab().toImage() == fresh.grab().toImage(); });
  }

  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work);

 private:
  QFont m_previousFont;
};

INSTANTIATE_TEST_SUITE_P(Looks, StyleMeasuresTest, testing::ValuesIn(appearances), nameOfLook);

}  // namespace

TEST_P(StyleMeasuresTest, EveryNamedColour_HasItsOwnValueInEachAppearance) {
  const auto value = [&](SystemColor color) { return systemColor(color, palette); };
  EXPECT_EQ(value(SystemColor::red), either(0xFF3B30, 0xFF453A));
  EXPECT_EQ(value(SystemColor::orange), either(0xFF9500, 0xFF9F0A));
  EXPECT_EQ(value(SystemColor::yellow), either(0xFFCC00, 0xFFD60A));
  EXPECT_EQ(value(SystemColor::green), either(0x34C759, 0x32D74B));
  EXPECT_EQ(value(SystemColor::blue), either(0x007AFF, 0x0A84FF));
  EXPECT_EQ(value(SystemColor::purple), either(0xAF52DE, 0xBF5AF2));
  EXPECT_EQ(value(SystemColor::pink), either(0xFF2D55, 0xFF375F));
  EXPECT_EQ(value(SystemColor::indigo), either(0x5856D6, 0x5E5CE6));
  EXPECT_EQ(value(SystemColor::teal), either(0x30B0C7, 0x40C8E0));
  EXPECT_EQ(value(SystemColor::cyan), either(0x32ADE6, 0x64D2FF));
}

TEST_P(StyleMeasuresTest, TheAccentColour_IsBlueUntilTheDesktopHasAnother) {
  EXPECT_EQ(accentColor(palette), blue());
}

TEST_P(StyleMeasuresTest, EveryTextStyle_IsARatioOfTheUsersFont) {
  const std::initializer_list<std::pair<TextStyle, double>> ratios{
      {TextStyle::largeTitle, 2},  {TextStyle::title, 1.69},       {TextStyle::title2, 1.31},
      {TextStyle::title3, 1.15},   {TextStyle::body, 1},           {TextStyle::caption, 0.77},
      {TextStyle::caption2, 0.77}, {TextStyle::subheadline, 0.85},
  };
  for (const double points : {10.0, 13.5}) {
    setUserFont(points);
    for (const auto &[style, ratio] : ratios) {
      EXPECT_NEAR(textFont(style).pointSizeF(), points * ratio, 0.01);
    }
  }
}

TEST_P(StyleMeasuresTest, AFontSizedInPixels_IsScaledInPixels) {
  QFont font = QApplication::font();
  font.setPixelSize(20);
  QApplication::setFont(font);
  EXPECT_EQ(textFont(TextStyle::title3).pixelSize(), 23);
  EXPECT_EQ(textFont(TextStyle::caption).pixelSize(), 15);
}

TEST_P(StyleMeasuresTest, ABlendedWindow_HasRoundCorners) {
  show({work}, {report});
  panel->setAttribute(Qt::WA_TranslucentBackground);
  for (const QPointF &corner :
       {QPointF(0, 0), QPointF(688, 0), QPointF(0, 488), QPointF(688, 488)}) {
    EXPECT_TRUE(picture().shows({corner, QSizeF(12, 12)}, Qt::transparent, [&](QPainter &painter) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(materialColor(palette));
      painter.drawRoundedRect(QRectF(0, 0, 700, 500), 12, 12);
    }));
  }
}

TEST_P(StyleMeasuresTest, ABlendedWindow_IsAlmostOpaque) {
  show({work}, {report});
  panel->setAttribute(Qt::WA_TranslucentBackground);
  const QColor seen = picture().at({350, 250});
  EXPECT_EQ(seen.alpha(), qRound(0.96 * 255));
  EXPECT_NEAR(seen.red(), ground().red(), 1);
}

TEST_P(StyleMeasuresTest, AWindowThatIsNotBlended_IsOpaqueToItsCorners) {
  show({work}, {report});
  EXPECT_TRUE(picture().isPlain({0, 0, 12, 12}, ground()));
}

TEST_P(StyleMeasuresTest, AnotherFont_ShowsAtOnceAsIfThePanelHadStartedWithIt) {
  show({work}, {opened(report, 1)});
  setUserFont(20);
  EXPECT_TRUE(looksLikeNew());
  state->setSearchQuery(QStringLiteral("work:"));
  setUserFont(8);
  EXPECT_TRUE(looksLikeNew());
}

TEST_P(StyleMeasuresTest, AnotherFont_ShowsAtOnceInTheEmptyState) {
  show({}, {});
  setUserFont(20);
  EXPECT_TRUE(looksLikeNew());
}

TEST_P(StyleMeasuresTest, TheOtherAppearance_ShowsAtOnceAsIfThePanelHadStartedWithIt) {
  show({}, {});
  QApplication::setPalette(GetParam().isDark ? Palettes::light() : Palettes::dark());
  EXPECT_TRUE(looksLikeNew());
}

}  // namespace lanternix
