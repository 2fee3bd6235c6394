#include "Views/MenuBar/StatusIcon.h"
#include "Views/Style/Contrast.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

class StatusIconTest : public testing::TestWithParam<int> {
 protected:
  static QPalette windows(Qt::GlobalColor window, Qt::GlobalColor text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
  }

  /// The best contrast that any part of the icon has on a bar of this colour.
  static double contrastOn(const QColor &bar, const QPalette &palette) {
    const int side = GetParam();
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(bar);
    QPainter painter(&picture);
    statusIcon(palette).paint(&painter, picture.rect());
    painter.end();
    double best = 1;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        best = std::max(best, Contrast::ratio(picture.pixelColor(x, y), bar));
      }
    }
    return best;
  }
};

TEST_P(StatusIconTest, Icon_IsThereInItsSize) {
  const QSize size(GetParam(), GetParam());
  EXPECT_TRUE(statusIcon(QPalette()).availableSizes().contains(size));
  EXPECT_EQ(statusIcon(QPalette()).pixmap(size, 1).size(), size);
}

TEST_P(StatusIconTest, AmongLightWindows_IsSeenOnLightAndDarkBars) {
  const QPalette palette = windows(Qt::white, Qt::black);
  EXPECT_GT(contrastOn(Qt::white, palette), 10);
  EXPECT_GT(contrastOn(Qt::black, palette), 3);
}

TEST_P(StatusIconTest, AmongDarkWindows_IsSeenOnLightAndDarkBars) {
  const QPalette palette = windows(Qt::black, Qt::white);
  EXPECT_GT(contrastOn(Qt::black, palette), 10);
  EXPECT_GT(contrastOn(Qt::white, palette), 3);
}

INSTANTIATE_TEST_SUITE_P(Sizes, StatusIconTest, testing::Values(16, 22, 24, 32, 48, 64));

}  // namespace
}  // namespace lanternix
