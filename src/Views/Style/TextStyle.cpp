#include "Views/Style/TextStyle.h"

#include <QtWidgets/QApplication>

namespace lanternix {

namespace {

double ratio(TextStyle style) {
  switch (style) {
    case TextStyle::largeTitle:
      return 2;
    case TextStyle::title:
      return 1.69;
    case TextStyle::title2:
      return 1.31;
    case TextStyle::title3:
      return 1.15;
    case TextStyle::body:
      return 1;
    case TextStyle::subheadline:
      return 0.85;
    case TextStyle::caption:
    case TextStyle::caption2:
      return 0.77;
  }
  return 1;
}

}  // namespace

QFont textFont(TextStyle style, QFont::Weight weight) {
  QFont font = QApplication::font();
  // A font is sized either in points or in pixels; the other reads as -1.
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * ratio(style));
  } else {
    font.setPixelSize(qRound(font.pixelSize() * ratio(style)));
  }
  font.setWeight(weight);
  return font;
}

}  // namespace lanternix
