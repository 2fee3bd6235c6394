#pragma once

#include <QtGui/QIcon>

namespace lanternix {

/// The icon in the desktop's tray: the symbol of the program in the palette's text colour, with a
/// faint rim in its window colour. Trays mostly look like the windows, and the rim is lost there;
/// on one that is dark while the windows are light, or the other way round, the rim shows the
/// symbol.
QIcon statusIcon();

}  // namespace lanternix
