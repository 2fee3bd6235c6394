#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>

class QAbstractScrollArea;

namespace lanternix {

/// Scrolls an area while a drag rests near its upper or lower edge, the faster the nearer and
/// the longer. Its timer runs only as long as there is something left to scroll to.
class EdgeScroller : public QObject {
  Q_OBJECT

 public:
  /// \p area owns it.
  explicit EdgeScroller(QAbstractScrollArea &area);

  /// The drag is at \p position in the viewport now.
  void follow(const QPoint &position);
  void stop() { m_timer.stop(); }

 protected:
  void timerEvent(QTimerEvent *event) override;

 private:
  int step() const;

  QAbstractScrollArea &m_area;
  QBasicTimer m_timer;
  QPoint m_position;
  int m_intervals = 0;  ///< since it rests at the edge
};

}  // namespace lanternix
