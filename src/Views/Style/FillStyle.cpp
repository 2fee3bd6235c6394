#include "Views/Style/FillStyle.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPalette>

#include <algorithm>

namespace lanternix {

namespace {

struct Opacities {
  float light;
  float dark;
};

// Quaternary is for shapes; the others carry text.
Opacities opacities(FillStyle style) {
  switch (style) {
    case FillStyle::primary:
      return {0.87F, 0.92F};
    case FillStyle::secondary:
      return {0.68F, 0.68F};
    case FillStyle::tertiary:
      return {0.6F, 0.56F};
    case FillStyle::quaternary:
      return {0.12F, 0.14F};
  }
  return {1, 1};
}

/// \p color at \p opacity, or as much more as it takes to be read on \p ground.
QColor readable(QColor color, float opacity, const QColor &ground) {
  // More than is asked for on the ground itself, because a little of what is behind a translucent
  // window shows through it.
  constexpr double wanted = Contrast::ofText * 1.08;
  constexpr float step = 0.01F;
  color.setAlphaF(opacity);
  while (opacity < 1 && Contrast::ratio(color, ground) < wanted) {
    opacity = std::min(opacity + step, 1.0F);
    color.setAlphaF(opacity);
  }
  return color;
}

}  // namespace

QColor selectionColor(const QPalette &palette) {
  constexpr float opacity = 0.15F;
  return withOpacity(accentColor(palette), opacity);
}

bool isDark(const QPalette &palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QColor fillColor(FillStyle style, const QPalette &palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor plain = fillColor(style, palette, window);
  if (style != FillStyle::primary && style != FillStyle::secondary) {
    return plain;
  }
  // What the rows of lists are written in has to be read on the selected one, too.
  const QColor selected = selectionColor(palette);
  return readable(plain, plain.alphaF(), Contrast::laidOn(window, selected));
}

QColor fillColor(FillStyle style, const QPalette &palette, const QColor &ground) {
  const QColor color = palette.color(QPalette::Active, QPalette::WindowText);
  const Opacities pair = opacities(style);
  const float opacity = isDark(palette) ? pair.dark : pair.light;
  return style == FillStyle::quaternary ? withOpacity(color, opacity)
                                        : readable(color, opacity, ground);
}

}  // namespace lanternix
