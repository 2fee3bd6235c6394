#pragma once

class QPainter;
class QPalette;
class QRectF;

namespace lanternix {

/// The ring around the control that has the keyboard, in the accent colour.
namespace FocusRing {

/// Of its line, in logical pixels.
inline constexpr double width = 2;

/// Draws it. \p middle, with corners of \p radius, is where the middle of its line runs.
void draw(QPainter &painter, const QPalette &palette, const QRectF &middle, double radius);

}  // namespace FocusRing

}  // namespace lanternix
