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

/// How far from its corners a frame's shadow is still bent.
int cornerLength(int cornerRadius) {
  return cornerRadius + static_cast<int>(blur + drop);
}

constexpr int straightLength = 2;

/// The shadow of a small frame. Larger ones are made of its corners, and its sides drawn long.
QImage tile(int cornerRadius, double ratio) {
  const int side = 2 * cornerLength(cornerRadius) + straightLength;
  const QSize size(side + margins.left() + margins.right(),
                   side + margins.top() + margins.bottom());
  QImage image(qRound(size.width() * ratio), qRound(size.height() * ratio),
               QImage::Format_ARGB32_Premultiplied);
  const double reach = side / 2.0;
  for (int row = 0; row < image.height(); ++row) {
    const double y = (row + 0.5) / ratio - margins.top() - reach;
    for (int column = 0; column < image.width(); ++column) {
      const double x = (column + 0.5) / ratio - margins.left() - reach;
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

}  // namespace

void paint(QPainter &painter, const QRect &frame, int cornerRadius) {
  const double ratio = painter.device()->devicePixelRatioF();
  const QImage &image = cachedTile(cornerRadius, ratio);
  const QRect whole = frame.marginsAdded(margins);
  const int corner = cornerLength(cornerRadius);
  // Where the tile is cut, and where the pieces go: three columns, three rows.
  const std::array targetX{whole.left(), frame.left() + corner, frame.right() + 1 - corner,
                           whole.right() + 1};
  const std::array targetY{whole.top(), frame.top() + corner, frame.bottom() + 1 - corner,
                           whole.bottom() + 1};
  const double straight = straightLength * ratio;
  const double x = (margins.left() + corner) * ratio;
  const double y = (margins.top() + corner) * ratio;
  const std::array sourceX{0.0, x, x + straight, double(image.width())};
  const std::array sourceY{0.0, y, y + straight, double(image.height())};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      if (row == 1 && column == 1) {
        continue;  // under the window itself
      }
      const QRectF target(QPointF(targetX.at(column), targetY.at(row)),
                          QPointF(targetX.at(column + 1), targetY.at(row + 1)));
      const QRectF source(QPointF(sourceX.at(column), sourceY.at(row)),
                          QPointF(sourceX.at(column + 1), sourceY.at(row + 1)));
      painter.drawImage(target, image, source);
    }
  }
}

}  // namespace lanternix::PanelShadow
