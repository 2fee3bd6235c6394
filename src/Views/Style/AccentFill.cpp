#include "Views/Style/AccentFill.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/SystemColors.h"

namespace lanternix {

AccentFill AccentFill::of(const QColor &color) {
  // Below this, a colour would have to be darkened so much that it were another.
  constexpr double carriesWhite = 3;
  if (Contrast::ratio(Qt::white, color) < carriesWhite) {
    return {color, Qt::black};
  }
  return {Contrast::readableOn(Qt::white, color), Qt::white};
}

AccentFill AccentFill::of(const QPalette &palette) {
  return of(accentColor(palette));
}

}  // namespace lanternix
