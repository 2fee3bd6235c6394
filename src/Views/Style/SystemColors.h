#pragma once

#include "Models/SystemColor.h"

#include <QtGui/QColor>

class QPalette;

namespace lanternix {

/// The light or the dark value of a named colour, whichever suits \p palette.
QColor systemColor(SystemColor color, const QPalette &palette);

/// The desktop's accent colour.
QColor accentColor(const QPalette &palette);

/// \p color at \p opacity (0 to 1).
QColor withOpacity(QColor color, float opacity);

}  // namespace lanternix
