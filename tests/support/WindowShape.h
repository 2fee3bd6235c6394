#pragma once

#include "support/XConnection.h"

#include <QtGui/QRegion>

namespace lanternix {

/// The outlines that a window gave itself, in its own coordinates. A window that gave itself none
/// has its whole rectangle.
namespace WindowShape {

/// What of the window is drawn.
QRegion bounding(const XConnection &connection, xcb_window_t window);

/// What of the window takes presses.
QRegion input(const XConnection &connection, xcb_window_t window);

}  // namespace WindowShape

}  // namespace lanternix
