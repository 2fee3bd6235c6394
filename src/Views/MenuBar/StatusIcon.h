#pragma once

#include <QtGui/QIcon>

class QPalette;

namespace lanternix {

/// The icon in the desktop's tray: the symbol of the program in the text colour of \p palette, with
/// a faint rim in its window colour. On a tray that looks like the palette the rim is lost; on one
/// that is dark while the palette is light, or the other way round, it shows the symbol.
QIcon statusIcon(const QPalette &palette);

}  // namespace lanternix
