#include "Views/MenuBar/StatusIcon.h"

#include "Views/Style/PaintedIconEngine.h"
#include "Views/Style/Symbol.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

const QString symbol = u"arrow.triangle.branch"_s;
constexpr double rimOpacity = 0.6;
constexpr double grid = 24;  // of the symbol's drawing; the rim is one of its units wide

QImage rim(double side, const QColor &color, double ratio) {
  const QImage shape = Symbol::image(symbol, side, color, ratio);
  QImage image(shape.size(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  const double width = side / grid;
  for (const double x : {-width, 0.0, width}) {
    for (const double y : {-width, 0.0, width}) {
      painter.drawImage(QPointF(x, y), shape);
    }
  }
  return image;
}

class StatusIconEngine : public PaintedIconEngine {
 public:
  StatusIconEngine(const QColor &symbolColor, const QColor &rimColor)
      : m_symbolColor(symbolColor), m_rimColor(rimColor) {}

  void paint(QPainter *painter, const QRect &area, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    const double ratio = painter->device()->devicePixelRatioF();
    const int side = qMin(area.width(), area.height());
    const QPoint corner =
        QRect(area.center() - QPoint(side - 1, side - 1) / 2, QSize(side, side)).topLeft();
    painter->save();
    painter->setOpacity(rimOpacity);
    painter->drawImage(corner, rim(side, m_rimColor, ratio));
    painter->setOpacity(1);
    painter->drawImage(corner, Symbol::image(symbol, side, m_symbolColor, ratio));
    painter->restore();
  }

  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 44, 48, 64}) {
      sizes.append({side, side});
    }
    return sizes;
  }

  QIconEngine *clone() const override {
    return new StatusIconEngine(m_symbolColor, m_rimColor);  // owned by the icon
  }

 private:
  QColor m_symbolColor;
  QColor m_rimColor;
};

}  // namespace

QIcon statusIcon(const QPalette &palette) {
  return QIcon(new StatusIconEngine(palette.color(QPalette::WindowText),
                                    palette.color(QPalette::Window)));  // owned by the icon
}

}  // namespace lanternix
