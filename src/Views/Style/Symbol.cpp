#include "Views/Style/Symbol.h"

#include "Views/Style/PixelGrid.h"

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtGui/QColor>
#include <QtGui/QFontMetricsF>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

using namespace Qt::StringLiterals;

// The linker drops the drawings from a static library unless something asks for them. The macro has
// to stand outside every namespace.
static void initResources() {
  Q_INIT_RESOURCE(resources);
}

namespace lanternix::Symbol {

namespace {

// A name comes from the user's data: only plain file names may reach the resources.
QString resourcePath(const QString &name) {
  [[maybe_unused]] static const bool ready = (initResources(), true);
  const QString path = u":/symbols/"_s + name + u".svg"_s;
  return name.contains(u'/') || !QFile::exists(path) ? u":/symbols/folder.svg"_s : path;
}

QImage rendered(const QString &name, int pixels, const QColor &color) {
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  QSvgRenderer(resourcePath(name)).render(&painter);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), color);
  return image;
}

struct Key {
  QString name;
  int pixels;
  QRgb color;

  friend bool operator==(const Key &, const Key &) = default;
  friend size_t qHash(const Key &key, size_t seed = 0) noexcept {
    return qHashMulti(seed, key.name, key.pixels, key.color);
  }
};

// Not QPixmapCache: its clean-up runs on a timer, which would wake the program while the panel is
// hidden.
QImage cached(const QString &name, int pixels, const QColor &color) {
  constexpr qsizetype limit = 500;
  static QHash<Key, QImage> images;
  const Key key{name, pixels, color.rgba()};
  const auto found = images.constFind(key);
  if (found != images.constEnd()) {
    return *found;
  }
  if (images.size() >= limit) {
    images.clear();
  }
  return *images.insert(key, rendered(name, pixels, color));
}

}  // namespace

QImage image(const QString &name, double side, const QColor &color, double devicePixelRatio) {
  QImage image = cached(name, qMax(1, qRound(side * devicePixelRatio)), color);
  image.setDevicePixelRatio(devicePixelRatio);
  return image;
}

void draw(QPainter &painter, const QRectF &area, const QString &name, double side,
          const QColor &color) {
  const QPointF corner = area.center() - QPointF(side / 2, side / 2);
  painter.drawImage(PixelGrid::snapped(painter, corner),
                    image(name, side, color, painter.device()->devicePixelRatioF()));
}

double sideFor(const QFont &font) {
  return qRound(QFontMetricsF(font).capHeight() * 1.6);
}

}  // namespace lanternix::Symbol
