#pragma once

class QColor;
class QPalette;

namespace lanternix {

/// What translucent windows are made of: the window colour, almost opaque, so that text keeps its
/// contrast over any background.
QColor materialColor(const QPalette &palette);

}  // namespace lanternix
