#include "Views/Settings/ClickRun.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QStyleHints>

#include <algorithm>

namespace lanternix {

int ClickRun::press(const QMouseEvent &event) {
  if (event.button() != Qt::LeftButton) {
    m_count = 0;
    return 0;
  }
  if (event.type() == QEvent::MouseButtonDblClick) {
    m_count = std::max(m_count + 1, 2);
  } else {
    m_count = goesOn(event) ? m_count + 1 : 1;
  }
  m_time = event.timestamp();
  m_position = event.globalPosition().toPoint();
  return m_count;
}

// The toolkit itself tells the first press from the second, not the second from the third.
bool ClickRun::goesOn(const QMouseEvent &event) const {
  const QStyleHints *hints = QGuiApplication::styleHints();
  const int distance = (event.globalPosition().toPoint() - m_position).manhattanLength();
  return m_count >= 2 && event.timestamp() >= m_time &&
         event.timestamp() - m_time <= static_cast<quint64>(hints->mouseDoubleClickInterval()) &&
         distance <= hints->mouseDoubleClickDistance();
}

}  // namespace lanternix
