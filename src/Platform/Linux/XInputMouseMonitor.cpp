#include "Platform/Linux/XInputMouseMonitor.h"

#include "Platform/Linux/X11EventTime.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <algorithm>
#include <span>
#include <xcb/shape.h>
#include <xcb/xinput.h>

namespace lanternix {
namespace {

constexpr quint32 leftButton = 1;
constexpr quint32 rightButton = 3;

/// The extension's number, by which its events are known; none when the server lacks it. Qt has
/// asked before us, so that this is answered from memory.
std::optional<quint8> extensionOpcode(const X11Server &server) {
  const auto *extension = xcb_get_extension_data(server.connection(), &xcb_input_id);
  return extension != nullptr && extension->present != 0 ? std::optional(extension->major_opcode)
                                                         : std::nullopt;
}

}  // namespace

XInputMouseMonitor::XInputMouseMonitor(const X11Server &server, X11EventTime &eventTime)
    : m_server(server), m_eventTime(eventTime) {
  // Queued, because the keys typed before the press wait to be delivered while this filter runs.
  connect(this, &XInputMouseMonitor::pressSeenOutside, this, &XInputMouseMonitor::pressedOutside,
          Qt::QueuedConnection);
  QCoreApplication::instance()->installNativeEventFilter(this);
}

XInputMouseMonitor::~XInputMouseMonitor() {
  select(false);
}

void XInputMouseMonitor::setActive(bool active) {
  if (!m_opcode) {
    m_opcode = extensionOpcode(m_server);
  }
  if (m_opcode) {
    select(active);
  }
}

/// Asks the server for the events, or to send them no longer.
void XInputMouseMonitor::select(bool active) {
  if (active == m_active) {
    return;
  }
  m_active = active;
  struct {
    xcb_input_event_mask_t head;
    quint32 mask;
  } const selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                    active ? quint32{XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS} : 0};
  for (const xcb_window_t root : m_server.roots()) {
    xcb_input_xi_select_events(m_server.connection(), root, 1, &selection.head);
  }
  xcb_flush(m_server.connection());
}

bool XInputMouseMonitor::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                           qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  followPointer(event);
  if (isWatchedPress(event)) {
    m_eventTime.note(reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event).time);
    if (m_windowUnderPointer == XCB_WINDOW_NONE && !isPointerOverOwnWindow()) {
      Q_EMIT pressSeenOutside();
    }
  }
  return false;
}

/// Where the pointer was when a button went down is told only by the events before that press:
/// asked now, the server answers where a quick hand has got to since.
void XInputMouseMonitor::followPointer(const xcb_generic_event_t &event) {
  const int type = event.response_type & 0x7f;
  if (type == XCB_ENTER_NOTIFY || type == XCB_LEAVE_NOTIFY) {
    const auto &crossing = reinterpret_cast<const xcb_enter_notify_event_t &>(event);
    const bool isRoot =
        std::ranges::find(m_server.roots(), crossing.event) != m_server.roots().end();
    if (type == XCB_ENTER_NOTIFY && !isRoot) {
      m_windowUnderPointer = crossing.event;
    } else if (crossing.event == m_windowUnderPointer && crossing.mode != XCB_NOTIFY_MODE_GRAB &&
               crossing.detail != XCB_NOTIFY_DETAIL_INFERIOR) {
      m_windowUnderPointer = XCB_WINDOW_NONE;
    }
  } else if (type == XCB_UNMAP_NOTIFY) {
    // A menu that has gone had the pointer to itself: nobody has told where it went meanwhile.
    m_windowUnderPointer = XCB_WINDOW_NONE;
  }
}

bool XInputMouseMonitor::isWatchedPress(const xcb_generic_event_t &event) const {
  if (!m_active || event.response_type != XCB_GE_GENERIC) {
    return false;
  }
  const auto &press = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
  return press.extension == m_opcode && press.event_type == XCB_INPUT_RAW_BUTTON_PRESS &&
         (press.detail == leftButton || press.detail == rightButton);
}

/// Windows are compared as the root window's children, so that a window manager's frame counts as
/// part of the window in it.
bool XInputMouseMonitor::isPointerOverOwnWindow() const {
  const auto pointer = awaitReply(xcb_query_pointer_reply, m_server,
                                  xcb_query_pointer(m_server.connection(), m_server.root()));
  if (!pointer || pointer->child == XCB_WINDOW_NONE) {
    return false;
  }
  const auto windows = QGuiApplication::topLevelWindows();
  for (const QWindow *window : windows) {
    if (window->isVisible() && window->handle() != nullptr &&
        topLevelOf(static_cast<xcb_window_t>(window->winId())) == pointer->child) {
      return takesPressAt(static_cast<xcb_window_t>(window->winId()),
                          {pointer->root_x, pointer->root_y});
    }
  }
  return false;
}

/// What a window lets through, such as its shadow, is not part of it, even where a window manager's
/// frame around it takes the press.
bool XInputMouseMonitor::takesPressAt(xcb_window_t window, QPoint position) const {
  xcb_connection_t *connection = m_server.connection();
  const auto originCookie = xcb_translate_coordinates(connection, window, m_server.root(), 0, 0);
  const auto sizeCookie = xcb_get_geometry(connection, window);
  const auto shapeCookie = xcb_shape_get_rectangles(connection, window, XCB_SHAPE_SK_INPUT);
  const auto origin = awaitReply(xcb_translate_coordinates_reply, m_server, originCookie);
  const auto shape = awaitReply(xcb_shape_get_rectangles_reply, m_server, shapeCookie);
  const auto size = awaitReply(xcb_get_geometry_reply, m_server, sizeCookie);
  const QPoint inside = origin ? position - QPoint(origin->dst_x, origin->dst_y) : QPoint();
  if (!origin || !shape || !size || !QRect(0, 0, size->width, size->height).contains(inside)) {
    return true;  // on its title bar
  }
  const std::span parts(
      xcb_shape_get_rectangles_rectangles(shape.get()),
      static_cast<size_t>(xcb_shape_get_rectangles_rectangles_length(shape.get())));
  return std::ranges::any_of(parts, [inside](const xcb_rectangle_t &part) {
    return QRect(part.x, part.y, part.width, part.height).contains(inside);
  });
}

xcb_window_t XInputMouseMonitor::topLevelOf(xcb_window_t window) const {
  while (window != XCB_WINDOW_NONE) {
    const auto tree =
        awaitReply(xcb_query_tree_reply, m_server, xcb_query_tree(m_server.connection(), window));
    if (!tree || tree->parent == tree->root) {
      return tree ? window : xcb_window_t{XCB_WINDOW_NONE};
    }
    window = tree->parent;
  }
  return XCB_WINDOW_NONE;
}

}  // namespace lanternix
