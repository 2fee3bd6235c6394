#pragma once

#include <QtCore/QSize>

class QPainter;
class QStyleOptionButton;
class QWidget;

namespace lanternix {

/// How push buttons look: a filled shape without a line; the default one of a window is prominent,
/// filled with the accent colour. A destructive one is red in place of that.
namespace ButtonDrawing {

/// Draws the whole button, with its icon in the colour of its text. \p button may be null.
void drawButton(QPainter &painter, const QStyleOptionButton &option, const QWidget *button);

/// \p contents is the size of what stands on it.
QSize buttonSize(const QSize &contents);

}  // namespace ButtonDrawing

}  // namespace lanternix
