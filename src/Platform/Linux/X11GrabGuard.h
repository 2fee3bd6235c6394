#pragma once

#include "Platform/Linux/X11Server.h"

#include <chrono>
#include <memory>
#include <xcb/sync.h>

namespace lanternix {

/// A window whose grabs the server itself ends after a time limit, whatever becomes of this
/// program: also while it is stopped, or waits for a disk that does not answer.
///
/// The window belongs to a connection of its own. Over that, the server is asked to wait until the
/// limit is over and to take the window off the screen then, which ends a grab; nobody has to be
/// awake for it. The window is never seen and takes no presses.
class X11GrabGuard {
 public:
  /// Makes the window. Without a connection or the Synchronization extension there is none.
  explicit X11GrabGuard(const X11Server &server);
  /// Ends a grab on the window.
  ~X11GrabGuard();
  Q_DISABLE_COPY_MOVE(X11GrabGuard)

  /// Where to grab; a grab after the limit is refused. XCB_WINDOW_NONE when there is no window.
  xcb_window_t window() const { return m_window; }

  /// Sets the limit to \p limit from now. To be called before the grab, and then stop().
  void start(std::chrono::milliseconds limit);
  /// No limit is wanted any longer, or it is over: makes the window ready for the next grab.
  void stop();

 private:
  struct Disconnector {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
  };

  void makeWindow();
  void dropEvents();
  xcb_window_t makeInvisibleWindow(xcb_window_t parent) const;

  const X11Server &m_server;
  const std::unique_ptr<xcb_connection_t, Disconnector> m_connection;
  xcb_sync_counter_t m_serverTime = XCB_NONE;
  /// Counts the limits that were called off.
  xcb_sync_counter_t m_stops = XCB_NONE;
  qint64 m_starts = 0;
  xcb_window_t m_window = XCB_WINDOW_NONE;
};

}  // namespace lanternix
