#include "Platform/Linux/X11Compositor.h"

#include "Platform/RoundedRegion.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <string>
#include <xcb/shape.h>
#include <xcb/xfixes.h>

namespace lanternix {
namespace {

constexpr quint8 bitsPerItem = 32;
constexpr quint32 selectionMask = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;

bool hasExtension(const X11Server &server, xcb_extension_t &extension) {
  const auto *data = xcb_get_extension_data(server.connection(), &extension);
  return data != nullptr && data->present != 0;
}

qsizetype screenNumber(const X11Server &server) {
  const auto root = std::ranges::find(server.roots(), server.root());
  return root - server.roots().begin();
}

/// A frame's outline as rectangles: left, top, width, height of each.
std::vector<quint32> outline(const WindowSystem::Frame &frame) {
  const QRect area(QPoint(frame.shadow.left(), frame.shadow.top()), frame.size);
  std::vector<quint32> numbers;
  for (const QRect &part : roundedRegion(area, frame.cornerRadius)) {
    for (const int number : {part.left(), part.top(), part.width(), part.height()}) {
      numbers.push_back(static_cast<quint32>(number));
    }
  }
  return numbers;
}

}  // namespace

X11Compositor::X11Compositor(const X11Server &server) : m_server(server) {
  const std::array names{"_NET_WM_CM_S" + std::to_string(screenNumber(server)),
                         std::string("_GTK_FRAME_EXTENTS"),
                         std::string("_KDE_NET_WM_BLUR_BEHIND_REGION")};
  std::array<xcb_intern_atom_cookie_t, nameCount> cookies{};
  std::ranges::transform(names, cookies.begin(), [&](const std::string &name) {
    return xcb_intern_atom(server.connection(), 0, static_cast<quint16>(name.size()), name.data());
  });
  std::ranges::transform(cookies, m_atoms.begin(), [&](xcb_intern_atom_cookie_t cookie) {
    const auto reply = awaitReply(xcb_intern_atom_reply, server, cookie);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  });
  watch();
  const auto owner = awaitReply(xcb_get_selection_owner_reply, server,
                                xcb_get_selection_owner(server.connection(), m_atoms[selection]));
  m_isRunning = owner && owner->owner != XCB_WINDOW_NONE;
  QCoreApplication::instance()->installNativeEventFilter(this);
}

X11Compositor::~X11Compositor() = default;

/// A compositor owns a selection; the server tells when that changes hands.
void X11Compositor::watch() {
  if (!hasExtension(m_server, xcb_xfixes_id)) {
    return;
  }
  xcb_connection_t *connection = m_server.connection();
  m_firstEvent = xcb_get_extension_data(connection, &xcb_xfixes_id)->first_event;
  xcb_xfixes_select_selection_input(connection, m_server.root(), m_atoms[selection], selectionMask);
}

bool X11Compositor::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                      qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  constexpr int sentFlag = 0x80;
  if (m_firstEvent != 0 &&
      (event.response_type & ~sentFlag) == m_firstEvent + XCB_XFIXES_SELECTION_NOTIFY) {
    const auto &notice = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (notice.selection == m_atoms[selection] && notice.window == m_server.root()) {
      update(notice.owner != XCB_WINDOW_NONE);
    }
  }
  return false;
}

void X11Compositor::update(bool isRunning) {
  if (isRunning != m_isRunning) {
    m_isRunning = isRunning;
    Q_EMIT changed();
  }
}

void X11Compositor::setFrame(xcb_window_t window, const WindowSystem::Frame &frame) {
  xcb_connection_t *connection = m_server.connection();
  const QMargins &shadow = frame.shadow;
  if (shadow.isNull()) {
    xcb_delete_property(connection, window, m_atoms[frameExtents]);
    xcb_delete_property(connection, window, m_atoms[blurBehind]);
  } else {
    const std::array extents{
        static_cast<quint32>(shadow.left()), static_cast<quint32>(shadow.right()),
        static_cast<quint32>(shadow.top()), static_cast<quint32>(shadow.bottom())};
    setNumbers(window, m_atoms[frameExtents], extents);
    setNumbers(window, m_atoms[blurBehind], outline(frame));
  }
  if (hasExtension(m_server, xcb_shape_id)) {
    setShape(window, frame);
  }
}

void X11Compositor::setShape(xcb_window_t window, const WindowSystem::Frame &frame) {
  xcb_connection_t *connection = m_server.connection();
  const QRect area(QPoint(frame.shadow.left(), frame.shadow.top()), frame.size);
  const auto set = [&](xcb_shape_kind_t kind, const QRegion &region) {
    std::vector<xcb_rectangle_t> parts;
    for (const QRect &part : region) {
      parts.push_back({static_cast<qint16>(part.left()), static_cast<qint16>(part.top()),
                       static_cast<quint16>(part.width()), static_cast<quint16>(part.height())});
    }
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0,
                         0, static_cast<quint32>(parts.size()), parts.data());
  };
  set(XCB_SHAPE_SK_INPUT, area);
  if (frame.shadow.isNull()) {
    set(XCB_SHAPE_SK_BOUNDING, roundedRegion(area, frame.cornerRadius));
  } else {
    xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0,
                   XCB_PIXMAP_NONE);
  }
}

void X11Compositor::setNumbers(xcb_window_t window, xcb_atom_t property,
                               std::span<const quint32> numbers) {
  xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, window, property,
                      XCB_ATOM_CARDINAL, bitsPerItem, static_cast<quint32>(numbers.size()),
                      numbers.data());
}

}  // namespace lanternix
