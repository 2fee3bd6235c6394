#include "support/WindowProbe.h"

#include "support/WaitUntil.h"

#include <cstring>
#include <utility>
#include <vector>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

std::vector<quint32> numbers(const QByteArray &bytes) {
  std::vector<quint32> values(static_cast<size_t>(bytes.size()) / sizeof(quint32));
  std::memcpy(values.data(), bytes.constData(), values.size() * sizeof(quint32));
  return values;
}

}  // namespace

WindowProbe::WindowProbe(const QString &displayName) : m_connection(displayName) {}

std::optional<xcb_window_t> WindowProbe::find(const QString &instanceName,
                                              const QString &wantedTitle) const {
  QList<xcb_window_t> waiting = children(m_connection.root());
  while (!waiting.isEmpty()) {
    const xcb_window_t window = waiting.takeFirst();
    if (wmClass(window).value(0) == instanceName && title(window) == wantedTitle) {
      return window;
    }
    waiting.append(children(window));
  }
  return std::nullopt;
}

QList<xcb_window_t> WindowProbe::menus(const QString &instanceName) const {
  // Menus ask the window manager to leave them alone, so that they stay children of the root.
  QList<xcb_window_t> menus = children(m_connection.root());
  menus.removeIf([&](xcb_window_t window) {
    const XReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    return !reply || reply->override_redirect == 0 || reply->map_state != XCB_MAP_STATE_VIEWABLE ||
           wmClass(window).value(0) != instanceName;
  });
  return menus;
}

bool WindowProbe::isViewable(xcb_window_t window) const {
  const XReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
      m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

QRect WindowProbe::geometry(xcb_window_t window) const {
  return rootGeometry(window);
}

QRect WindowProbe::frameGeometry(xcb_window_t window) const {
  return rootGeometry(topLevel(window));
}

bool WindowProbe::isAbove(xcb_window_t upper, xcb_window_t lower) const {
  const QList<xcb_window_t> bottomToTop = children(m_connection.root());
  return bottomToTop.indexOf(topLevel(upper)) > bottomToTop.indexOf(topLevel(lower));
}

QStringList WindowProbe::wmClass(xcb_window_t window) const {
  QStringList names = QString::fromLatin1(m_connection.property(window, "WM_CLASS")).split(u'\0');
  names.removeAll(QString());
  return names;
}

QString WindowProbe::title(xcb_window_t window) const {
  return QString::fromUtf8(m_connection.property(window, "_NET_WM_NAME"));
}

QStringList WindowProbe::states(xcb_window_t window) const {
  return atomNames(window, "_NET_WM_STATE");
}

QStringList WindowProbe::types(xcb_window_t window) const {
  return atomNames(window, "_NET_WM_WINDOW_TYPE");
}

quint32 WindowProbe::desktop(xcb_window_t window) const {
  return m_connection.number(window, "_NET_WM_DESKTOP");
}

std::optional<QSize> WindowProbe::minimumSize(xcb_window_t window) const {
  constexpr quint32 minimumSizeFlag = 1U << 4;
  const std::vector<quint32> hints = numbers(m_connection.property(window, "WM_NORMAL_HINTS"));
  if (hints.size() < 7 || (hints[0] & minimumSizeFlag) == 0) {
    return std::nullopt;
  }
  return QSize(static_cast<int>(hints[5]), static_cast<int>(hints[6]));
}

bool WindowProbe::hasPosition(xcb_window_t window) const {
  constexpr quint32 userOrProgramPositionFlags = 1U | 1U << 2;
  return (m_connection.number(window, "WM_NORMAL_HINTS") & userOrProgramPositionFlags) != 0;
}

xcb_window_t WindowProbe::focus() const {
  const XReply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
  return reply ? reply->focus : xcb_window_t{XCB_INPUT_FOCUS_NONE};
}

bool WindowProbe::isKeyboardInUse() const {
  return focus() != XCB_INPUT_FOCUS_NONE;
}

bool WindowProbe::hasFocus(xcb_window_t window) const {
  xcb_window_t focused = focus();
  while (focused > XCB_INPUT_FOCUS_POINTER_ROOT && focused != m_connection.root()) {
    if (focused == window) {
      return true;
    }
    focused = parent(focused);
  }
  return false;
}

xcb_window_t WindowProbe::activeWindow() const {
  return m_connection.number(m_connection.root(), "_NET_ACTIVE_WINDOW");
}

QList<xcb_window_t> WindowProbe::clients() const {
  const std::vector<quint32> windows =
      numbers(m_connection.property(m_connection.root(), "_NET_CLIENT_LIST"));
  return {windows.begin(), windows.end()};
}

QRect WindowProbe::workArea() const {
  const std::vector<quint32> area =
      numbers(m_connection.property(m_connection.root(), "_NET_WORKAREA"));
  if (area.size() < 4) {
    return rootGeometry(m_connection.root());
  }
  return {static_cast<int>(area[0]), static_cast<int>(area[1]), static_cast<int>(area[2]),
          static_cast<int>(area[3])};
}

void WindowProbe::raise(xcb_window_t window) {
  const quint32 above = XCB_STACK_MODE_ABOVE;
  xcb_configure_window(m_connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
  m_connection.sync();
}

void WindowProbe::withdraw(xcb_window_t window) {
  xcb_unmap_notify_event_t hidden{};
  hidden.response_type = XCB_UNMAP_NOTIFY;
  hidden.event = m_connection.root();
  hidden.window = window;
  tellWindowManager(window, reinterpret_cast<const char *>(&hidden));
}

void WindowProbe::iconify(xcb_window_t window) {
  constexpr quint32 iconicState = 3;
  xcb_client_message_event_t request{};
  request.response_type = XCB_CLIENT_MESSAGE;
  request.format = 32;
  request.window = window;
  request.type = m_connection.atom("WM_CHANGE_STATE");
  request.data.data32[0] = iconicState;
  tellWindowManager(window, reinterpret_cast<const char *>(&request));
}

/// Returns when it has written a state of the window. That is known by the event: the program may
/// have it put another one in its place soon after.
void WindowProbe::tellWindowManager(xcb_window_t window, const char *message) {
  const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &events);
  m_connection.sync();
  while (const XReply<xcb_generic_event_t> earlier{xcb_poll_for_event(m_connection)}) {
  }
  xcb_send_event(m_connection, 0, m_connection.root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 message);
  const xcb_atom_t state = m_connection.atom("WM_STATE");
  require(u"the window manager's word on the window"_s, [&] {
    xcb_flush(m_connection);
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
      const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
      if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && change->window == window &&
          change->atom == state) {
        return true;
      }
    }
    return false;
  });
}

