#pragma once

#include <QtCore/QPoint>

class QMouseEvent;

namespace lanternix {

/// Counts quick presses of the left button at one place. The toolkit takes the fourth of a run for
/// a second double click; here a run has one second press, however long it gets.
class ClickRun {
 public:
  /// Which press of its run \p event is, from 1; 0 for another button.
  int press(const QMouseEvent &event);

 private:
  bool goesOn(const QMouseEvent &event) const;

  int m_count = 0;
  quint64 m_time = 0;  // milliseconds, of the last press
  QPoint m_position;
};

}  // namespace lanternix
