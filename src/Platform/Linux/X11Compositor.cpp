#include "Platform/Linux/X11Compositor.h"

#include "Platform/RoundedRegion.h"

#include <xcb/shape.h>

namespace lanternix {
namespace {

constexpr quint8 bitsPerItem = 32;

bool hasExtension(const X11Server &server, xcb_extension_t &extension) {
  const auto *data = xcb_get_extension_data(server.connection(), &extension);
  return data != nullptr && data->present != 0;
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

X11Compositor::X11Compositor(const X11Server &server, X11Atoms &atoms)
    : m_server(server), m_atoms(atoms), m_selection(server, "_NET_WM_CM_S") {
  connect(&m_selection, &X11SelectionWatch::changed, this, &X11Compositor::changed);
}

void X11Compositor::setFrame(xcb_window_t window, const WindowSystem::Frame &frame) {
  const std::pair news(window, frame);
  if (std::exchange(m_said, news) == news) {
    return;
  }
  xcb_connection_t *connection = m_server.connection();
  const QMargins &shadow = frame.shadow;
  if (shadow.isNull()) {
    xcb_delete_property(connection, window, m_atoms[X11Atoms::gtkFrameExtents]);
    xcb_delete_property(connection, window, m_atoms[X11Atoms::kdeNetWmBlurBehindRegion]);
  } else {
    const std::array extents{
        static_cast<quint32>(shadow.left()), static_cast<quint32>(shadow.right()),
        static_cast<quint32>(shadow.top()), static_cast<quint32>(shadow.bottom())};
    setNumbers(window, m_atoms[X11Atoms::gtkFrameExtents], extents);
    setNumbers(window, m_atoms[X11Atoms::kdeNetWmBlurBehindRegion], outline(frame));
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
