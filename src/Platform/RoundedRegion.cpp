#include "Platform/RoundedRegion.h"

#include <cmath>

namespace lanternix {

QRegion roundedRegion(const QRect &area, int radius) {
  QRegion region(area.adjusted(0, radius, 0, -radius));
  for (int line = 0; line < radius; ++line) {
    const double fromCentre = radius - line - 0.5;
    const int inset = qRound(radius - std::sqrt(radius * radius - fromCentre * fromCentre));
    const QRect top(area.left() + inset, area.top() + line, area.width() - 2 * inset, 1);
    region += top;
    region += top.translated(0, area.height() - 1 - 2 * line);
  }
  return region;
}

}  // namespace lanternix
