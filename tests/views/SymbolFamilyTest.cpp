#include "Views/Style/Symbol.h"
#include "views/SymbolNames.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QColor>
#include <QtGui/QImage>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

QImage image(const QString &name, int pixels) {
  return Symbol::image(name, pixels, Qt::black, 1);
}

/// What the ink of a symbol amounts to, in units of its 24-unit grid.
struct Ink {
  double left = 24;
  double top = 24;
  double right = 0;
  double bottom = 0;
  double coverage = 0;  ///< of the whole grid, 0 to 1

  double centreX() const { return (left + right) / 2; }
  double centreY() const { return (top + bottom) / 2; }
  double longerSide() const { return std::max(right - left, bottom - top); }
};

Ink inkOf(const QString &name) {
  constexpr int pixels = 480;
  constexpr double unit = pixels / 24.0;
  const QImage drawn = image(name, pixels);
  Ink ink;
  double sum = 0;
  for (int y = 0; y < pixels; ++y) {
    for (int x = 0; x < pixels; ++x) {
      const int alpha = qAlpha(drawn.pixel(x, y));
      sum += alpha;
      if (alpha > 127) {
        ink.left = std::min(ink.left, x / unit);
        ink.top = std::min(ink.top, y / unit);
        ink.right = std::max(ink.right, (x + 1) / unit);
        ink.bottom = std::max(ink.bottom, (y + 1) / unit);
      }
    }
  }
  ink.coverage = sum / 255 / pixels / pixels;
  return ink;
}

/// How many full pixels' worth of ink two drawings of one size differ by.
double difference(const QImage &one, const QImage &other) {
  double sum = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      sum += qAbs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y)));
    }
  }
  return sum / 255;
}

QLatin1StringView text(const char *name) {
  return QLatin1StringView(name);
}

bool isMark(const char *name) {
  return std::ranges::any_of(markNames,
                             [name](const char *mark) { return text(mark) == text(name); });
}

bool isFilled(const char *name) {
  return text(name).endsWith(".fill"_L1);
}

void expectRootOfTheFamily(const QXmlStreamAttributes &root, const char *name) {
  EXPECT_EQ(root.value("viewBox"_L1), "0 0 24 24"_L1) << name;
  EXPECT_EQ(root.value("fill"_L1), "none"_L1) << name;
  EXPECT_EQ(root.value("stroke"_L1), "#000"_L1) << name;
  EXPECT_EQ(root.value("stroke-width"_L1), "2"_L1) << name;
  EXPECT_EQ(root.value("stroke-linecap"_L1), "round"_L1) << name;
  EXPECT_EQ(root.value("stroke-linejoin"_L1), "round"_L1) << name;
}

// A path is stroked, filled and stroked, or, for a dot, filled alone; it has no other means.
void expectPathOfTheFamily(const QXmlStreamAttributes &path, const char *name) {
  for (const QXmlStreamAttribute &attribute : path) {
    const QStringView key = attribute.name();
    const bool allowed = key == "d"_L1 || (key == "fill"_L1 && attribute.value() == "#000"_L1) ||
                         (key == "fill-rule"_L1 && attribute.value() == "evenodd"_L1) ||
                         (key == "stroke"_L1 && attribute.value() == "none"_L1);
    EXPECT_TRUE(allowed) << name << ": " << key.toString().toStdString();
  }
}

}  // namespace

TEST(SymbolFamily, EverySymbolTheProgramNames_HasADrawingOfItsOwn) {
  const QImage standIn = image(u"no.such.symbol"_s, 24);
  QStringList expected;
  for (const char *name : symbolNames) {
    expected.append(text(name) + ".svg"_L1);
    if (text(name) != "folder"_L1) {
      EXPECT_NE(image(text(name), 24), standIn) << name;
    }
  }
  expected.sort();
  QStringList drawings = QDir(u":/symbols"_s).entryList();
  drawings.sort();
  EXPECT_EQ(drawings, expected) << "no name without a drawing, no drawing without a name";
}

