#pragma once

class QColor;
class QPalette;

namespace lanternix {

/// The program's own colours, for desktops that have none for it.
namespace Palettes {

/// Every role of every group filled, with blue for accent.
QPalette light();
QPalette dark();

/// Black on white and white on black.
QPalette lightHighContrast();
QPalette darkHighContrast();

/// Makes \p accent the accent colour of \p palette: that of what is selected, and of links.
void setAccent(QPalette &palette, const QColor &accent);

/// Whether text in \p palette can be read on windows, in fields and on buttons.
bool isReadable(const QPalette &palette);

}  // namespace Palettes

}  // namespace lanternix
