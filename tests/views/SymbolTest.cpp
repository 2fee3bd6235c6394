#include "Views/Style/Symbol.h"

#include <QtGui/QColor>
#include <QtGui/QImage>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

QImage image(const QString &name, double ratio = 1) {
  return Symbol::image(name, 24, Qt::red, ratio);
}

bool isBlank(const QImage &image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) != 0) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace

TEST(Symbol, EverySymbolOfThePanel_IsDrawn) {
  const QImage folder = image(QStringLiteral("folder"));
  for (const char *name :
       {"arrow.triangle.branch", "gearshape", "magnifyingglass", "xmark.circle.fill", "clock.fill",
        "scope", "chevron.down", "chevron.right", "globe", "terminal", "folder.fill", "doc.fill",
        "exclamationmark.triangle.fill", "arrow.right"}) {
    const QImage drawn = image(QString::fromLatin1(name));
    EXPECT_FALSE(isBlank(drawn)) << name;
    EXPECT_NE(drawn, folder) << name << " is not the stand-in";
  }
}

TEST(Symbol, AnUnknownName_DrawsThePlainFolder) {
  EXPECT_EQ(image(QStringLiteral("no.such.symbol")), image(QStringLiteral("folder")));
  EXPECT_EQ(image({}), image(QStringLiteral("folder")));
}

TEST(Symbol, AHostileName_DrawsThePlainFolder) {
  EXPECT_EQ(image(QStringLiteral("../symbols/globe")), image(QStringLiteral("folder")));
}

TEST(Symbol, IsTinted) {
  const QImage drawn = image(QStringLiteral("terminal"));
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) {
      const QRgb pixel = drawn.pixel(x, y);
      ASSERT_TRUE(qAlpha(pixel) == 0 || (qGreen(pixel) == 0 && qBlue(pixel) == 0));
    }
  }
}

TEST(Symbol, IsSharpAtEveryScale) {
  EXPECT_EQ(image(QStringLiteral("globe"), 2).size(), QSize(48, 48));
  EXPECT_EQ(image(QStringLiteral("globe"), 1.5).size(), QSize(36, 36));
}

}  // namespace lanternix
