#pragma once

#include <QtGui/QColor>

class QPalette;

namespace lanternix {

/// The ranks of foreground: the text colour, ever fainter.
enum class FillStyle { primary, secondary, tertiary, quaternary };

/// Whether \p palette is a dark one.
bool isDark(const QPalette &palette);

/// The colour of \p style on the window colour of \p palette.
QColor fillColor(FillStyle style, const QPalette &palette);

}  // namespace lanternix
