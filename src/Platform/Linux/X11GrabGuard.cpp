#include "Platform/Linux/X11GrabGuard.h"

#include "Platform/Linux/X11ServerTime.h"

#include <QtCore/QLoggingCategory>

#include <array>
#include <limits>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(keyboardLog, "lanternix.keyboard", QtWarningMsg)

using namespace std::chrono_literals;

constexpr xcb_sync_int64_t split(qint64 value) {
  return {.hi = static_cast<qint32>(value >> 32),
          .lo = static_cast<quint32>(value & std::numeric_limits<quint32>::max())};
}

/// Holds once \p counter has reached \p value. No event tells of it, which nobody would read.
xcb_sync_waitcondition_t reaches(xcb_sync_counter_t counter, xcb_sync_valuetype_t valueType,
                                 qint64 value) {
  return {.trigger = {.counter = counter,
                      .wait_type = valueType,
                      .wait_value = split(value),
                      .test_type = XCB_SYNC_TESTTYPE_POSITIVE_COMPARISON},
          .event_threshold = split(std::numeric_limits<qint64>::max())};
}

}  // namespace

X11GrabGuard::X11GrabGuard(const X11Server &server)
    : m_server(server), m_connection(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(m_connection.get()) == 0) {
    m_serverTime = X11ServerTime(m_connection.get()).counter();
  }
  if (m_serverTime == XCB_NONE) {
    qCWarning(keyboardLog) << "The server cannot limit a grab of the keyboard: letters typed before"
                           << "the panel has the keyboard go to the window that had it";
    return;
  }
  makeWindow();
}

X11GrabGuard::~X11GrabGuard() = default;

/// The window is inside another one, so that no window manager hears of its coming and going.
void X11GrabGuard::makeWindow() {
  m_stops = xcb_generate_id(m_connection.get());
  xcb_sync_create_counter(m_connection.get(), m_stops, split(0));
  m_window = makeInvisibleWindow(makeInvisibleWindow(m_server.root()));
  xcb_flush(m_connection.get());
}

xcb_window_t X11GrabGuard::makeInvisibleWindow(xcb_window_t parent) const {
  constexpr qint16 outside = -10;
  constexpr std::array<quint32, 1> overrideRedirect{1};
  xcb_connection_t *connection = m_connection.get();
  const xcb_window_t window = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, parent, outside, outside, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                    overrideRedirect.data());
  xcb_map_window(connection, window);
  return window;
}

void X11GrabGuard::start(std::chrono::milliseconds limit) {
  dropEvents();
  ++m_starts;
  const std::array ends{
      reaches(m_serverTime, XCB_SYNC_VALUETYPE_RELATIVE, limit / 1ms),
      reaches(m_stops, XCB_SYNC_VALUETYPE_ABSOLUTE, m_starts),
  };
  xcb_sync_await(m_connection.get(), ends.size(), ends.data());
  xcb_unmap_window(m_connection.get(), m_window);
  xcb_flush(m_connection.get());
}

/// The server tells every connection of changes of the keyboard map, asked or not.
void X11GrabGuard::dropEvents() {
  using Event = X11Reply<xcb_generic_event_t>;
  while (Event(xcb_poll_for_event(m_connection.get())) != nullptr) {
  }
}

void X11GrabGuard::stop() {
  // Not over the guard's own connection, whose requests wait for this.
  xcb_sync_set_counter(m_server.connection(), m_stops, split(m_starts));
  xcb_flush(m_server.connection());
  xcb_map_window(m_connection.get(), m_window);
  xcb_flush(m_connection.get());
}

}  // namespace lanternix
