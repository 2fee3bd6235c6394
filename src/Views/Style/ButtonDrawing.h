#pragma once

#include <QtCore/QSize>

class QPainter;
class QStyleOptionButton;

namespace lanternix {

/// How push buttons look: a filled shape without a line; the default one of a window is prominent,
/// filled with the accent colour.
namespace ButtonDrawing {

/// Draws the whole button, with its icon in the colour of its text.
void drawButton(QPainter &painter, const QStyleOptionButton &option);

/// \p contents is the size of what stands on it.
QSize buttonSize(const QSize &contents);

}  // namespace ButtonDrawing

}  // namespace lanternix
