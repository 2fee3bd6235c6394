#include "Views/Style/PaintedIconEngine.h"

#include <QtGui/QPainter>

namespace lanternix {

QPixmap PaintedIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(&painter, pixmap.rect(), mode, state);
  return pixmap;
}

}  // namespace lanternix
