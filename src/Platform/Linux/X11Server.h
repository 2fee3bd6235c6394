#pragma once

#include <QtCore/QtGlobal>

#include <cstdlib>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace lanternix {

/// Frees what xcb has allocated.
struct X11Deleter {
  void operator()(void *memory) const { std::free(memory); }
};

template <typename Reply>
using X11Reply = std::unique_ptr<Reply, X11Deleter>;

/// The X server that Qt is connected to. All requests go over Qt's own connection, so that they
/// keep their order with Qt's.
class X11Server {
 public:
  /// Only where QGuiApplication::platformName() is "xcb".
  X11Server();

  xcb_connection_t *connection() const { return m_connection; }
  /// The root window of the screen that Qt's windows are on.
  xcb_window_t root() const { return m_root; }
  /// Every root window of the server.
  const std::vector<xcb_window_t> &roots() const { return m_roots; }
  /// Whether it serves X programs in a Wayland session: it sees keys and buttons only while one of
  /// its own windows has them.
  bool isXWayland() const { return m_isXWayland; }

 private:
  xcb_connection_t *m_connection;
  std::vector<xcb_window_t> m_roots;
  xcb_window_t m_root = XCB_WINDOW_NONE;
  bool m_isXWayland = false;
};

/// Waits for the answer to \p cookie; null when the server answered with an error. Send every
/// request that does not depend on an answer before the first call of this.
template <typename Reply, typename Cookie>
X11Reply<Reply> awaitReply(Reply *(*receive)(xcb_connection_t *, Cookie, xcb_generic_error_t **),
                           const X11Server &server, Cookie cookie) {
  xcb_generic_error_t *error = nullptr;
  X11Reply<Reply> reply(receive(server.connection(), cookie, &error));
  const X11Reply<xcb_generic_error_t> freedError(error);
  return reply;
}

}  // namespace lanternix
