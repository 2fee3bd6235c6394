#pragma once

#include <QtCore/QMargins>

class QPainter;
class QRect;

namespace lanternix {

/// The soft shadow of a window that draws its own.
namespace PanelShadow {

/// How far it reaches around the window, in logical pixels.
inline constexpr QMargins margins{36, 28, 36, 48};

/// Draws the shadow around \p frame, whose corners are rounded by \p cornerRadius. Nothing is drawn
/// inside the frame but under its corners.
void paint(QPainter &painter, const QRect &frame, int cornerRadius);

}  // namespace PanelShadow

}  // namespace lanternix
