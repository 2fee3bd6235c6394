#include "Views/MenuBar/StatusIcon.h"
#include "Views/Style/Contrast.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

class StatusIconTest : public testing::TestWithParam<int> {
 protected:
  ~StatusIconTest() override { QApplication::setPalette(m_before); }

  static void setWindows(Qt::GlobalColor window, Qt::GlobalColor text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);
  }

  /// The best contrast that any part of the icon has on a bar of this colour.
  static double contrastOn(const QColor &bar) {
    const int side = GetParam();
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(bar);
    QPainter painter(&picture);
    statusIcon().paint(&painter, picture.rect());
    painter.end();
    double best = 1;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        best = std::max(best, Contrast::ratio(picture.pixelColor(x, y), bar));
      }
    }
    return best;
  }

 private:
  QPalette m_before = QApplication::palette();
};

TEST_P(StatusIconTest, Icon_IsThereInItsSize) {
  const QSize size(GetParam(), GetParam());
  EXPECT_TRUE(statusIcon().availableSizes().contains(size));
  EXPECT_EQ(statusIcon().pixmap(size, 1).size(), size);
}

TEST_P(StatusIconTest, AmongLightWindows_IsSeenOnLightAndDarkBars) {
  setWindows(Qt::white, Qt::black);
  EXPECT_GT(contrastOn(Qt::white), 10);
  EXPECT_GT(contrastOn(Qt::black), 3);
}

TEST_P(StatusIconTest, AmongDarkWindows_IsSeenOnLightAndDarkBars) {
  setWindows(Qt::black, Qt::white);
  EXPECT_GT(contrastOn(Qt::black), 10);
  EXPECT_GT(contrastOn(Qt::white), 3);
}

INSTANTIATE_TEST_SUITE_P(Sizes, StatusIconTest, testing::Values(16, 22, 24, 32, 48, 64));

}  // namespace
}  // namespace lanternix
