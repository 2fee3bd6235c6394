#pragma once

#include <QtGui/QColor>

class QPalette;

namespace lanternix {

/// The ranks of foreground: the text colour, ever fainter.
enum class FillStyle { primary, secondary, tertiary, quaternary };

/// Whether \p palette is a dark one.
bool isDark(const QPalette &palette);

/// What lies behind a selected row: the accent colour, faintly.
QColor selectionColor(const QPalette &palette);

/// The colour of \p style on the window colour of \p palette. Text in the first three styles has a
/// contrast of at least 4.5:1 there, in the first two also on a selected row, as far as the
/// palette's own text has.
QColor fillColor(FillStyle style, const QPalette &palette);

/// The same on another, opaque ground.
QColor fillColor(FillStyle style, const QPalette &palette, const QColor &ground);

}  // namespace lanternix
