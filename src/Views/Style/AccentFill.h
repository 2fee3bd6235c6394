#pragma once

#include <QtGui/QColor>

class QPalette;

namespace lanternix {

/// The accent colour as the ground of what is to be noticed first, and the colour of the text on
/// it.
struct AccentFill {
  QColor ground;
  QColor text;

  /// White text wherever the accent can carry it when darkened a little, black text else. The text
  /// can be read in either case.
  static AccentFill of(const QPalette &palette);
  static AccentFill of(const QColor &color);
};

}  // namespace lanternix
