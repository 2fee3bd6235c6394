#include "Views/Style/PixelGrid.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace lanternix::PixelGrid {

QPointF snapped(const QPainter &painter, const QPointF &point) {
  const QTransform &transform = painter.deviceTransform();
  // What is turned lies on no grid.
  if (transform.type() > QTransform::TxScale) {
    return point;
  }
  const QPointF pixel = transform.map(point);
  return transform.inverted().map(QPointF(std::round(pixel.x()), std::round(pixel.y())));
}

QRectF snappedLine(const QPainter &painter, const QRectF &line) {
  const double scale = painter.deviceTransform().m22();
  if (scale <= 0) {
    return line;
  }
  const double height = std::max(1.0, std::floor(line.height() * scale)) / scale;
  return {QPointF(line.left(), snapped(painter, line.topLeft()).y()), QSizeF(line.width(), height)};
}

}  // namespace lanternix::PixelGrid
