#include "Views/Style/Contrast.h"

#include <gtest/gtest.h>

namespace lanternix {

namespace {

constexpr double precision = 0.005;

}  // namespace

TEST(ContrastTest, Ratio_OfBlackAndWhite_IsTwentyOneEitherWay) {
  EXPECT_NEAR(Contrast::ratio(Qt::black, Qt::white), 21, precision);
  EXPECT_NEAR(Contrast::ratio(Qt::white, Qt::black), 21, precision);
}

TEST(ContrastTest, Ratio_OfAColorWithItself_IsOne) {
  EXPECT_NEAR(Contrast::ratio(QColor(12, 200, 99), QColor(12, 200, 99)), 1, precision);
}

TEST(ContrastTest, Ratio_WeighsTheColorsAsTheEyeDoes) {
  EXPECT_NEAR(Contrast::ratio(Qt::red, Qt::white), 4.0, precision);
  EXPECT_NEAR(Contrast::ratio(Qt::green, Qt::white), 1.37, precision);
  EXPECT_NEAR(Contrast::ratio(Qt::blue, Qt::white), 8.59, precision);
  EXPECT_NEAR(Contrast::ratio(QColor(0x767676), Qt::white), 4.54, precision);
}

TEST(ContrastTest, Ratio_OfTranslucentText_IsThatOfWhatIsSeen) {
  const QColor text(0, 0, 0, 128);
  EXPECT_NEAR(Contrast::ratio(text, Qt::white), Contrast::ratio(QColor(127, 127, 127), Qt::white),
              precision);
}

TEST(ContrastTest, ReadableColor_IsLeftAsItIs) {
  const QColor color(0, 64, 128, 250);
  EXPECT_EQ(Contrast::readableOn(Qt::white, color), color);
}

TEST(ContrastTest, UnreadableColorOnALightGround_IsDarkenedJustEnough) {
  const QColor color(0x34C759);
  const QColor readable = Contrast::readableOn(Qt::white, color);
  EXPECT_GE(Contrast::ratio(readable, Qt::white), 4.5);
  EXPECT_LE(Contrast::ratio(readable, Qt::white), 4.6);
  EXPECT_NEAR(readable.hslHue(), color.hslHue(), 1);
}

TEST(ContrastTest, UnreadableColorOnADarkGround_IsLightenedJustEnough) {
  const QColor ground(0x262629);
  const QColor color(0x5E5CE6);
  const QColor readable = Contrast::readableOn(ground, color);
  EXPECT_GE(Contrast::ratio(readable, ground), 4.5);
  EXPECT_LE(Contrast::ratio(readable, ground), 4.6);
  EXPECT_NEAR(readable.hslHue(), color.hslHue(), 1);
}

TEST(ContrastTest, OnAMiddlingGround_TheDirectionWithRoomIsTaken) {
  for (const int level : {100, 115, 120, 130, 150}) {
    const QColor ground(level, level, level);
    EXPECT_GE(Contrast::ratio(Contrast::readableOn(ground, ground), ground), 4.5) << level;
  }
}

}  // namespace lanternix
