#include "Views/Settings/EdgeScroller.h"

#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace lanternix {

namespace {

constexpr int margin = 24;    // logical pixels
constexpr int interval = 16;  // milliseconds
constexpr int slowest = 1;    // logical pixels an interval
constexpr int fastest = 120;
constexpr int depthPerPixel = 3;
constexpr int intervalsToDouble = 30;

}  // namespace

EdgeScroller::EdgeScroller(QAbstractScrollArea &area) : QObject(&area), m_area(area) {}

void EdgeScroller::follow(const QPoint &position) {
  m_position = position;
  if (step() == 0) {
    m_timer.stop();
  } else if (!m_timer.isActive()) {
    m_intervals = 0;
    m_timer.start(interval, this);
  }
}

// Logical pixels, upwards below 0.
int EdgeScroller::step() const {
  const int above = margin - m_position.y();
  const int below = m_position.y() - (m_area.viewport()->height() - 1 - margin);
  const int depth = std::min(std::max(above, below), margin);
  if (depth <= 0) {
    return 0;
  }
  const int start = slowest + depth / depthPerPixel;
  const int pixels = std::min(start + start * m_intervals / intervalsToDouble, fastest);
  return above > below ? -pixels : pixels;
}

void EdgeScroller::timerEvent(QTimerEvent * /*event*/) {
  QScrollBar *bar = m_area.verticalScrollBar();
  const int before = bar->value();
  ++m_intervals;
  bar->setValue(before + step());
  if (bar->value() == before) {
    m_timer.stop();
  }
}

}  // namespace lanternix
