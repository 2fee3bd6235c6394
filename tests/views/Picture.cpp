#include "views/Picture.h"

#include "Views/Style/Symbol.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <cstdlib>
#include <utility>

namespace lanternix {

namespace {

bool isAlike(QRgb one, QRgb other) {
  constexpr int tolerance = 1;  // what blending rounds
  return std::abs(qRed(one) - qRed(other)) <= tolerance &&
         std::abs(qGreen(one) - qGreen(other)) <= tolerance &&
         std::abs(qBlue(one) - qBlue(other)) <= tolerance &&
         std::abs(qAlpha(one) - qAlpha(other)) <= tolerance;
}

QByteArray named(QRgb color) {
  return QColor::fromRgba(color).name(QColor::HexArgb).toLatin1();
}

}  // namespace

Picture::Picture(QImage image) : m_image(std::move(image)) {}

Picture Picture::of(QWidget &widget) {
  return Picture(widget.grab().toImage());
}

QRect Picture::pixels(const QRectF &area) const {
  const double ratio = m_image.devicePixelRatio();
  return QRectF(area.topLeft() * ratio, area.size() * ratio)
      .toAlignedRect()
      .intersected(m_image.rect());
}

QColor Picture::at(const QPointF &position) const {
  return m_image.pixelColor((position * m_image.devicePixelRatio()).toPoint());
}

QRectF Picture::boundsOf(const QColor &color, const QRectF &area) const {
  const QRect searched = pixels(area);
  QRect bounds;
  for (int y = searched.top(); y <= searched.bottom(); ++y) {
    for (int x = searched.left(); x <= searched.right(); ++x) {
      if (isAlike(m_image.pixel(x, y), color.rgba())) {
        bounds |= QRect(x, y, 1, 1);
      }
    }
  }
  const double ratio = m_image.devicePixelRatio();
  return {bounds.x() / ratio, bounds.y() / ratio, bounds.width() / ratio, bounds.height() / ratio};
}

testing::AssertionResult Picture::isPlain(const QRectF &area, const QColor &color) const {
  const QRect searched = pixels(area);
  if (searched.isEmpty()) {
    return testing::AssertionFailure() << "there is nothing to be seen";
  }
  for (int y = searched.top(); y <= searched.bottom(); ++y) {
    for (int x = searched.left(); x <= searched.right(); ++x) {
      if (!isAlike(m_image.pixel(x, y), color.rgba())) {
        return testing::AssertionFailure()
               << named(m_image.pixel(x, y)).constData() << " in place of "
               << named(color.rgba()).constData() << " at pixel " << x << ", " << y;
      }
    }
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult Picture::shows(const QRectF &area, const QColor &ground,
                                        const Drawing &drawing) const {
  // In the same format, or text would be smoothed in another way.
  QImage expected(m_image.size(), m_image.format());
  expected.setDevicePixelRatio(m_image.devicePixelRatio());
  expected.fill(ground);
  QPainter painter(&expected);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing(painter);
  painter.end();

  const QRect compared = pixels(area);
  int drawn = 0;
  int different = 0;
  QPoint example;
  for (int y = compared.top(); y <= compared.bottom(); ++y) {
    for (int x = compared.left(); x <= compared.right(); ++x) {
      drawn += isAlike(expected.pixel(x, y), ground.rgba()) ? 0 : 1;
      if (!isAlike(expected.pixel(x, y), m_image.pixel(x, y))) {
        ++different;
        example = {x, y};
      }
    }
  }
  if (drawn == 0) {
    return testing::AssertionFailure() << "nothing was to be seen there";
  }
  if (different > drawn / 100) {
    return testing::AssertionFailure()
           << different << " pixels differ, where " << drawn
           << " were to be drawn: " << named(m_image.pixel(example)).constData() << " in place of "
           << named(expected.pixel(example)).constData() << " at pixel " << example.x() << ", "
           << example.y();
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult Picture::shows(const Text &text, const QColor &ground) const {
  return shows(text.place, ground,
               [&text](QPainter &painter) {
                 painter.setFont(text.font);
                 painter.setPen(text.color);
                 painter.drawText(text.place,
                                  static_cast<int>(text.alignment | Qt::AlignVCenter) |
                                      Qt::TextSingleLine | Qt::TextDontClip,
                                  text.text);
               })
         << " (the text \"" << text.text.toStdString() << "\")";
}

testing::AssertionResult Picture::shows(const Mark &mark, const QColor &ground) const {
  QRectF box(0, 0, mark.side, mark.side);
  box.moveCenter(mark.place.center());
  return shows(box, ground,
               [&mark](QPainter &painter) {
                 Symbol::draw(painter, mark.place, mark.symbol, mark.side, mark.color);
               })
         << " (the symbol " << mark.symbol.toStdString() << ")";
}

}  // namespace lanternix
