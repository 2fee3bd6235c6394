#include "Views/Style/Material.h"

#include <QtGui/QPalette>

namespace lanternix {

QColor materialColor(const QPalette &palette) {
  constexpr float opacity = 0.96F;
  QColor color = palette.color(QPalette::Window);
  color.setAlphaF(opacity);
  return color;
}

}  // namespace lanternix
