#include "Utilities/PanelShadow.h"

#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace lanternix::PanelShadow {

namespace {

// A wide one as by a light from above, and a narrow dark line that sets the window off from what
// has its own colour.
constexpr double depth = 0.30;
constexpr double blur = 30;
constexpr double drop = 10;
constexpr double lineDepth = 0.20;

/// How much of a shadow with a soft edge lies at \p distance outside its outline, 0 to 1.
double softEdge(double distance, double softness) {
  const double t = std::clamp(0.5 - distance / (2 * softness), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

/// From the outline of a square of half the side \p reach around the origin, outwards.
double distanceToRounded(double x, double y, double reach, double radius) {
  const double dx = std::abs(x) - reach + radius;
  const double dy = std::abs(y) - reach + radius;
  return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) -
         radius;
}

/// The measures of the shadow in whole pixels, at a scale of \p ratio pixels to a logical one.
struct Pixels {
  explicit Pixels(int cornerRadius, double ratio)
      : left(qRound(margins.left() * ratio)),
        top(qRound(margins.top() * ratio)),
        right(qRound(margins.right() * ratio)),
        bottom(qRound(margins.bottom() * ratio)),
        corner(qRound((cornerRadius + blur + drop) * ratio)) {}

  int left;
  int top;
  int right;
  int bottom;
  /// How far from its corners a frame's shadow is still bent.
  int corner;
  /// The part of a tile's sides that can be drawn as long as needed.
  static constexpr int straight = 2;
};

/// The shadow of a small frame. Larger ones are made of its corners, and its sides drawn long.
QImage tile(int cornerRadius, double ratio) {
  const Pixels pixels(cornerRadius, ratio);
  const int side = 2 * pixels.corner + Pixels::straight;
  QImage image(pixels.left + side + pixels.right, pixels.top + side + pixels.bottom,
               QImage::Format_ARGB32_Premultiplied);
  const double reach = side / ratio / 2;
  for (int row = 0; row < image.height(); ++row) {
    const double y = (row + 0.5 - pixels.top) / ratio - reach;
    for (int column = 0; column < image.width(); ++column) {
      const double x = (column + 0.5 - pixels.left) / ratio - reach;
      const double distance = distanceToRounded(x, y, reach, cornerRadius);
      const double wide = softEdge(distanceToRounded(x, y - drop, reach, cornerRadius), blur);
      const double line = softEdge(distance - 0.5, 0.5);
      const double outside = std::clamp(distance * ratio + 0.5, 0.0, 1.0);
      const double alpha = (1 - (1 - depth * wide) * (1 - lineDepth * line)) * outside;
      image.setPixel(column, row, qRgba(0, 0, 0, qRound(255 * alpha)));
    }
  }
  return image;
}

const QImage &cachedTile(int cornerRadius, double ratio) {
  static QImage image;
  static int imageRadius = 0;
  static double imageRatio = 0;
  if (cornerRadius != imageRadius || ratio != imageRatio) {
    image = tile(cornerRadius, ratio);
    imageRadius = cornerRadius;
    imageRatio = ratio;
  }
  return image;
}

/// The rectangle from the cut \p column, \p row of the lines \p x and \p y to the next.
QRect piece(const std::array<int, 4> &x, const std::array<int, 4> &y, std::size_t column,
            std::size_t row) {
  return {QPoint(x.at(column), y.at(row)), QPoint(x.at(column + 1) - 1, y.at(row + 1) - 1)};
}

}  // namespace

void paint(QPainter &painter, const QRect &frame, int cornerRadius) {
  const double ratio = painter.device()->devicePixelRatioF();
  const Pixels pixels(cornerRadius, ratio);
  const QImage &image = cachedTile(cornerRadius, ratio);
  const QRect inner(qRound(frame.left() * ratio), qRound(frame.top() * ratio),
                    qRound(frame.width() * ratio), qRound(frame.height() * ratio));
  const QRect whole = inner.marginsAdded({pixels.left, pixels.top, pixels.right, pixels.bottom});
  // Where the tile is cut, and where the pieces go: three columns, three rows.
  const std::array targetX{whole.left(), inner.left() + pixels.corner,
                           inner.right() + 1 - pixels.corner, whole.right() + 1};
  const std::array targetY{whole.top(), inner.top() + pixels.corner,
                           inner.bottom() + 1 - pixels.corner, whole.bottom() + 1};
  const int x = pixels.left + pixels.corner;
  const int y = pixels.top + pixels.corner;
  const std::array sourceX{0, x, x + Pixels::straight, image.width()};
  const std::array sourceY{0, y, y + Pixels::straight, image.height()};
  painter.save();
  painter.scale(1 / ratio, 1 / ratio);
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      if (row != 1 || column != 1) {  // which is under the window itself
        painter.drawImage(piece(targetX, targetY, column, row), image,
                          piece(sourceX, sourceY, column, row));
      }
    }
  }
  painter.restore();
}

}  // namespace lanternix::PanelShadow