bool WindowProbe::isInNormalState(xcb_window_t window) const {
  constexpr quint32 normalState = 1;
  return m_connection.number(window, "WM_STATE") == normalState;
}

QImage WindowProbe::grab(xcb_window_t window) const {
  const QSize size = rootGeometry(window).size();
  const XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(
      m_connection,
      xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                    static_cast<quint16>(size.width()), static_cast<quint16>(size.height()), ~0U),
      nullptr));
  if (!reply) {
    return {};
  }
  const QImage borrowed(xcb_get_image_data(reply.get()), size.width(), size.height(),
                        QImage::Format_RGB32);
  return borrowed.copy();
}

QImage WindowProbe::grabSettled(xcb_window_t window) const {
  QImage picture;
  require(u"the window's picture"_s, [&] {
    const QImage now = grab(window);
    return std::exchange(picture, now) == now && hasContent(now);
  });
  return picture;
}

bool WindowProbe::hasContent(const QImage &picture) {
  if (picture.isNull()) {
    return false;
  }
  QImage plain(picture.size(), picture.format());
  plain.fill(picture.pixelColor(0, picture.height() / 2));
  return picture != plain;
}

QList<xcb_window_t> WindowProbe::children(xcb_window_t window) const {
  const XReply<xcb_query_tree_reply_t> reply(
      xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
  if (!reply) {
    return {};
  }
  const xcb_window_t *first = xcb_query_tree_children(reply.get());
  return {first, first + xcb_query_tree_children_length(reply.get())};
}

xcb_window_t WindowProbe::parent(xcb_window_t window) const {
  const XReply<xcb_query_tree_reply_t> reply(
      xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
  return reply ? reply->parent : xcb_window_t{XCB_WINDOW_NONE};
}

xcb_window_t WindowProbe::topLevel(xcb_window_t window) const {
  for (xcb_window_t above = parent(window);
       above != XCB_WINDOW_NONE && above != m_connection.root(); above = parent(window)) {
    window = above;
  }
  return window;
}

QRect WindowProbe::rootGeometry(xcb_window_t window) const {
  const xcb_get_geometry_cookie_t sizeCookie = xcb_get_geometry(m_connection, window);
  const xcb_translate_coordinates_cookie_t positionCookie =
      xcb_translate_coordinates(m_connection, window, m_connection.root(), 0, 0);
  const XReply<xcb_get_geometry_reply_t> size(
      xcb_get_geometry_reply(m_connection, sizeCookie, nullptr));
  const XReply<xcb_translate_coordinates_reply_t> position(
      xcb_translate_coordinates_reply(m_connection, positionCookie, nullptr));
  if (!size || !position) {
    return {};
  }
  return {position->dst_x, position->dst_y, size->width, size->height};
}

QStringList WindowProbe::atomNames(xcb_window_t window, const char *property) const {
  QStringList names;
  for (const quint32 atom : numbers(m_connection.property(window, property))) {
    names.append(m_connection.atomName(atom));
  }
  return names;
}

}  // namespace lanternix
