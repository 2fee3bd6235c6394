#pragma once

#include <QtCore/QRect>
#include <QtGui/QImage>

namespace lanternix {

/// Where the light panel is seen in \p picture of a dark screen whose logical size is \p screen:
/// the panel's frame in logical pixels. Empty when none is seen.
QRect panelOnScreen(const QImage &picture, QSize screen);

}  // namespace lanternix
