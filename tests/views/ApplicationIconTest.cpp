#include "Views/Style/ApplicationIcon.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

QImage image(int pixels) {
  return applicationIcon().pixmap(QSize(pixels, pixels), 1.0).toImage();
}

/// Whether a pixel somewhere is the pure white of the lantern, not mixed with its surroundings.
bool hasFullWhite(const QImage &image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qRed(pixel) > 250 && qGreen(pixel) > 250 && qBlue(pixel) > 250) {
        return true;
      }
    }
  }
  return false;
}

class ApplicationIcon : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(ApplicationIcon, IsDrawnAtTheSizeItself_OnARoundedGround) {
  const int side = GetParam();
  const QImage drawn = image(side);
  ASSERT_EQ(drawn.size(), QSize(side, side));
  EXPECT_EQ(qAlpha(drawn.pixel(side / 2, side / 2)), 255);
  for (const QPoint corner :
       {QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1), QPoint(side - 1, side - 1)}) {
    EXPECT_LT(qAlpha(drawn.pixel(corner)), 128) << corner.x() << ' ' << corner.y();
  }
}

TEST_P(ApplicationIcon, ShowsTheLanternInFullWhiteAndTheFlameInOrange) {
  const int side = GetParam();
  const QImage drawn = image(side);
  EXPECT_TRUE(hasFullWhite(drawn));
  const QColor flame = drawn.pixelColor(side / 2, side * 10 / 16);
  EXPECT_GT(flame.red(), 220);
  EXPECT_LT(flame.green(), 170);
  EXPECT_LT(flame.blue(), 90);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ApplicationIcon,
                         testing::Values(16, 22, 24, 32, 48, 64, 128, 256, 512));

TEST(ApplicationIconSmall, AtSixteenPixels_TheLinesFallOnWholePixels) {
  const QImage drawn = image(16);
  EXPECT_EQ(drawn.pixelColor(8, 5), QColor(Qt::white)) << "the lid";
  EXPECT_EQ(drawn.pixelColor(4, 9), QColor(Qt::white)) << "the left of the frame";
  EXPECT_EQ(drawn.pixelColor(11, 9), QColor(Qt::white)) << "the right of the frame";
  EXPECT_EQ(drawn.pixelColor(8, 13), QColor(Qt::white)) << "the foot";
  EXPECT_NE(drawn.pixelColor(8, 14), QColor(Qt::white)) << "the ground under it";
}

TEST(ApplicationIconCopies, WhatAWindowHandsOut_StaysSmall) {
  qsizetype bytes = 0;
  const QList<QSize> sizes = applicationIcon().availableSizes();
  for (const QSize size : sizes) {
    bytes += qsizetype{4} * size.width() * size.height();
  }
  EXPECT_TRUE(sizes.contains(QSize(16, 16)));
  EXPECT_TRUE(sizes.contains(QSize(128, 128)));
  EXPECT_LT(bytes, 128 * 1024);
}

TEST(ApplicationIconCopies, OnADenseScreen_IsDrawnInItsPixels) {
  const QPixmap drawn = applicationIcon().pixmap(QSize(24, 24), 2.0);
  EXPECT_EQ(drawn.size(), QSize(48, 48));
  EXPECT_EQ(drawn.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
            image(48).convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

}  // namespace lanternix
