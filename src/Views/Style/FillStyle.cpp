#include "Views/Style/FillStyle.h"

#include <QtGui/QPalette>

namespace lanternix {

namespace {

struct Opacities {
  float light;
  float dark;
};

// Primary to tertiary carry text and keep a contrast of at least 4.5:1; quaternary is for shapes.
Opacities opacities(FillStyle style) {
  switch (style) {
    case FillStyle::primary:
      return {0.87F, 0.92F};
    case FillStyle::secondary:
      return {0.66F, 0.68F};
    case FillStyle::tertiary:
      return {0.57F, 0.56F};
    case FillStyle::quaternary:
      return {0.12F, 0.14F};
  }
  return {1, 1};
}

}  // namespace

bool isDark(const QPalette &palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QColor fillColor(FillStyle style, const QPalette &palette) {
  QColor color = palette.color(QPalette::Active, QPalette::WindowText);
  const Opacities opacity = opacities(style);
  color.setAlphaF(isDark(palette) ? opacity.dark : opacity.light);
  return color;
}

}  // namespace lanternix
