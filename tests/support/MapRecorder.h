#pragma once

#include "support/XConnection.h"

#include <QtCore/QList>

namespace lanternix {

/// Remembers every appearance and disappearance of a window, also those too
/// short for anyone who looks only now and then.
class MapRecorder {
 public:
  enum class Change { shown, hidden };

  MapRecorder(const QString &displayName, xcb_window_t window);

  /// What has happened so far, in order.
  const QList<Change> &changes();

 private:
  XConnection m_connection;
  QList<Change> m_changes;
};

}  // namespace lanternix
