#include "Views/Style/SlimScrollBar.h"

#include "Views/Style/FillStyle.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionSlider>

namespace lanternix {

namespace {

constexpr int barWidth = 10;
constexpr double handleInset = 2.5;

}  // namespace

QSize SlimScrollBar::sizeHint() const {
  return {barWidth, QScrollBar::sizeHint().height()};
}

void SlimScrollBar::paintEvent(QPaintEvent * /*event*/) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRectF handle(
      style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this));
  const QRectF shape = handle.adjusted(handleInset, handleInset, -handleInset, -handleInset);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(
      fillColor(isSliderDown() ? FillStyle::tertiary : FillStyle::quaternary, palette()));
  painter.drawRoundedRect(shape, shape.width() / 2, shape.width() / 2);
}

}  // namespace lanternix
