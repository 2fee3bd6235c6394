#include "Views/Style/Symbol.h"

#include <QtCore/QFile>
#include <QtGui/QColor>
#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>
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

QPixmap rendered(const QString &name, int pixels, const QColor &color) {
  QPixmap pixmap(pixels, pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(resourcePath(name)).render(&painter);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(pixmap.rect(), color);
  return pixmap;
}

}  // namespace

QPixmap pixmap(const QString &name, double side, const QColor &color, double devicePixelRatio) {
  const int pixels = qMax(1, qRound(side * devicePixelRatio));
  const QString key =
      u"symbol %1 %2 %3"_s.arg(QString::number(pixels), QString::number(color.rgba(), 16), name);
  QPixmap pixmap;
  if (!QPixmapCache::find(key, &pixmap)) {
    pixmap = rendered(name, pixels, color);
    QPixmapCache::insert(key, pixmap);
  }
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

void draw(QPainter &painter, const QRectF &area, const QString &name, double side,
          const QColor &color) {
  const double ratio = painter.device()->devicePixelRatioF();
  // Onto whole device pixels, or a sharp drawing turns soft.
  const auto snapped = [ratio](double position) { return qRound(position * ratio) / ratio; };
  const QPointF corner(snapped(area.center().x() - side / 2),
                       snapped(area.center().y() - side / 2));
  painter.drawPixmap(corner, pixmap(name, side, color, ratio));
}

double sideFor(const QFont &font) {
  return qRound(QFontMetricsF(font).capHeight() * 1.6);
}

}  // namespace lanternix::Symbol
