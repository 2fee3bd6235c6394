#include "Views/Style/SlimScrollBar.h"

#include "Views/Style/FillStyle.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QStyleOptionSlider>

namespace lanternix {

namespace {

constexpr int barWidth = 12;
constexpr double handleInset = 3.5;

}  // namespace

SlimScrollBar::SlimScrollBar(QAbstractScrollArea *area)
    : QScrollBar(Qt::Vertical, area), m_area(*area) {
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->installEventFilter(this);
  const QScrollBar *bar = area->verticalScrollBar();
  connect(bar, &QScrollBar::rangeChanged, this, &SlimScrollBar::follow);
  connect(bar, &QScrollBar::valueChanged, this, &SlimScrollBar::setValue);
  connect(this, &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
  follow();
}

void SlimScrollBar::follow() {
  const QScrollBar *bar = m_area.verticalScrollBar();
  setRange(bar->minimum(), bar->maximum());
  setPageStep(bar->pageStep());
  setSingleStep(bar->singleStep());
  setValue(bar->value());
  setVisible(maximum() > minimum());
  setGeometry(m_area.width() - barWidth, 0, barWidth, m_area.height());
  raise();
}

bool SlimScrollBar::eventFilter(QObject * /*watched*/, QEvent *event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
    follow();
  }
  return false;
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