TEST(SymbolFamily, EveryDrawing_KeepsToOneGridOneStrokeAndRoundEnds) {
  image(u"folder"_s, 24);  // brings the resources in
  for (const char *name : symbolNames) {
    QFile file(u":/symbols/"_s + text(name) + u".svg"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QXmlStreamReader xml(&file);
    ASSERT_TRUE(xml.readNextStartElement()) << name;
    expectRootOfTheFamily(xml.attributes(), name);
    while (xml.readNextStartElement()) {
      EXPECT_EQ(xml.name(), "path"_L1) << name;
      expectPathOfTheFamily(xml.attributes(), name);
      xml.skipCurrentElement();
    }
    EXPECT_FALSE(xml.hasError()) << name;
  }
}

TEST(SymbolFamily, EveryDrawing_LeavesTheEdgeOfTheGridFree) {
  constexpr int pixels = 48;
  for (const char *name : symbolNames) {
    const QImage drawn = image(text(name), pixels);
    int ink = 0;
    for (int i = 0; i < pixels; ++i) {
      ink += qAlpha(drawn.pixel(i, 0)) + qAlpha(drawn.pixel(i, pixels - 1)) +
             qAlpha(drawn.pixel(0, i)) + qAlpha(drawn.pixel(pixels - 1, i));
    }
    EXPECT_EQ(ink, 0) << name;
  }
}

TEST(SymbolFamily, EveryDrawing_StandsInTheMiddle) {
  for (const char *name : symbolNames) {
    const Ink ink = inkOf(text(name));
    EXPECT_NEAR(ink.centreX(), 12, 0.55) << name;
    EXPECT_NEAR(ink.centreY(), 12, 0.55) << name;
  }
}

TEST(SymbolFamily, AllAreOfOneSize) {
  for (const char *name : symbolNames) {
    const double side = inkOf(text(name)).longerSide();
    EXPECT_GE(side, 15.9) << name;
    EXPECT_LE(side, 20.4) << name;
  }
}

TEST(SymbolFamily, AllAreOfOneWeight) {
  for (const char *name : symbolNames) {
    const double coverage = inkOf(text(name)).coverage;
    const bool mark = isMark(name);
    const bool filled = isFilled(name);
    EXPECT_GE(coverage, mark ? 0.06 : filled ? 0.26 : 0.15) << name;
    EXPECT_LE(coverage, mark ? 0.20 : filled ? 0.52 : 0.36) << name;
  }
}

TEST(SymbolFamily, AFilledForm_CoversMoreThanItsOutlineInTheSamePlace) {
  int pairs = 0;
  for (const char *name : symbolNames) {
    const QString filledName = text(name) + u".fill"_s;
    if (!QFile::exists(u":/symbols/"_s + filledName + u".svg"_s)) {
      continue;
    }
    ++pairs;
    const Ink outline = inkOf(text(name));
    const Ink filled = inkOf(filledName);
    EXPECT_GT(filled.coverage, outline.coverage * 1.25) << name;
    EXPECT_NEAR(filled.left, outline.left, 0.1) << name;
    EXPECT_NEAR(filled.right, outline.right, 0.1) << name;
    EXPECT_NEAR(filled.top, outline.top, 0.1) << name;
    EXPECT_NEAR(filled.bottom, outline.bottom, 1) << name;
  }
  EXPECT_EQ(pairs, 8);
}

TEST(SymbolFamily, NoTwoLookAlike_HoweverSmall) {
  for (const int pixels : {12, 16, 24, 48}) {
    for (size_t i = 0; i < symbolNames.size(); ++i) {
      for (size_t j = i + 1; j < symbolNames.size(); ++j) {
        const double apart =
            difference(image(text(symbolNames[i]), pixels), image(text(symbolNames[j]), pixels));
        EXPECT_GT(apart, pixels * pixels * 0.04)
            << symbolNames[i] << " and " << symbolNames[j] << " at " << pixels;
      }
    }
  }
}

TEST(SymbolFamily, AtTwelvePixels_EachStillHasFirmInk) {
  for (const char *name : symbolNames) {
    const QImage drawn = image(text(name), 12);
    int strongest = 0;
    for (int y = 0; y < 12; ++y) {
      for (int x = 0; x < 12; ++x) {
        strongest = std::max(strongest, qAlpha(drawn.pixel(x, y)));
      }
    }
    EXPECT_GE(strongest, 120) << name;
  }
}

}  // namespace lanternix
