#pragma once

#include <QtCore/QtGlobal>

#include <xcb/sync.h>

namespace lanternix {

/// The clock by which a server stamps its events. To ask it is to wait for the server's answer.
class X11ServerTime {
 public:
  /// Finds the clock on \p connection, on which the Synchronization extension can then be used.
  explicit X11ServerTime(xcb_connection_t *connection);

  /// What to wait for. XCB_NONE where the server has no Synchronization extension or no such clock,
  /// or has not answered.
  xcb_sync_counter_t counter() const { return m_counter; }
  /// The present time in milliseconds, as in an event. 0, which stands for the present in requests,
  /// when the server cannot tell.
  quint32 now() const;

 private:
  xcb_connection_t *m_connection;
  xcb_sync_counter_t m_counter = XCB_NONE;
};

}  // namespace lanternix
