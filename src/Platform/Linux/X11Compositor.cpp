#include "Platform/Linux/X11Compositor.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <xcb/shape.h>

namespace lanternix {
namespace {

constexpr quint8 bitsPerItem = 32;

bool hasExtension(const X11Server &server, xcb_extension_t &extension) {
  const auto *data = xcb_get_extension_data(server.connection(), &extension);
  return data != nullptr && data->present != 0;
}

/// A frame's outline as rectangles (left, top, width, height): one for each line of its corners,
/// one for what is between.
std::vector<quint32> roundedRegion(const WindowSystem::Frame &frame) {
  std::vector<quint32> region;
  const int width = frame.size.width();
  const int height = frame.size.height();
  const int radius = frame.cornerRadius;
  const auto add = [&](int inset, int line, int lines) {
    for (const int number :
         {frame.shadow.left() + inset, frame.shadow.top() + line, width - 2 * inset, lines}) {
      region.push_back(static_cast<quint32>(number));
    }
  };
  for (int line = 0; line < radius; ++line) {
    const double fromCentre = radius - line - 0.5;
    const int inset = qRound(radius - std::sqrt(radius * radius - fromCentre * fromCentre));
    add(inset, line, 1);
    add(inset, height - 1 - line, 1);
  }
  add(0, radius, height - 2 * radius);
  return region;
}

}  // namespace

X11Compositor::X11Compositor(const X11Server &server)
    : m_server(server), m_selection(server, "_NET_WM_CM_S") {
  constexpr std::array<std::string_view, nameCount> names{"_GTK_FRAME_EXTENTS",
                                                          "_KDE_NET_WM_BLUR_BEHIND_REGION"};
  std::array<xcb_intern_atom_cookie_t, nameCount> cookies{};
  std::ranges::transform(names, cookies.begin(), [&](std::string_view name) {
    return xcb_intern_atom(server.connection(), 0, static_cast<quint16>(name.size()), name.data());
  });
  std::ranges::transform(cookies, m_atoms.begin(), [&](xcb_intern_atom_cookie_t cookie) {
    const auto reply = awaitReply(xcb_intern_atom_reply, server, cookie);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  });
  connect(&m_selection, &X11SelectionWatch::changed, this, &X11Compositor::changed);
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
    setNumbers(window, m_atoms[blurBehind], roundedRegion(frame));
  }
  if (hasExtension(m_server, xcb_shape_id)) {
    const xcb_rectangle_t taken{
        static_cast<qint16>(shadow.left()), static_cast<qint16>(shadow.top()),
        static_cast<quint16>(frame.size.width()), static_cast<quint16>(frame.size.height())};
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 1, &taken);
  }
}

void X11Compositor::setNumbers(xcb_window_t window, xcb_atom_t property,
                               std::span<const quint32> numbers) {
  xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, window, property,
                      XCB_ATOM_CARDINAL, bitsPerItem, static_cast<quint32>(numbers.size()),
                      numbers.data());
}

}  // namespace lanternix
