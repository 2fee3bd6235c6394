#pragma once

#include <QtCore/QRectF>

class QPainter;

namespace lanternix {

/// The screen's own pixels, onto which lines and pictures are laid lest they turn soft at scales
/// that are no whole numbers.
namespace PixelGrid {

/// The point nearest to \p point where a pixel begins, in the painter's coordinates.
QPointF snapped(const QPainter &painter, const QPointF &point);

/// A level line at least one pixel high, its height as near to that of \p line as whole pixels
/// come.
QRectF snappedLine(const QPainter &painter, const QRectF &line);

}  // namespace PixelGrid

}  // namespace lanternix
