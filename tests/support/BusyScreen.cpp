#include "support/BusyScreen.h"

#include <string>

namespace lanternix {

BusyScreen::BusyScreen(const QString &displayName, xcb_window_t window)
    : m_connection(displayName),
      m_window(window),
      m_hand([this](const std::stop_token &stop) { draw(stop); }) {}

void BusyScreen::draw(const std::stop_token &stop) {
  const xcb_gcontext_t pen = xcb_generate_id(m_connection);
  xcb_create_gc(m_connection, pen, m_window, 0, nullptr);
  for (quint32 line = 0; !stop.stop_requested(); ++line) {
    constexpr int linesAtOnce = 20;
    constexpr quint16 width = 400;
    constexpr quint16 height = 300;
    constexpr quint16 lineHeight = 15;
    for (int i = 0; i < linesAtOnce; ++i) {
      xcb_copy_area(m_connection, m_window, m_window, pen, 0, lineHeight, 0, 0, width,
                    height - lineHeight);
      const quint32 color = (line * 40 + static_cast<quint32>(i)) & 0xffffff;
      xcb_change_gc(m_connection, pen, XCB_GC_FOREGROUND, &color);
      const xcb_rectangle_t lowest{0, height - lineHeight, width, lineHeight};
      xcb_poly_fill_rectangle(m_connection, m_window, pen, 1, &lowest);
    }
    const std::string title = "line " + std::to_string(line);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, static_cast<quint32>(title.size()), title.data());
    m_connection.sync();  // or the requests would pile up without an end
  }
}

}  // namespace lanternix
