#include "Views/Style/ApplicationIcon.h"
#include "Views/Style/Symbol.h"
#include "views/SymbolNames.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <array>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr std::array sides{12, 16, 24, 48};
constexpr int gap = 12;
constexpr int cellHeight = 48 + 2 * gap;
constexpr int cellWidth = 12 + 16 + 24 + 48 + 5 * gap;
constexpr int columns = 6;
constexpr int cells = static_cast<int>(symbolNames.size()) + 1;  // the icon comes last
constexpr int rows = (cells + columns - 1) / columns;

struct Appearance {
  QColor ground;
  QColor ink;
};

QRect place(int cell, size_t size, int firstRow) {
  int x = cell % columns * cellWidth + gap;
  for (size_t before = 0; before < size; ++before) {
    x += sides[before] + gap;
  }
  const int y = (firstRow + cell / columns) * cellHeight + (cellHeight - sides[size]) / 2;
  return {x, y, sides[size], sides[size]};
}

void drawCell(QPainter &painter, int cell, const QRect &area, const QColor &ink) {
  if (cell == cells - 1) {
    applicationIcon().paint(&painter, area);
  } else {
    const char *name = symbolNames[static_cast<size_t>(cell)];
    Symbol::draw(painter, area, QString::fromLatin1(name), area.width(), ink);
  }
}

bool hasInk(const QImage &sheet, const QRect &area, const QColor &ground) {
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (sheet.pixelColor(x, y) != ground) {
        return true;
      }
    }
  }
  return false;
}

QString picturesDirectory() {
  const QString named = qEnvironmentVariable("LANTERNIX_PICTURES");
  return named.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
                               u"/lanternix-pictures"_s
                         : named;
}

}  // namespace

TEST(ContactSheet, ShowsEverySymbolAndTheIcon_AtEverySizeInBothAppearances) {
  const std::array appearances{Appearance{QColor(Qt::white), QColor(Qt::black)},
                               Appearance{QColor(0x20, 0x20, 0x20), QColor(Qt::white)}};
  QImage sheet(columns * cellWidth, 2 * rows * cellHeight, QImage::Format_RGB32);
  QPainter painter(&sheet);
  int firstRow = 0;
  for (const Appearance &appearance : appearances) {
    painter.fillRect(0, firstRow * cellHeight, sheet.width(), rows * cellHeight, appearance.ground);
    for (int cell = 0; cell < cells; ++cell) {
      for (size_t size = 0; size < sides.size(); ++size) {
        const QRect area = place(cell, size, firstRow);
        drawCell(painter, cell, area, appearance.ink);
        EXPECT_TRUE(hasInk(sheet, area, appearance.ground))
            << "cell " << cell << " at " << sides[size];
      }
    }
    firstRow += rows;
  }
  painter.end();

  const QString directory = picturesDirectory();
  ASSERT_TRUE(QDir().mkpath(directory));
  const QString path = directory + u"/symbols.png"_s;
  ASSERT_TRUE(sheet.save(path));
  EXPECT_EQ(QImage(path).size(), sheet.size());
}

}  // namespace lanternix
