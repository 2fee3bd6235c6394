#include "Views/Style/SystemColors.h"

#include "Views/Style/FillStyle.h"

#include <QtGui/QPalette>

namespace lanternix {

namespace {

struct Shades {
  QRgb light;
  QRgb dark;
};

Shades shades(SystemColor color) {
  switch (color) {
    case SystemColor::red:
      return {0xFF3B30, 0xFF453A};
    case SystemColor::orange:
      return {0xFF9500, 0xFF9F0A};
    case SystemColor::yellow:
      return {0xFFCC00, 0xFFD60A};
    case SystemColor::green:
      return {0x34C759, 0x32D74B};
    case SystemColor::blue:
      return {0x007AFF, 0x0A84FF};
    case SystemColor::purple:
      return {0xAF52DE, 0xBF5AF2};
    case SystemColor::pink:
      return {0xFF2D55, 0xFF375F};
    case SystemColor::indigo:
      return {0x5856D6, 0x5E5CE6};
    case SystemColor::teal:
      return {0x30B0C7, 0x40C8E0};
    case SystemColor::cyan:
      return {0x32ADE6, 0x64D2FF};
  }
  return {0x007AFF, 0x0A84FF};
}

}  // namespace

QColor systemColor(SystemColor color, const QPalette &palette) {
  const Shades pair = shades(color);
  return QColor(isDark(palette) ? pair.dark : pair.light);
}

QColor accentColor(const QPalette &palette) {
  return palette.color(QPalette::Active, QPalette::Highlight);
}

QColor withOpacity(QColor color, float opacity) {
  color.setAlphaF(opacity);
  return color;
}

}  // namespace lanternix
