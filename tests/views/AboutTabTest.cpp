#include "Views/Settings/AboutTab.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextLabel.h"
#include "support/HarnessError.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class AboutTabTest : public testing::Test {
 protected:
  AboutTabTest() {
    tab.resize(600, 400);
    tab.show();
  }

  const TextLabel &label(const QString &text) const {
    for (const TextLabel *found : tab.findChildren<TextLabel *>()) {
      if (found->text() == text) {
        return *found;
      }
    }
    throw HarnessError(u"There is no text "_s + text);
  }

  static bool isBetween(const QColor &color, const QColor &one, const QColor &other) {
    const auto within = [](int value, int a, int b) {
      return value >= qMin(a, b) - 2 && value <= qMax(a, b) + 2;
    };
    return within(color.red(), one.red(), other.red()) &&
           within(color.green(), one.green(), other.green()) &&
           within(color.blue(), one.blue(), other.blue());
  }

  AboutTab tab;
};

}  // namespace

TEST_F(AboutTabTest, NamesTheProgramItsVersionAndWhatItIs) {
  EXPECT_TRUE(label(u"Lanternix"_s).isVisible());
  EXPECT_TRUE(label(u"Version 1.0.0"_s).isVisible());
  EXPECT_TRUE(label(u"Quick launcher for directories, files, and links"_s).isVisible());
}

TEST_F(AboutTabTest, TheNameIsALargeBoldTitle) {
  const QFont font = label(u"Lanternix"_s).font();
  EXPECT_EQ(font, textFont(TextStyle::largeTitle, QFont::Bold));
}

TEST_F(AboutTabTest, TheVersionStandsCloserToTheNameThanTheLineBelow) {
  const QRect name = label(u"Lanternix"_s).geometry();
  const QRect version = label(u"Version 1.0.0"_s).geometry();
  const QRect line = label(u"Quick launcher for directories, files, and links"_s).geometry();
  EXPECT_EQ(version.top() - name.bottom() - 1, 4);
  EXPECT_EQ(line.top() - version.bottom() - 1, 20);
}

TEST_F(AboutTabTest, EverythingStandsInTheMiddle) {
  const QRect line = label(u"Quick launcher for directories, files, and links"_s).geometry();
  const auto widgets = tab.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
  const QWidget *mark = widgets.front();
  EXPECT_EQ(mark->size(), QSize(56, 56));
  EXPECT_NEAR(mark->geometry().center().x(), tab.rect().center().x(), 1);
  EXPECT_NEAR(line.center().x(), tab.rect().center().x(), 1);
  const int above = mark->geometry().top();
  const int below = tab.height() - line.bottom() - 1;
  EXPECT_NEAR(above, below, 2);
}

TEST_F(AboutTabTest, TheSymbolRunsFromBlueToCyan_InBothAppearances) {
  const QPalette before = QApplication::palette();
  for (const QPalette &palette : {Palettes::light(), Palettes::dark()}) {
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    QWidget *mark = tab.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).front();
    QImage image(mark->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    mark->render(&image, {}, {}, QWidget::RenderFlags());
    const QColor blue = systemColor(SystemColor::blue, palette);
    const QColor cyan = systemColor(SystemColor::cyan, palette);
    QList<QColor> ink;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y).alpha() == 255) {
          ink.append(image.pixelColor(x, y));
        }
      }
    }
    ASSERT_GT(ink.size(), 100);
    for (const QColor &color : ink) {
      ASSERT_TRUE(isBetween(color, blue, cyan)) << color.name().toStdString();
    }
    // Taken column by column, the first is nearer to blue and the last nearer to cyan.
    EXPECT_LT(std::abs(ink.front().green() - blue.green()),
              std::abs(ink.back().green() - blue.green()));
  }
  QApplication::setPalette(before);
}

}  // namespace lanternix
