#pragma once

#include <QtCore/QSize>

class QPainter;
class QPalette;
class QRect;
class QRegion;
class QStyleOptionMenuItem;
class QWidget;

namespace lanternix {

/// How menus look: a rounded panel, the entry under the pointer filled with the accent colour.
namespace MenuDrawing {

inline constexpr int panelRadius = 8;
/// Around all entries, in logical pixels.
inline constexpr int panelMargin = 5;

void drawPanel(QPainter &painter, const QPalette &palette, const QRect &area);
void drawItem(QPainter &painter, const QStyleOptionMenuItem &option, const QWidget *menu);
QSize itemSize(const QStyleOptionMenuItem &option, const QSize &contents);

/// The outline of a menu of this size, for where its corners cannot be blended.
QRegion panelRegion(const QRect &area);

}  // namespace MenuDrawing

}  // namespace lanternix
