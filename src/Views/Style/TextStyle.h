#pragma once

#include <QtGui/QFont>

namespace lanternix {

/// The sizes of text in the program's windows, as ratios of the user's own font size.
enum class TextStyle { largeTitle, title, title2, title3, body, subheadline, caption, caption2 };

/// The application's font in the size of \p style.
QFont textFont(TextStyle style, QFont::Weight weight = QFont::Normal);

}  // namespace lanternix
