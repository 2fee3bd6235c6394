#include "Views/Style/ThemeIcon.h"

#include "Views/Style/PixelGrid.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtGui/QPainter>

#include <algorithm>

namespace lanternix::ThemeIcon {

namespace {

struct Key {
  QString theme;
  QStringList names;
  int pixels;

  friend bool operator==(const Key &, const Key &) = default;
  friend size_t qHash(const Key &key, size_t seed = 0) noexcept {
    return qHashMulti(seed, key.theme, key.names, key.pixels);
  }
};

/// An image of exactly \p pixels square, the picture whole and in its middle.
QImage squared(const QImage &picture, int pixels) {
  const QImage fitted =
      picture.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QImage square(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  square.fill(Qt::transparent);
  QPainter(&square).drawImage((pixels - fitted.width()) / 2, (pixels - fitted.height()) / 2,
                              fitted);
  return square;
}

QImage loaded(const QStringList &names, int pixels) {
  for (const QString &name : names) {
    const QIcon icon = name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
    // Asked for in device pixels: a theme's drawing of that very size is the sharpest.
    const QImage picture = icon.pixmap(QSize(pixels, pixels), 1).toImage();
    if (!picture.isNull()) {
      return squared(picture, pixels);
    }
  }
  return {};
}

}  // namespace

QImage image(const QStringList &names, double side, double devicePixelRatio) {
  constexpr qsizetype limit = 200;
  static QHash<Key, QImage> images;
  const Key key{QIcon::themeName(), names, std::max(1, qRound(side * devicePixelRatio))};
  auto found = images.constFind(key);
  if (found == images.constEnd()) {
    if (images.size() >= limit) {
      images.clear();
    }
    found = images.insert(key, loaded(names, key.pixels));
  }
  QImage image = *found;
  image.setDevicePixelRatio(devicePixelRatio);
  return image;
}

bool draw(QPainter &painter, const QRectF &area, const QStringList &names, double side) {
  if (names.isEmpty()) {
    return false;
  }
  const QImage picture = image(names, side, painter.device()->devicePixelRatioF());
  if (picture.isNull()) {
    return false;
  }
  const QPointF corner = area.center() - QPointF(side / 2, side / 2);
  painter.drawImage(PixelGrid::snapped(painter, corner), picture);
  return true;
}

}  // namespace lanternix::ThemeIcon
